#pragma once
#include "core/CoreExport.h"
#include <functional>
#include <utility>

namespace orrery::sdk::ui::dialogs::propertybindings {

/// Runs an action when the scope is left, by return or by exception.
class ORRERY_CORE_EXPORT ScopedExitAction
{
public:
    /// \a action runs on destruction; an empty one is allowed and does nothing.
    explicit ScopedExitAction(std::function<void()> action) : m_action(std::move(action)) {}
    ScopedExitAction(const ScopedExitAction&) = delete;
    ScopedExitAction& operator=(const ScopedExitAction&) = delete;
    ~ScopedExitAction()
    {
        if (m_action)
            m_action();
    }

    /// Assigns \a value to \a object; bound into exit actions that restore a variable.
    template <typename Object, typename Value>
    static void setObjectValue(Object& object, const Value& value)
    {
        object = value;
    }

    /// Raises the flag now; the returned action lowers it again.
    static std::function<void()> raiseUntilExit(bool& flag)
    {
        flag = true;
        return std::bind(&ScopedExitAction::setObjectValue<bool, bool>, std::ref(flag), false);
    }

private:
    std::function<void()> m_action;
};

} // namespace orrery::sdk::ui::dialogs::propertybindings
