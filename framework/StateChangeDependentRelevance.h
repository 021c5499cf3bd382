#pragma once
#include "framework/FrameworkExport.h"
#include <boost/function.hpp>
#include <boost/signals2/connection.hpp>
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery::sdk::ui::propertymanager {

/// Relevance given by a predicate over the host's state, asked again after every
/// announced change of that state.
class ORRERY_FRAMEWORK_EXPORT StateChangeDependentRelevance : public virtual RelevanceInterface
{
public:
    /// Asks \a predicate, and announces a possible change after each state change of the host.
    explicit StateChangeDependentRelevance(const boost::function<bool()>& predicate);
    ~StateChangeDependentRelevance() override;

    /// The predicate's answer now.
    bool isRelevant() const override;

private:
    boost::function<bool()> m_predicate;
    boost::signals2::scoped_connection m_stateChanges;
};

} // namespace orrery::sdk::ui::propertymanager
