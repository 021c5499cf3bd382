#pragma once
// Puts the application in a language, as `orrery-demo --lang` does, for as
// long as it lives; the texts and numbers are English again afterwards.
#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#include "demo/common/Translations.h"

class InLanguage
{
public:
    explicit InLanguage(const char* language) { Translations::install(*QCoreApplication::instance(), language); }
    ~InLanguage()
    {
        for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>())
            delete translator;
        QLocale::setDefault(m_locale);
    }
    InLanguage(const InLanguage&) = delete;
    InLanguage& operator=(const InLanguage&) = delete;

private:
    QLocale m_locale;
};
