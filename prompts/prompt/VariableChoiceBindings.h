#pragma once
#include "prompts/PromptsExport.h"
#include <boost/ptr_container/ptr_vector.hpp>
#include <boost/shared_ptr.hpp>
#include "core/property/PropertyAbstract.h"
#include "core/propertybindings/BindingInterface.h"
#include "framework/models/EnabledVariablesListModel.h"
#include "platform/common/SignalConnectionCollection.h"

class QComboBox;

namespace orrery {
namespace dialogs {
namespace prompt {

/// The three variable drop-down lists of the variable dialogs, each bound to
/// its property over one shared list of enabled variables.
///
/// A property always holds the variable its list shows: a value that is not
/// listed (never was, or vanished when the data set or the frame changed) is
/// replaced by the first listed variable, or by 0 when nothing is listed, so
/// that no dangling variable number is ever written.
class ORRERY_PROMPTS_EXPORT VariableChoiceBindings
{
public:
    /// A property holding a variable number.
    typedef boost::shared_ptr<PropertyAbstract<int>> PropertyPtr;
    /// The enabled variables, shared by the three lists.
    typedef boost::shared_ptr<sdk::ui::dialogs::propertybindings::models::EnabledVariablesListModel> ModelPtr;

    /// Binds each of \a combos (which must outlive the bindings) to the property at the
    /// same place in \a properties, over \a variables, and brings every property to a
    /// listed variable at once.
    VariableChoiceBindings(const ModelPtr& variables, QComboBox* const (&combos)[3],
                           const PropertyPtr (&properties)[3]);
    ~VariableChoiceBindings();

    /// Brings every property to a listed variable (see above).
    void keepChoicesListed();

private:
    ModelPtr m_variables;
    PropertyPtr m_properties[3];
    boost::ptr_vector<sdk::ui::dialogs::propertybindings::BindingInterface> m_bindings;
    SignalConnectionCollection m_connections;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
