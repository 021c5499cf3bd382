#pragma once
#include <QStringList>
#include <boost/signals2/connection.hpp>

// The style paths written while a dialog is open, in order, each once.
class StyleWrites
{
public:
    void start();
    // "path = value" for each path written, or "no style written".
    QString report();

private:
    static QString valueAt(const QString& path);

    QStringList m_paths;
    boost::signals2::scoped_connection m_connection;
};
