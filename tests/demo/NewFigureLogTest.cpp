#include <QDir>
#include <QFile>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include "demo/window/MainWindow.h"
#include "demo/session/Session.h"
#include "tests/support/TestSupport.h"

using testsupport::Kernel;

namespace {

class NewFigureLog : public testsupport::SampleKernelTest
{};

TEST_F(NewFigureLog, OpeningAFileSaysInOneLineWhatItReset)
{
    QTemporaryDir folder;
    const QString path = QDir(folder.path()).filePath("next.csv");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("a,b,c,d,e\n1,2,3,4,5\n3,4,5,6,7\n");
    file.close();
    MainWindow window;
    Kernel::setStyle({"FrameLayout", "Title"}, std::string("Old title"));
    Kernel::setStyle({"IndexRange", "Skip"}, 2L);
    ASSERT_TRUE(window.session().open(path));
    ASSERT_TRUE(window.session().open(path));
    const QStringList lines = window.findChild<QPlainTextEdit*>("answers")->toPlainText().split('\n');
    EXPECT_EQ(lines.filter("new figure").size(), 1) << lines.join('\n').toStdString();
    EXPECT_TRUE(lines.contains("A new data set starts a new figure: reset the title, the index range."))
        << lines.join('\n').toStdString();
}

} // namespace
