#pragma once
#include <functional>
#include <QObject>

// Opens the local files dropped on a widget, one after another, as File > Open
// would.
class FileDrops : public QObject
{
    Q_OBJECT
public:
    FileDrops(QWidget& target, std::function<void(const QString&)> open);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void(const QString&)> m_open;
};
