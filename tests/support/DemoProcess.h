#pragma once
// The demo as its own process (ORRERY_DEMO), with its data and settings in a
// scratch home, for the tests that need a whole run: a crash, a command line.
#include <string>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace testsupport {

class DemoProcess
{
public:
    QString at(const QString& name) const { return QDir(home.path()).filePath(name); }
    QString autosave() const { return at("data/orrery-demo/autosave.orrery-journal"); }

    QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("HOME", home.path());
        environment.insert("XDG_DATA_HOME", at("data"));
        environment.insert("XDG_CONFIG_HOME", at("config"));
        environment.insert("ORRERY_SETTINGS_DIR", at("config"));
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        return environment;
    }

    void start(QProcess& demo, const QStringList& arguments,
               const QProcessEnvironment& environment = QProcessEnvironment())
    {
        demo.setProcessEnvironment(environment.isEmpty() ? this->environment() : environment);
        demo.start(ORRERY_DEMO, QStringList{"--lang", "en"} + arguments);
        ASSERT_TRUE(demo.waitForStarted());
    }

    // Runs the demo to its end; its exit code, and what it said on stderr
    // (reported as a failure when it failed and said is not asked for).
    int run(const QStringList& arguments, std::string* said = nullptr,
            const QProcessEnvironment& environment = QProcessEnvironment())
    {
        QProcess demo;
        start(demo, arguments, environment);
        EXPECT_TRUE(demo.waitForFinished(40000)) << "still running: " << arguments.join(" ").toStdString();
        const std::string output = demo.readAllStandardError().toStdString();
        if (said)
            *said = output;
        if (demo.exitCode() != 0 && !said)
            ADD_FAILURE() << output;
        return demo.exitCode();
    }

    QTemporaryDir home;
};

} // namespace testsupport
