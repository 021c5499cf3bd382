#pragma once
#include "framework/FrameworkExport.h"
#include <boost/function.hpp>
#include <boost/signals2/connection.hpp>

#include "platform/common/OnIdleActionPerformerSingleShot.h"
#include "platform/sdk/StateChangeEventInterface.h"

namespace orrery::sdk::ui::dialogs::propertybindings {

/// Runs an action once on idle after one or more host state changes that pass a
/// predicate.
class ORRERY_FRAMEWORK_EXPORT OnIdleAfterStateChangeActionPerformer
{
public:
    /// Picks the state changes that matter.
    typedef boost::function<bool(const integration::StateChangeEventInterface&)> Predicate;

    /// Runs \a action on idle after state changes that \a predicate accepts, until destroyed.
    OnIdleAfterStateChangeActionPerformer(const Predicate& predicate, const boost::function<void()>& action);
    ~OnIdleAfterStateChangeActionPerformer();

private:
    void stateChanged(const integration::StateChangeEventInterface& event);

    Predicate m_predicate;
    common::OnIdleActionPerformerSingleShot m_performer;
    boost::signals2::scoped_connection m_stateChanges;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
