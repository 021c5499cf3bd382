#include "host/kernel/MessageBoxPresenter.h"
#include <iostream>
#include <QApplication>
#include <QMessageBox>
#include "platform/kernel/OrrTypes.h"

namespace orrery {
namespace kernel {

namespace {

bool interactive()
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance()))
        return false;
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

} // namespace

int MessageBoxPresenter::show(const std::string& text, int type) const
{
    if (m_handler)
        return m_handler(text, type);
    if (!interactive()) {
        std::cerr << "message: " << text << std::endl;
        return 1;
    }
    const QString message = QString::fromStdString(text);
    const QString title = QApplication::applicationDisplayName();
    switch (type) {
    case MessageBoxType_Question: return QMessageBox::question(nullptr, title, message) == QMessageBox::Yes ? 1 : 0;
    case MessageBoxType_Warning: QMessageBox::warning(nullptr, title, message); return 1;
    case MessageBoxType_Information: QMessageBox::information(nullptr, title, message); return 1;
    default: QMessageBox::critical(nullptr, title, message); return 1;
    }
}

} // namespace kernel
} // namespace orrery
