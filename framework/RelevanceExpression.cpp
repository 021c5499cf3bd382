#include "framework/RelevanceExpression.h"
#include "platform/common/RequireArgument.h"

namespace orrery::sdk::ui::propertymanager {

RelevanceExpression::RelevanceExpression(const boost::shared_ptr<const RelevanceInterface>& first)
{
    add(Operator_Or, first);
}

RelevanceExpression::~RelevanceExpression() = default;

RelevanceExpression& RelevanceExpression::aand(const boost::shared_ptr<const RelevanceInterface>& term)
{
    return add(Operator_And, term);
}

RelevanceExpression& RelevanceExpression::oor(const boost::shared_ptr<const RelevanceInterface>& term)
{
    return add(Operator_Or, term);
}

RelevanceExpression& RelevanceExpression::add(Operator_e op, const boost::shared_ptr<const RelevanceInterface>& term)
{
    requireNonNull(term, "A term of a relevance expression");
    m_terms.push_back(Term{op, term});
    m_relays.add(term->connectToRelevanceChangedSignal([this] { emitRelevanceChanged(); }));
    return *this;
}

// The first term is stored as "false or first", so every term is read alike.
bool RelevanceExpression::isRelevant() const
{
    bool relevant = false;
    for (const Term& term : m_terms) {
        if (term.op == Operator_And)
            relevant = relevant && term.relevance->isRelevant();
        else
            relevant = relevant || term.relevance->isRelevant();
    }
    return relevant;
}

} // namespace orrery::sdk::ui::propertymanager
