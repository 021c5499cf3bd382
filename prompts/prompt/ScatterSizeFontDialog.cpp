#include "prompts/prompt/ScatterSizeFontDialog.h"

#include <boost/signals2/connection.hpp>
#include <QPushButton>
#include "core/propertybindings/ComboBoxPropertyBinding.h"
#include "core/propertybindings/RadioButtonPropertyBinding.h"
#include "core/propertybindings/TextFieldPropertyBinding.h"
#include "framework/ButtonBinding.h"
#include "framework/FontComboBoxPropertyBinding.h"
#include "framework/LaunchHelpAction.h"
#include "prompts/prompt/ScatterSizeFontPropertiesManager.h"
#include "framework/StyleSetDialogParts.h"
#include "prompts/propertymanager/ScatterSizeFontPropertiesGenerated.h"
#include "ui_ScatterSizeFont.h"
#include "platform/sdk/HostAnswers.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace pb = sdk::ui::dialogs::propertybindings;
namespace pm = sdk::ui::propertymanager;

struct ScatterSizeFontDialog::Impl
    : StyleSetDialogParts<Ui_ScatterSizeFont, pm::ScatterSizeFontPropertiesGenerated, ScatterSizeFontPropertiesManager>
{
    explicit Impl(ScatterSizeFontDialog& dialog) : StyleSetDialogParts(dialog)
    {
        recalculate = ui.scatterSizeFont_buttonBox->addButton(recalculateText(), QDialogButtonBox::ActionRole);
        recalculate->setObjectName("scatterSizeFont_RecalculateSize_Button");
        plotTypeChanged = manager->plotTypeProperty()->connectToValueChangedSignal(
            [&dialog](const PlotType_e&) { dialog.setDialogForPlotType(); });
        bindPropertiesToControls(*recalculate);
        bindRelevanciesToControls(*recalculate);
    }

    static QString recalculateText() { return QCoreApplication::translate("ScatterSizeFont", "&Recalculate Size"); }

    void bindPropertiesToControls(QAbstractButton& recalculateButton)
    {
        const auto inGridUnits = generated->scatterSizeInGridUnits();
        bindings.push_back(
            new pb::FontComboBoxPropertyBinding(*ui.scatterSizeFont_SymbolsFont_ComboBox, manager->fontProperty()));
        bindings.push_back(new pb::ComboBoxPropertyBinding<int>(
            *ui.scatterSizeFont_SizeVaiable_ComboBox, generated->scatterSizeVariable(), manager->variablesModel()));
        bindings.push_back(
            new pb::RadioButtonPropertyBinding<bool>(ui.scatterSizeFont_SizeGrid_radioButton, inGridUnits, true));
        bindings.push_back(new pb::TextFieldPropertyBinding<double>(
            ui.scatterSizeFont_SizeGrid_1Text, manager->relativeGridSizeProperty(),
            pb::BindingInterface::WidgetUpdateMode_OnIdle, pb::TextFieldPropertyBinding<double>::CursorPosition_Keep));
        bindings.push_back(
            new pb::RadioButtonPropertyBinding<bool>(ui.scatterSizeFont_SizeCm_radioButton, inGridUnits, false));
        bindings.push_back(new pb::TextFieldPropertyBinding<double>(
            ui.scatterSizeFont_SizeCm_1Text, manager->relativeCmSizeProperty(),
            pb::BindingInterface::WidgetUpdateMode_OnIdle, pb::TextFieldPropertyBinding<double>::CursorPosition_Keep));
        ScatterSizeFontPropertiesManager* const sizes = manager.get();
        bindings.push_back(new pb::ButtonBinding(recalculateButton, [sizes] { sizes->recalculateSize(); }));
    }

    void bindRelevanciesToControls(QAbstractButton& recalculateButton)
    {
        const auto sensitivity = pb::RelevanceApplier::Manifestation_Sensitivity;
        const auto onIdle = pb::BindingInterface::WidgetUpdateMode_OnIdle;
        appliers.push_back(
            new pb::RelevanceApplier(manager->fieldPlotTypeRelevance(),
                                     {ui.scatterSizeFont_SizeVaiable_Label, ui.scatterSizeFont_SizeVaiable_ComboBox,
                                      ui.scatterSizeFont_SizeMultiplier_Label, ui.scatterSizeFont_SizeGrid_radioButton,
                                      ui.scatterSizeFont_SizeCm_radioButton, &recalculateButton},
                                     sensitivity, onIdle));
        appliers.push_back(new pb::RelevanceApplier(manager->sizeInGridUnitsRelevance(),
                                                    {ui.scatterSizeFont_SizeGrid_1Text}, sensitivity, onIdle));
        appliers.push_back(new pb::RelevanceApplier(manager->sizeInCmUnitsRelevance(),
                                                    {ui.scatterSizeFont_SizeCm_1Text}, sensitivity, onIdle));
    }

    boost::signals2::scoped_connection plotTypeChanged;
    QPushButton* recalculate;
};

ScatterSizeFontDialog* ScatterSizeFontDialog::getInstance(QWidget& parent)
{
    return obtain(parent);
}

boost::shared_ptr<const pm::RelevanceInterface> ScatterSizeFontDialog::relevance()
{
    return ScatterSizeFontPropertiesManager::relevance();
}

ScatterSizeFontDialog::ScatterSizeFontDialog(QWidget& parent) : QtDialogAbstract(parent, relevance())
{
    m_impl.reset(new Impl(*this));
    setDialogForPlotType();
}

ScatterSizeFontDialog::~ScatterSizeFontDialog() = default;

void ScatterSizeFontDialog::retranslate()
{
    m_impl->ui.retranslateUi(this);
    m_impl->recalculate->setText(Impl::recalculateText());
    setDialogForPlotType();
}

void ScatterSizeFontDialog::setDialogForPlotType()
{
    const PlotType_e plotType = sdk::HostAnswers::plotType();
    const bool fieldPlot = plotType == PlotType_TwoD || plotType == PlotType_ThreeD;
    setWindowTitle(fieldPlot ? QCoreApplication::translate("ScatterSizeFont", "Scatter Size/Font")
                             : QCoreApplication::translate("ScatterSizeFont", "Symbol Font"));
    setHelpAction(new common::LaunchHelpAction(fieldPlot ? "scatter_size_font.html" : "symbol_font.html", *this));
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
