#pragma once
#include "prompts/PromptsExport.h"
#include <boost/signals2/signal.hpp>
#include <QWidget>

namespace orrery {
namespace dialogs {
namespace prompt {

/// The 8 x 8 grid of colour swatches: the basic colours in display order on the
/// first row, then the custom colours. A click announces the swatch's index.
class ORRERY_PROMPTS_EXPORT ColorChooserWidget : public QWidget
{
    Q_OBJECT
public:
    /// Fires with the colour index of the swatch clicked.
    typedef boost::signals2::signal<void(int)> ColorSelectedSignal;

    /// Builds the grid as a child of \a parent.
    explicit ColorChooserWidget(QWidget* parent);

    /// Calls \a slot with the colour index of each swatch clicked.
    boost::signals2::connection connectToColorSelectedSignal(const ColorSelectedSignal::slot_type& slot);
    /// Whether anyone listens to the clicks.
    bool signalColorSelectedConnected() const { return !m_colorSelected.empty(); }

protected:
    /// Names the swatches in the user's language again after a language change.
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void colorButtonTriggered();

private:
    void nameSwatches();

    ColorSelectedSignal m_colorSelected;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
