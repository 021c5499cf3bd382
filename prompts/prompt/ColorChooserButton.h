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
    /// A swatch of colour \a colorIndex of the colour map, as a child of \a parent.
    ColorChooserButton(QWidget* parent, int colorIndex);

    /// The colour map index the swatch stands for.
    int colorIndex() const { return m_colorIndex; }
    /// The swatch's red component, 0 to 255, as read when it was made.
    int red() const { return m_color.red(); }
    /// The swatch's green component, 0 to 255.
    int green() const { return m_color.green(); }
    /// The swatch's blue component, 0 to 255.
    int blue() const { return m_color.blue(); }

    /// 20 by 20 pixels.
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
