#pragma once
#include <string>
#include <QString>
#include <QStringList>

class QCoreApplication;

// Puts the application in the user's language: the library's and the demo's
// texts from the translations built into the prompts library, Qt's own
// (standard buttons, context menus) from Qt's translations directory.
class Translations
{
public:
    // Where the built-in translations live.
    static const QString& builtInDirectory();

    // language: a code such as "de" or "de_AT"; empty follows the system
    // locale. English needs no translation. Anything that cannot be loaded
    // leaves the untranslated texts; each problem is one line in the result.
    static QStringList install(QCoreApplication& app, const QString& language,
                               const QString& directory = builtInDirectory());

    // A demo text (context "DialogCatalog") in the user's language, as the
    // Latin-1 bytes the dialogs take from their host; Latin-1 holds every
    // letter of the demo's translations.
    static std::string forDialog(const char* text);
    // The same as text for the screen and the log.
    static QString text(const char* text);
};
