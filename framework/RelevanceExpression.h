#pragma once
#include "framework/FrameworkExport.h"
#include <vector>
#include <boost/shared_ptr.hpp>
#include "platform/common/SignalConnectionCollection.h"
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery::sdk::ui::propertymanager {

/// A combination of relevances read left to right, without precedence:
/// RelevanceExpression(a).aand(b).oor(c) is ((a and b) or c). Relays the
/// changes of every term.
class ORRERY_FRAMEWORK_EXPORT RelevanceExpression : public virtual RelevanceInterface
{
public:
    /// Starts with \a first; every term is kept alive by the expression.
    explicit RelevanceExpression(const boost::shared_ptr<const RelevanceInterface>& first);
    ~RelevanceExpression() override;

    /// Combines what is there so far with \a term by "and"; returns the expression for chaining.
    RelevanceExpression& aand(const boost::shared_ptr<const RelevanceInterface>& term);
    /// Combines what is there so far with \a term by "or"; returns the expression for chaining.
    RelevanceExpression& oor(const boost::shared_ptr<const RelevanceInterface>& term);

    bool isRelevant() const override;

private:
    enum Operator_e
    {
        Operator_And,
        Operator_Or
    };
    struct Term
    {
        Operator_e op;
        boost::shared_ptr<const RelevanceInterface> relevance;
    };

    RelevanceExpression& add(Operator_e op, const boost::shared_ptr<const RelevanceInterface>& term);

    std::vector<Term> m_terms;
    SignalConnectionCollection m_relays;
};

} // namespace orrery::sdk::ui::propertymanager
