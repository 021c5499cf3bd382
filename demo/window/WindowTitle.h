#pragma once
#include <QObject>
#include <boost/signals2/connection.hpp>

class QWidget;

// Names the data file in a window's title and marks the window modified
// ("[*]") from the first change after the file was loaded or the session saved.
// It follows the journal, so that a replayed session names its file too.
class WindowTitle : public QObject
{
    Q_OBJECT
public:
    explicit WindowTitle(QWidget& window);

    // The session as it stands was saved or opened.
    void markSaved();

private:
    void follow(const std::string& line);
    void show(const QString& name);

    QWidget& m_window;
    boost::signals2::scoped_connection m_lines;
};
