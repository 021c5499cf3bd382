#include <QFileInfo>
#include <gmock/gmock.h>
#include "demo/window/CommandLine.h"
#include "tests/support/DemoProcess.h"
#include "tests/support/TestSupport.h"

using testing::HasSubstr;

namespace {

CommandLine::Outcome parsed(const QStringList& arguments, QString* problem = nullptr)
{
    CommandLine options;
    const CommandLine::Outcome outcome = options.parse(QStringList{"orrery-demo"} + arguments);
    if (problem)
        *problem = options.problem();
    return outcome;
}

TEST(CommandLine, PartsThatCannotAllHappenAreRefusedNamingBoth)
{
    const QStringList refused[] = {{"--tour", "t", "--export", "p.svg"}, {"--tour", "t", "--save-session", "s"},
                                   {"--tour", "t", "--recover"},         {"--stdin", "--export", "p.svg"},
                                   {"--stdin", "--save-session", "s"},   {"--stdin", "--tour", "t"}};
    for (const QStringList& arguments : refused) {
        QString problem;
        EXPECT_EQ(parsed(arguments, &problem), CommandLine::Outcome::Refused) << arguments.join(" ").toStdString();
        EXPECT_THAT(problem.toStdString(), HasSubstr(arguments[0].toStdString()));
        EXPECT_THAT(problem.toStdString(),
                    HasSubstr((arguments.size() == 3 ? arguments[1] : arguments[2]).toStdString()));
    }
    QString problem;
    EXPECT_EQ(parsed({"--dpi", "200"}, &problem), CommandLine::Outcome::Refused) << "nothing to give the dots to";
    EXPECT_EQ(parsed({"--size", "400x300"}), CommandLine::Outcome::Refused) << "nothing to give the size to";
    for (const char* size : {"400", "400x", "x300", "99x300", "400x-3", "axb", "20000x300"})
        EXPECT_EQ(parsed({"--export", "p.png", "--size", size, "--dpi", "200"}), CommandLine::Outcome::Refused) << size;
    CommandLine options;
    ASSERT_EQ(options.parse({"orrery-demo", "--export", "p.png", "--size", "1024x200"}), CommandLine::Outcome::Run);
    EXPECT_EQ(options.plotSize, QSize(1024, 200));
    EXPECT_EQ(parsed({"--plot-type", "4"}), CommandLine::Outcome::Refused);
    EXPECT_EQ(parsed({"a.csv", "b.csv"}), CommandLine::Outcome::Refused);
    EXPECT_EQ(parsed({"--no-such-option"}), CommandLine::Outcome::Refused);

    for (const QStringList& arguments : {QStringList{"--recover", "--export", "p.svg", "--dpi", "200"},
                                         QStringList{"d.csv", "--replay", "s", "--save-session", "o", "--export", "p"},
                                         QStringList{"d.csv", "--replay", "s", "--tour", "t", "--plot-type", "3"},
                                         QStringList{"--recover", "--stdin", "--replay-changed"}})
        EXPECT_EQ(parsed(arguments), CommandLine::Outcome::Run) << arguments.join(" ").toStdString();
}

class DemoRun : public testsupport::SampleKernelTest, public testsupport::DemoProcess
{};

TEST_F(DemoRun, HelpAndVersionNeedNoDisplayAndARefusalEndsWithStatusTwo)
{
    QProcessEnvironment withoutDisplay = environment();
    for (const char* variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        withoutDisplay.remove(variable);
    for (const char* option : {"--help", "--version"}) {
        QProcess demo;
        start(demo, {option}, withoutDisplay);
        ASSERT_TRUE(demo.waitForFinished(20000));
        EXPECT_EQ(demo.exitStatus(), QProcess::NormalExit) << option;
        EXPECT_EQ(demo.exitCode(), 0) << option << demo.readAllStandardError().toStdString();
        EXPECT_THAT(demo.readAllStandardOutput().toStdString(),
                    HasSubstr(std::string(option) == "--help" ? "Order: --recover, FILE" : "orrery-demo "));
    }
    std::string said;
    EXPECT_EQ(run({"--tour", at("tour"), "--export", at("plot.png")}, &said, withoutDisplay), 2);
    EXPECT_THAT(said, HasSubstr("--tour cannot go with --export"));
    EXPECT_FALSE(QFileInfo::exists(at("plot.png")) || QFileInfo::exists(at("tour")));
}

TEST_F(DemoRun, ASettingItCannotUseIsSaidAndTheDefaultTakesItsPlace)
{
    ASSERT_TRUE(QDir().mkpath(at("config")));
    QFile settings(at("config/settings.ini"));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("[General]\nUndoStepLimit=1e12\n");
    settings.close();
    std::string said;
    EXPECT_EQ(run({"--save-session", at("s.orrery-journal")}, &said), 0);
    EXPECT_THAT(said, HasSubstr("The setting UndoStepLimit = \"1e12\" is not a whole number from 1 to 1000000; Undo "
                                "keeps 1000 steps."));
}

} // namespace
