#pragma once
#include "core/propertybindings/models/ListModelInterface.h"

namespace orrery::sdk::ui::dialogs::propertybindings::models {

/// Defaults for the optional operations: read-only, no header rows, linear lookup.
template <typename T>
class ListModelAbstract : public virtual ListModelInterface<T>
{
public:
    /// The display text.
    std::string getStrForEdit(int row) const override { return this->getStr(row); }
    /// Ignored: the rows are read-only.
    void set(T, int) override {}
    /// Ignored: the rows are read-only.
    void setEditedItem(const std::string&, int) const override {}
    /// False.
    bool isEditable() const override { return false; }
    /// False: every row is a choice.
    bool isHeader(int) const override { return false; }
    /// The first row holding \a value, or -1.
    int indexOf(const T& value) const override
    {
        for (int row = 0; row < this->size(); ++row) {
            if (this->get(row) == value)
                return row;
        }
        return -1;
    }
};

} // namespace orrery::sdk::ui::dialogs::propertybindings::models
