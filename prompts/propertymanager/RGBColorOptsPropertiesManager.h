#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <boost/shared_ptr.hpp>
#include "core/propertybindings/models/PremappedListModel.h"
#include "core/propertymanager/RelevanceInterface.h"
#include "framework/models/EnabledVariablesListModel.h"
#include "platform/kernel/OrrTypes.h"

namespace orrery::sdk::integration {
class StateChangeEventInterface;
}

namespace orrery::sdk::ui::propertymanager {

class RGBColorOptsPropertiesGenerated;

/// What the RGB colouring options offer beside the style values: the mode and
/// variable lists, which channel variables can be edited in the current mode,
/// and channel variables kept valid when the data change.
class ORRERY_PROMPTS_EXPORT RGBColorOptsPropertiesManager
{
public:
    /// The RGB modes offered.
    typedef dialogs::propertybindings::models::PremappedListModel<RGBMode_e> RGBModeModel;
    /// The variables enabled in the current frame.
    typedef dialogs::propertybindings::models::EnabledVariablesListModel EnabledVariablesModel;

    /// Works on \a generated, which it keeps alive.
    explicit RGBColorOptsPropertiesManager(const boost::shared_ptr<const RGBColorOptsPropertiesGenerated>& generated);
    ~RGBColorOptsPropertiesManager();

    /// The modes, for the mode combo box.
    boost::shared_ptr<RGBModeModel> rgbModeModel() const;
    /// The variables, for the channel combo boxes.
    boost::shared_ptr<EnabledVariablesModel> enabledVariablesModel() const;
    /// A channel variable cannot be edited while the mode calculates the channel.
    boost::shared_ptr<const RelevanceInterface> redVarRelevance() const;
    /// As redVarRelevance(), for the green channel.
    boost::shared_ptr<const RelevanceInterface> greenVarRelevance() const;
    /// As redVarRelevance(), for the blue channel.
    boost::shared_ptr<const RelevanceInterface> blueVarRelevance() const;

    /// Makes the three channel relevances anew; the constructor has done so already.
    void installRelevancies();
    /// Replaces the channel variables by the host's candidates when they are
    /// not acceptable channel variables any more.
    void checkAndAssignRGBVars();
    /// Whether a state change can invalidate the channel variables.
    bool stateChangePredicate(const integration::StateChangeEventInterface& event) const;

    /// RGB colouring applies to field plots only.
    static boost::shared_ptr<const RelevanceInterface> relevance();

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace orrery::sdk::ui::propertymanager
