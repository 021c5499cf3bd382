#pragma once
#include "prompts/PromptsExport.h"
#include <QColor>
#include <QToolButton>

namespace orrery {
namespace dialogs {
namespace prompt {

/// One swatch of the colour grid: a tool button filled with a colour of the
/// kernel's colour map.
class ORRERY_PROMPTS_EXPORT ColorChooserButton : public QToolButton
{
    Q_OBJECT
public:
    ColorChooserButton(QWidget* parent, int colorIndex);

    int colorIndex() const { return m_colorIndex; }
    int red() const { return m_color.red(); }
    int green() const { return m_color.green(); }
    int blue() const { return m_color.blue(); }

    QSize sizeHint() const override;

protected:
    /// The swatch is painted here rather than through a style sheet per button:
    /// sixty-four style sheets make the grid's first show several times slower.
    void paintEvent(QPaintEvent* event) override;

private:
    int m_colorIndex;
    QColor m_color;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
