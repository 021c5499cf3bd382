#pragma once
#include "platform/PlatformExport.h"
#include <vector>
#include <boost/signals2/connection.hpp>
#include <boost/signals2/shared_connection_block.hpp>

namespace orrery {

// Owns a group of signal connections and disconnects them all when cleared or destroyed.
class ORRERY_PLATFORM_EXPORT SignalConnectionCollection
{
public:
    // Blocks every connection of a collection for its own lifetime.
    class ConnectionBlocker
    {
    public:
        explicit ConnectionBlocker(const SignalConnectionCollection& collection);
        void unblock();

    private:
        std::vector<boost::signals2::shared_connection_block> m_blocks;
    };

    SignalConnectionCollection() = default;
    SignalConnectionCollection(const SignalConnectionCollection&) = delete;
    SignalConnectionCollection& operator=(const SignalConnectionCollection&) = delete;
    ~SignalConnectionCollection();

    void add(const boost::signals2::connection& connection);
    void clear();
    bool empty() const { return m_connections.empty(); }
    size_t size() const { return m_connections.size(); }

private:
    std::vector<boost::signals2::connection> m_connections;
};

} // namespace orrery
