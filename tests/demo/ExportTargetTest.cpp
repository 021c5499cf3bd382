#include <sys/stat.h>
#include <QFile>
#include <QFileInfo>
#include <gmock/gmock.h>
#include "demo/window/PlotExport.h"
#include "demo/scene/HostPlotView.h"
#include "tests/support/DemoProcess.h"
#include "tests/support/TestSupport.h"

using testing::HasSubstr;

namespace {

class ExportTarget : public testsupport::SampleKernelTest, public testsupport::DemoProcess
{};

// What is not a regular file stays as it is, whether named or behind a link.
TEST_F(ExportTarget, AFifoAFolderOrALinkToOneIsRefusedAndLeftAsItWas)
{
    const QByteArray fifo = QFile::encodeName(at("pipe.png"));
    ASSERT_EQ(::mkfifo(fifo.constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(at("pipe.png"), at("link.svg")));
    ASSERT_TRUE(QDir().mkdir(at("folder.pdf")));
    for (const char* name : {"pipe.png", "link.svg", "folder.pdf"}) {
        std::string said;
        EXPECT_EQ(run({"--export", at(name)}, &said), 1) << name;
        EXPECT_THAT(said, HasSubstr("is not a regular file")) << name;
    }
    struct stat status;
    ASSERT_EQ(::stat(fifo.constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
    EXPECT_TRUE(QFileInfo(at("link.svg")).isSymLink());
    EXPECT_TRUE(QFileInfo(at("folder.pdf")).isDir());

    // File > Export Plot writes through the same function.
    HostPlotView view;
    QString error;
    EXPECT_FALSE(PlotExport::write(view.scene(), view.viewpoint(), at("link.svg"), QSize(200, 100), 1.0, &error));
    EXPECT_THAT(error.toStdString(), HasSubstr(at("link.svg").toStdString() + " is not a regular file (a FIFO)"));
    EXPECT_TRUE(PlotExport::write(view.scene(), view.viewpoint(), at("plot.svg"), QSize(200, 100), 1.0, &error))
        << error.toStdString();
}

} // namespace
