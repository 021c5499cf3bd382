#include "prompts/prompt/RGBColorOptsDialog.h"

#include "core/propertybindings/ComboBoxPropertyBinding.h"
#include "framework/LaunchHelpAction.h"
#include "framework/SpinBoxDoublePropertyBinding.h"
#include "prompts/propertymanager/IntensitySpinBoxIncDecCalculator.h"
#include "prompts/propertymanager/RGBColorOptsPropertiesGenerated.h"
#include "prompts/propertymanager/RGBColorOptsPropertiesManager.h"
#include "framework/StyleSetDialogParts.h"
#include "ui_RGBColorOpts.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace pb = sdk::ui::dialogs::propertybindings;
namespace pm = sdk::ui::propertymanager;

struct RGBColorOptsDialog::Impl
    : StyleSetDialogParts<::Ui::RGBColorOpts, pm::RGBColorOptsPropertiesGenerated, pm::RGBColorOptsPropertiesManager>
{
    explicit Impl(QDialog& dialog) : StyleSetDialogParts(dialog)
    {
        bindPropertiesToControls(ui, *generated);
        bindRelevanciesToControls(ui);
    }

    void bindPropertiesToControls(const ::Ui::RGBColorOpts& ui, const pm::RGBColorOptsPropertiesGenerated& generated)
    {
        bindings.push_back(new pb::ComboBoxPropertyBinding<RGBMode_e>(*ui.rGBColorOpts_Mode_CmbBox, generated.rgbMode(),
                                                                      manager->rgbModeModel()));
        QComboBox* const channels[] = {ui.rGBColorOpts_RedVariable_CmbBox, ui.rGBColorOpts_GreenVariable_CmbBox,
                                       ui.rGBColorOpts_BlueVariable_CmbBox};
        const boost::shared_ptr<PropertyAbstract<int>> variables[] = {generated.redVar(), generated.greenVar(),
                                                                      generated.blueVar()};
        for (int i = 0; i < 3; ++i)
            bindings.push_back(
                new pb::ComboBoxPropertyBinding<int>(*channels[i], variables[i], manager->enabledVariablesModel(),
                                                     pb::BindingInterface::ModelUpdate_DeferredWhileBusy));
        bindings.push_back(new pb::SpinBoxDoublePropertyBinding(ui.maxValue_doubleSpinBox, generated.rangeMax(),
                                                                new pm::IntensitySpinBoxIncDecCalculator(generated)));
        bindings.push_back(new pb::SpinBoxDoublePropertyBinding(ui.minValue_doubleSpinBox, generated.rangeMin(),
                                                                new pm::IntensitySpinBoxIncDecCalculator(generated)));
    }

    void bindRelevanciesToControls(const ::Ui::RGBColorOpts& ui)
    {
        const std::pair<boost::shared_ptr<const pm::RelevanceInterface>, std::vector<QWidget*>> channels[] = {
            {manager->redVarRelevance(), {ui.rGBColorOpts_RedVariable_CmbBox, ui.rGBColorOpts_RedVariable_Label}},
            {manager->greenVarRelevance(), {ui.rGBColorOpts_GreenVariable_CmbBox, ui.rGBColorOpts_GreenVariable_Label}},
            {manager->blueVarRelevance(), {ui.rGBColorOpts_BlueVariable_CmbBox, ui.rGBColorOpts_BlueVariable_Label}}};
        for (const auto& channel : channels)
            appliers.push_back(new pb::RelevanceApplier(channel.first, channel.second,
                                                        pb::RelevanceApplier::Manifestation_Sensitivity,
                                                        pb::BindingInterface::WidgetUpdateMode_OnIdle));
    }
};

RGBColorOptsDialog* RGBColorOptsDialog::getInstance(QWidget& parent)
{
    return obtain(parent);
}

boost::shared_ptr<const pm::RelevanceInterface> RGBColorOptsDialog::relevance()
{
    return pm::RGBColorOptsPropertiesManager::relevance();
}

RGBColorOptsDialog::RGBColorOptsDialog(QWidget& parent) : QtDialogAbstract(parent, relevance()), m_impl(new Impl(*this))
{
    setHelpAction(new common::LaunchHelpAction("rgb_coloring_options.html", *this));
}

RGBColorOptsDialog::~RGBColorOptsDialog() = default;

void RGBColorOptsDialog::retranslate()
{
    m_impl->ui.retranslateUi(this);
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
