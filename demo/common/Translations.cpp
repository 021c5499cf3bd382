#include "demo/common/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

namespace {

QString qtTranslationsPath()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

// "de", "de_AT", "de-AT", "de_DE.UTF-8" and "de_DE@euro" all name German; the
// region is not used yet. Anything else names no language.
QString languageOf(const QString& code)
{
    static const QRegularExpression pattern("^([A-Za-z]{2,3})([_-][A-Za-z0-9]+)?(\\.[A-Za-z0-9_-]+)?(@\\w+)?$");
    const QRegularExpressionMatch match = pattern.match(code);
    return match.hasMatch() ? match.captured(1).toLower() : QString();
}

} // namespace

const QString& Translations::builtInDirectory()
{
    static const QString directory(":/translations");
    return directory;
}

QStringList Translations::install(QCoreApplication& app, const QString& language, const QString& directory)
{
    const bool followSystem = language.isEmpty();
    // The system's "C" or "POSIX" locale is English.
    const QString wanted = languageOf(followSystem ? QLocale::system().name() : language);
    if (wanted.isEmpty() && !followSystem)
        return {QString("unknown language \"%1\"; using English").arg(language)};
    // Numbers follow the language chosen (a decimal comma in German); the system's locale otherwise.
    if (!followSystem)
        QLocale::setDefault(QLocale(wanted));
    if (wanted.isEmpty() || wanted == "en")
        return {};

    QStringList problems;
    auto* own = new QTranslator(&app);
    const QString file = directory + "/orrery_" + wanted + ".qm";
    if (!own->load(file)) {
        delete own;
        // A system locale we have no translation for is normal: stay quiet.
        if (!followSystem)
            problems << QString("no usable translation for language \"%1\" (%2); using English").arg(language, file);
        return problems;
    }
    QCoreApplication::installTranslator(own);

    auto* qt = new QTranslator(&app);
    if (qt->load("qtbase_" + wanted, qtTranslationsPath()))
        QCoreApplication::installTranslator(qt);
    else {
        delete qt;
        problems << QString("Qt's own translation qtbase_%1.qm is not installed in %2; standard buttons stay English")
                        .arg(wanted, qtTranslationsPath());
    }
    return problems;
}

std::string Translations::forDialog(const char* text)
{
    return Translations::text(text).toLatin1().toStdString();
}

QString Translations::text(const char* text)
{
    return QCoreApplication::translate("DialogCatalog", text);
}
