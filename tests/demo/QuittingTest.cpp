#include <functional>
#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>
#include <gmock/gmock.h>
#include "demo/window/MainWindow.h"
#include "demo/session/Session.h"
#include "demo/session/SessionAutosave.h"
#include "tests/support/TestSupport.h"

namespace {

// Answers each modal dialog as a user would, once it is on screen: polling for
// it means an answer never comes before its question.
class ModalAnswers
{
public:
    explicit ModalAnswers(std::function<void(QWidget&)> answer) : m_answer(std::move(answer))
    {
        QObject::connect(&m_poll, &QTimer::timeout, [this] {
            QWidget* modal = QApplication::activeModalWidget();
            if (!modal || !modal->isVisible() || modal == m_last)
                return;
            m_last = modal;
            asked << modal->metaObject()->className();
            m_answer(*modal);
        });
        m_poll.start(5);
    }
    QStringList asked;

private:
    std::function<void(QWidget&)> m_answer;
    QTimer m_poll;
    QWidget* m_last = nullptr;
};

void click(QWidget& modal, QMessageBox::StandardButton button)
{
    if (auto* box = qobject_cast<QMessageBox*>(&modal))
        box->button(button)->click();
    else if (auto* dialog = qobject_cast<QDialog*>(&modal))
        dialog->reject(); // a file dialog: the name is not given
}

class Quitting : public testsupport::SampleKernelTest
{
protected:
    void SetUp() override
    {
        SampleKernelTest::SetUp();
        auto autosave = std::make_unique<SessionAutosave>(folder.path());
        QString error;
        ASSERT_TRUE(autosave->lock(error) && autosave->start(error)) << error.toStdString();
        made = std::make_unique<MainWindow>();
        window().adoptAutosave(std::move(autosave));
        window().show();
    }
    MainWindow& window() { return *made; }
    void change() { window().findChild<QAction*>("viewPlotType3")->trigger(); }
    bool autosaveKept() const { return QFile::exists(QDir(folder.path()).filePath("autosave.orrery-journal")); }

    QTemporaryDir folder;
    std::unique_ptr<MainWindow> made;
};

TEST_F(Quitting, WithoutChangesTheWindowClosesUnaskedAndTheAutosaveGoes)
{
    ModalAnswers answers([](QWidget& modal) { click(modal, QMessageBox::Cancel); });
    EXPECT_TRUE(window().close());
    EXPECT_TRUE(answers.asked.isEmpty()) << answers.asked.join(" ").toStdString();
    EXPECT_FALSE(autosaveKept());
}

TEST_F(Quitting, CancelKeepsTheWindowAndItsAutosaveDiscardClosesIt)
{
    change();
    ASSERT_TRUE(window().isWindowModified());
    {
        ModalAnswers answers([](QWidget& modal) { click(modal, QMessageBox::Cancel); });
        window().findChild<QAction*>("fileQuit")->trigger();
        EXPECT_EQ(answers.asked, QStringList{"QMessageBox"});
    }
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(autosaveKept());

    ModalAnswers answers([](QWidget& modal) { click(modal, QMessageBox::Discard); });
    EXPECT_TRUE(window().close());
    EXPECT_FALSE(autosaveKept());
}

TEST_F(Quitting, SaveWritesTheSessionWhereItWasSavedAndAskForANameOtherwise)
{
    change();
    {
        // No name yet: the name is asked for; not giving one is not quitting.
        ModalAnswers answers([](QWidget& modal) { click(modal, QMessageBox::Save); });
        EXPECT_FALSE(window().close());
        EXPECT_EQ(answers.asked, (QStringList{"QMessageBox", "QFileDialog"}));
    }
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(autosaveKept());

    const QString session = QDir(folder.path()).filePath("mine.orrery-journal");
    ASSERT_TRUE(window().session().saveJournal(session));
    window().findChild<QAction*>("viewPlotType2")->trigger();
    ModalAnswers answers([](QWidget& modal) { click(modal, QMessageBox::Save); });
    EXPECT_TRUE(window().close());
    EXPECT_EQ(answers.asked, QStringList{"QMessageBox"});
    QFile saved(session);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_TRUE(saved.readAll().endsWith("style FrameLayout/PlotType 2\n")) << "the change made after the first save";
    EXPECT_FALSE(autosaveKept());
}

} // namespace
