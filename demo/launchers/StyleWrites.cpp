#include "demo/launchers/StyleWrites.h"
#include "demo/common/Translations.h"

#include <sstream>
#include <variant>
#include "host/kernel/KernelDriver.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/StateChangeEventObservable.h"

void StyleWrites::start()
{
    m_paths.clear();
    m_connection = orrery::sdk::integration::StateChangeEventObservable::getInstance().signal().connect(
        [this](const orrery::sdk::integration::StateChangeEventInterface& event) {
            const QString path = QString::fromStdString(event.stylePath().join("/"));
            if (event.code() == StateChange_Style && !m_paths.contains(path))
                m_paths << path;
        });
}

QString StyleWrites::report()
{
    m_connection.disconnect();
    QStringList lines;
    for (const QString& path : m_paths)
        lines << QString("%1 = %2").arg(path, valueAt(path));
    return lines.isEmpty() ? Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "no style written"))
                           : Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "wrote %1")).arg(lines.join(", "));
}

QString StyleWrites::valueAt(const QString& path)
{
    orrery::toolbox::StringList names;
    for (const QString& name : path.split('/'))
        names.append(name.toStdString());
    try {
        return std::visit(
            [](const auto& value) {
                std::ostringstream text;
                text << value;
                return QString::fromStdString(text.str());
            },
            orrery::kernel::KernelDriver::styleValue(names));
    } catch (const std::exception&) {
        return "?";
    }
}
