// Choosing the language: what works shows German, anything else leaves the
// English texts with one warning, and nothing crashes.
#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include "demo/common/Translations.h"

namespace {

QString red()
{
    return QCoreApplication::translate("ColorChooser", "Red");
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray builtInGerman()
{
    QFile file(Translations::builtInDirectory() + "/orrery_de.qm");
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

} // namespace

TEST(LanguageChoice, GermanTranslatesTheLibraryAndQtsOwnTexts)
{
    const QStringList problems = Translations::install(*QCoreApplication::instance(), "de_DE.UTF-8");
    EXPECT_TRUE(problems.isEmpty()) << problems.join('\n').toStdString();
    EXPECT_EQ(red(), "Rot");
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Abbrechen");
}

TEST(LanguageChoice, EnglishNeedsNoTranslation)
{
    EXPECT_TRUE(Translations::install(*QCoreApplication::instance(), "en").isEmpty());
    EXPECT_EQ(red(), "Red");
}

TEST(LanguageChoice, WhatCannotBeLoadedLeavesEnglishWithOneWarning)
{
    QTemporaryDir dir;
    const QByteArray german = builtInGerman();
    ASSERT_GT(german.size(), 64);
    write(dir.filePath("orrery_de.qm"), german.left(german.size() / 2));            // cut short
    write(dir.filePath("orrery_fr.qm"), QByteArray(4096, '\x5a'));                  // not a translation at all
    write(dir.filePath("orrery_it.qm"), german.left(16) + QByteArray(200, '\xff')); // right header, garbage body
    write(dir.filePath("orrery_es.qm"), QByteArray());                              // empty
    for (const char* language : {"de", "fr", "it", "es", "pt", "xx-YY", "../de"}) {
        SCOPED_TRACE(language);
        const QStringList problems = Translations::install(*QCoreApplication::instance(), language, dir.path());
        ASSERT_EQ(problems.size(), 1);
        EXPECT_TRUE(problems.front().contains(language)) << problems.front().toStdString();
        EXPECT_EQ(red(), "Red");
    }
}
