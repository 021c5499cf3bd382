#include "prompts/propertymanager/RGBColorOptsPropertiesManager.h"

#include <boost/make_shared.hpp>
#include "core/propertybindings/intern/RejectedValueMessage.h"
#include "core/propertybindings/models/OptionTables.h"
#include "core/propertymanager/PropertyDependentRelevance.h"
#include "framework/FieldPlotTypeDependentRelevance.h"
#include "framework/InvertingRelevance.h"
#include "framework/OnIdleAfterStateChangeActionPerformer.h"
#include "platform/sdk/DataSetQueries.h"
#include "platform/sdk/StateChangeEventInterface.h"
#include "framework/SharedRelevance.h"
#include "prompts/propertymanager/RGBColorOptsPropertiesGenerated.h"
#include "platform/sdk/HostAnswers.h"

namespace orrery::sdk::ui::propertymanager {

namespace pb = dialogs::propertybindings;

namespace {
// The data and frame changes that can invalidate chosen variables: codes
// 0-3, 5, 6, 8-10 and 44.
const unsigned long long VariableInvalidatingChanges = 0x10000000076FULL;
const int LastInvalidatingChange = 44;
} // namespace

struct RGBColorOptsPropertiesManager::Impl
{
    explicit Impl(const boost::shared_ptr<const RGBColorOptsPropertiesGenerated>& generated)
        : generated(generated), rgbModeModel(boost::make_shared<RGBModeModel>(pb::models::rgbMode)),
          enabledVariablesModel(boost::make_shared<EnabledVariablesModel>())
    {}

    boost::shared_ptr<const RelevanceInterface> calculatedChannelIsNot(RGBMode_e calculatingMode) const
    {
        return boost::make_shared<InvertingRelevance>(
            boost::make_shared<PropertyDependentRelevance<RGBMode_e>>(generated->rgbMode(), calculatingMode));
    }

    boost::shared_ptr<const RGBColorOptsPropertiesGenerated> generated;
    boost::shared_ptr<const RelevanceInterface> redVarRelevance;
    boost::shared_ptr<const RelevanceInterface> greenVarRelevance;
    boost::shared_ptr<const RelevanceInterface> blueVarRelevance;
    boost::shared_ptr<RGBModeModel> rgbModeModel;
    boost::shared_ptr<EnabledVariablesModel> enabledVariablesModel;
    std::unique_ptr<pb::OnIdleAfterStateChangeActionPerformer> reassignOnIdle;
};

RGBColorOptsPropertiesManager::RGBColorOptsPropertiesManager(
    const boost::shared_ptr<const RGBColorOptsPropertiesGenerated>& generated)
    : m_impl(new Impl(generated))
{
    m_impl->reassignOnIdle.reset(new pb::OnIdleAfterStateChangeActionPerformer(
        [this](const integration::StateChangeEventInterface& event) { return stateChangePredicate(event); },
        [this] { checkAndAssignRGBVars(); }));
    installRelevancies();
    checkAndAssignRGBVars();
}

RGBColorOptsPropertiesManager::~RGBColorOptsPropertiesManager() = default;

boost::shared_ptr<RGBColorOptsPropertiesManager::RGBModeModel> RGBColorOptsPropertiesManager::rgbModeModel() const
{
    return m_impl->rgbModeModel;
}

boost::shared_ptr<RGBColorOptsPropertiesManager::EnabledVariablesModel>
RGBColorOptsPropertiesManager::enabledVariablesModel() const
{
    return m_impl->enabledVariablesModel;
}

boost::shared_ptr<const RelevanceInterface> RGBColorOptsPropertiesManager::redVarRelevance() const
{
    return m_impl->redVarRelevance;
}

boost::shared_ptr<const RelevanceInterface> RGBColorOptsPropertiesManager::greenVarRelevance() const
{
    return m_impl->greenVarRelevance;
}

boost::shared_ptr<const RelevanceInterface> RGBColorOptsPropertiesManager::blueVarRelevance() const
{
    return m_impl->blueVarRelevance;
}

void RGBColorOptsPropertiesManager::installRelevancies()
{
    m_impl->redVarRelevance = m_impl->calculatedChannelIsNot(RGBMode_SpecifyGB);
    m_impl->greenVarRelevance = m_impl->calculatedChannelIsNot(RGBMode_SpecifyRB);
    m_impl->blueVarRelevance = m_impl->calculatedChannelIsNot(RGBMode_SpecifyRG);
}

void RGBColorOptsPropertiesManager::checkAndAssignRGBVars()
{
    const RGBColorOptsPropertiesGenerated& generated = *m_impl->generated;
    const int blue = generated.blueVar()->getValue();
    const int green = generated.greenVar()->getValue();
    const int red = generated.redVar()->getValue();
    if (checkRGBChannelVars(red, green, blue))
        return;
    int r = 0, g = 0, b = 0;
    // The candidates are taken even when the host found none: channels it
    // could not fill become unassigned rather than keep invalid variables.
    getValidRGBVarCandidates(sdk::HostAnswers::plotType(), r, g, b);
    try {
        generated.redVar()->setValue(r);
        generated.greenVar()->setValue(g);
        generated.blueVar()->setValue(b);
    } catch (const InvalidPropertyValueException& refusal) {
        // This runs on idle and while the dialog is built: a refusal is told,
        // never thrown into the event loop.
        pb::intern::showRejectedValueMessage(refusal);
    }
}

bool RGBColorOptsPropertiesManager::stateChangePredicate(const integration::StateChangeEventInterface& event) const
{
    const int code = event.code();
    if (code < 0 || code > LastInvalidatingChange)
        return false;
    return (VariableInvalidatingChanges >> code) & 1ULL;
}

boost::shared_ptr<const RelevanceInterface> RGBColorOptsPropertiesManager::relevance()
{
    return orrery::dialogs::prompt::sharedRelevance<RGBColorOptsPropertiesManager, FieldPlotTypeDependentRelevance>();
}

} // namespace orrery::sdk::ui::propertymanager
