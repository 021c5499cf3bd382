#pragma once
#include <algorithm>
#include <vector>

namespace qwidgetobservable {

// The listeners of an observable, told in the order they were added.
template <typename Listener>
class ListenerList
{
public:
    void add(Listener* listener) { m_listeners.push_back(listener); }
    void remove(Listener* listener)
    {
        m_listeners.erase(std::remove(m_listeners.begin(), m_listeners.end(), listener), m_listeners.end());
    }

    template <typename Call>
    void tell(Call call) const
    {
        // A copy, so that a listener may unregister itself while being told.
        const std::vector<Listener*> listeners = m_listeners;
        for (Listener* listener : listeners)
            call(*listener);
    }

private:
    std::vector<Listener*> m_listeners;
};

} // namespace qwidgetobservable
