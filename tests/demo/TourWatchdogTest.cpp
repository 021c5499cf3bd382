#include <chrono>
#include <future>
#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QThread>
#include <gmock/gmock.h>
#include "demo/tour/TourWatchdog.h"

using namespace std::chrono_literals;
using testing::HasSubstr;

namespace {

TEST(TourWatchdog, AModalDialogNobodyClosesIsReportedWithTheStepAndTheDialog)
{
    QMessageBox box(QMessageBox::Question, "Nobody answers", "Waiting for ever?", QMessageBox::Ok);
    std::promise<std::string> reported;
    TourWatchdog watchdog(300ms, [&](const std::string& report) {
        reported.set_value(report);
        // What the default would end: here the dialog is closed instead.
        QMetaObject::invokeMethod(&box, "reject", Qt::QueuedConnection);
    });
    watchdog.at("Choose Loader...: closing it");
    box.exec();
    std::future<std::string> report = reported.get_future();
    ASSERT_EQ(report.wait_for(0s), std::future_status::ready) << "the dialog was closed by the watchdog alone";
    const std::string text = report.get();
    EXPECT_THAT(text, HasSubstr("no progress for 0.3 s at: Choose Loader...: closing it"));
    EXPECT_THAT(text, HasSubstr("modal: QMessageBox \"Nobody answers\""));
}

TEST(TourWatchdog, StepsThatMoveOnKeepItQuiet)
{
    bool fired = false;
    {
        TourWatchdog watchdog(200ms, [&](const std::string&) { fired = true; });
        QElapsedTimer clock;
        clock.start();
        for (int step = 0; clock.elapsed() < 700; ++step) {
            watchdog.at(QString("step %1").arg(step));
            QApplication::processEvents();
            QThread::msleep(20);
        }
    }
    EXPECT_FALSE(fired);
}

} // namespace
