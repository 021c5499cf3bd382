#pragma once
#include "framework/StateChangeDependentRelevance.h"

namespace orrery::sdk::ui::propertymanager {

// Relevant while the host holds a data set.
class DataSetExistsRelevance : public StateChangeDependentRelevance
{
public:
    DataSetExistsRelevance();
};

} // namespace orrery::sdk::ui::propertymanager
