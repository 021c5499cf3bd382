#include "platform/common/SignalConnectionCollection.h"

namespace orrery {

SignalConnectionCollection::ConnectionBlocker::ConnectionBlocker(const SignalConnectionCollection& collection)
{
    m_blocks.reserve(collection.m_connections.size());
    for (const boost::signals2::connection& c : collection.m_connections)
        m_blocks.emplace_back(c);
}

void SignalConnectionCollection::ConnectionBlocker::unblock()
{
    for (boost::signals2::shared_connection_block& b : m_blocks)
        b.unblock();
}

SignalConnectionCollection::~SignalConnectionCollection()
{
    clear();
}

void SignalConnectionCollection::add(const boost::signals2::connection& connection)
{
    m_connections.push_back(connection);
}

void SignalConnectionCollection::clear()
{
    for (boost::signals2::connection& c : m_connections)
        c.disconnect();
    m_connections.clear();
}

} // namespace orrery
