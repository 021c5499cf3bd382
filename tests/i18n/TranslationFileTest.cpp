// The German translation: complete, faithful to the sources' placeholders and
// mnemonics, current with the sources, and built into the library.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTranslator>
#include <QXmlStreamReader>
#include <gtest/gtest.h>
#include <set>
#include <tuple>
#include <vector>
#include "demo/common/Translations.h"

namespace {

struct Message
{
    QString context, source, translation, type;
    bool numerus = false;
    QStringList forms;
    bool operator<(const Message& other) const
    {
        return std::tie(context, source) < std::tie(other.context, other.source);
    }
};

const QString TsFile = QString(ORRERY_SOURCE_DIR) + "/translations/orrery_de.ts";

std::vector<Message> readTs(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    std::vector<Message> messages;
    QString context;
    Message current;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        const auto name = xml.name();
        if (name == QLatin1String("name"))
            context = xml.readElementText();
        else if (name == QLatin1String("message")) {
            current = Message();
            current.context = context;
            current.numerus = xml.attributes().value("numerus") == QLatin1String("yes");
        } else if (name == QLatin1String("source"))
            current.source = xml.readElementText();
        else if (name == QLatin1String("translation")) {
            current.type = xml.attributes().value("type").toString();
            if (!current.numerus) {
                current.translation = xml.readElementText();
                messages.push_back(current);
            }
        } else if (name == QLatin1String("numerusform")) {
            current.forms << xml.readElementText();
            current.translation = current.forms.front();
            if (messages.empty() || messages.back().context != current.context
                || messages.back().source != current.source)
                messages.push_back(current);
            else
                messages.back() = current;
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return messages;
}

QString where(const Message& m)
{
    return m.context + ": \"" + m.source + "\"";
}

QStringList placeholders(const QString& text)
{
    QStringList found;
    QRegularExpressionMatchIterator it = QRegularExpression("%(\\d|n)").globalMatch(text);
    while (it.hasNext())
        found << it.next().captured(0);
    found.sort();
    return found;
}

// A mnemonic is an '&' before a letter or digit; "&&" is a literal ampersand.
int mnemonics(const QString& text)
{
    int count = 0;
    for (int i = 0; i + 1 < text.size(); ++i)
        if (text[i] == '&') {
            if (text[i + 1] == '&')
                ++i;
            else if (text[i + 1].isLetterOrNumber())
                ++count;
        }
    return count;
}

} // namespace

TEST(GermanTranslation, EveryTextIsTranslatedAndKeepsItsPlaceholdersAndMnemonic)
{
    const std::vector<Message> messages = readTs(TsFile);
    ASSERT_GT(messages.size(), 100u);
    QStringList problems;
    for (const Message& m : messages) {
        if (!m.type.isEmpty())
            problems << where(m) + " is " + m.type;
        else if (m.translation.trimmed().isEmpty())
            problems << where(m) + " has no translation";
        for (const QString& form : m.forms)
            if (form.trimmed().isEmpty())
                problems << where(m) + " lacks a plural form";
        const QStringList wanted = placeholders(m.source);
        for (const QString& text : m.numerus ? m.forms : QStringList{m.translation})
            if (!m.translation.isEmpty() && placeholders(text) != wanted)
                problems << where(m) + " changes the placeholders: \"" + text + "\"";
        // Option texts sit in combo boxes, where '&' is shown as it is.
        if (m.context != "OptionTables" && !m.translation.isEmpty() && mnemonics(m.source) != mnemonics(m.translation))
            problems << where(m) + " gains or loses a mnemonic: \"" + m.translation + "\"";
    }
    EXPECT_TRUE(problems.isEmpty()) << problems.join('\n').toStdString();
}

TEST(GermanTranslation, BuiltIntoTheLibraryAsTheFileSays)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(Translations::builtInDirectory() + "/orrery_de.qm"))
        << "the prompts library carries no compiled German translation";
    QStringList stale;
    for (const Message& m : readTs(TsFile)) {
        const QByteArray context = m.context.toUtf8(), source = m.source.toUtf8();
        const QString shown =
            translator.translate(context.constData(), source.constData(), nullptr, m.numerus ? 1 : -1);
        if (shown != m.translation)
            stale << where(m) + " shows \"" + shown + "\"";
    }
    EXPECT_TRUE(stale.isEmpty()) << "the built translation differs from the file:\n" << stale.join('\n').toStdString();
}

// Running lupdate over the sources into a scratch copy must find exactly the
// texts the file holds: a new or changed source text fails here until
// scripts/update-translations.sh has been run and the text translated.
TEST(GermanTranslation, MatchesTheTextsOfTheSources)
{
    QString lupdate;
    for (const QString& candidate : {QString("/usr/lib/qt6/bin/lupdate"), QString("/usr/lib/qt5/bin/lupdate")})
        if (QFile::exists(candidate))
            lupdate = candidate;
    if (lupdate.isEmpty())
        lupdate = QStandardPaths::findExecutable("lupdate");
    if (lupdate.isEmpty())
        GTEST_SKIP() << "lupdate is not installed";

    QTemporaryDir scratch;
    const QString fresh = scratch.filePath("fresh.ts");
    QProcess run;
    run.setWorkingDirectory(ORRERY_SOURCE_DIR);
    run.start(lupdate, {"-silent", "-locations", "none", "-no-obsolete", "-extensions", "cpp,h,ui", "-I", ".",
                        "platform", "host", "core", "framework", "prompts", "plot", "demo", "-ts", fresh});
    ASSERT_TRUE(run.waitForFinished(60000));
    ASSERT_EQ(run.exitCode(), 0) << run.readAllStandardError().toStdString();

    std::set<std::pair<QString, QString>> inSources, inFile;
    for (const Message& m : readTs(fresh))
        inSources.insert({m.context, m.source});
    for (const Message& m : readTs(TsFile))
        inFile.insert({m.context, m.source});
    QStringList missing, unused;
    for (const auto& text : inSources)
        if (!inFile.count(text))
            missing << text.first + ": \"" + text.second + "\"";
    for (const auto& text : inFile)
        if (!inSources.count(text))
            unused << text.first + ": \"" + text.second + "\"";
    EXPECT_TRUE(missing.isEmpty()) << "not in translations/orrery_de.ts:\n" << missing.join('\n').toStdString();
    EXPECT_TRUE(unused.isEmpty()) << "no longer in the sources:\n" << unused.join('\n').toStdString();
}
