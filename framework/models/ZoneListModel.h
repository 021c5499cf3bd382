#pragma once
#include "framework/FrameworkExport.h"
#include <boost/function.hpp>
#include "framework/models/DataSetListModelAbstract.h"
#include "platform/toolbox/Set.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

/// The zones that a source function gives for the current frame, in ascending
/// order; a row's value is the zone number, its text the zone's name (preceded
/// by the number when numbered).
class ORRERY_FRAMEWORK_EXPORT ZoneListModel : public DataSetListModelAbstract
{
public:
    /// Gives the zone numbers to list for the frame with the given unique ID.
    typedef boost::function<toolbox::Set(long frameUniqueID)> ZoneSource;

    /// Lists the zones \a zones gives; \a numbered puts each zone's number before its name.
    ZoneListModel(const ZoneSource& zones, bool numbered);

private:
    std::vector<int> fetchNumbers() const override;
    std::string fetchText(int zone) const override;

    ZoneSource m_zones;
    const bool m_numbered;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
