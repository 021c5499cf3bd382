#include <QApplication>
#include <QCommandLineParser>
#include "demo/MainWindow.h"
#include "demo/Tour.h"
#include "platform/kernel/KernelTestSupport.h"

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QApplication::setApplicationName("orrery_demo");

    QCommandLineParser parser;
    parser.setApplicationDescription("Runs the prompt dialogs on the stand-in host.");
    parser.addHelpOption();
    parser.addOption({"tour", "Open, drive and photograph every dialog, saving the pictures in <dir>, then exit.",
                      "dir"});
    parser.addPositionalArgument("file", "Data file to load instead of the sample data set.");
    parser.process(app);

    MainWindow window;
    orrery::kernel::testing::KernelTestSupport::loadSampleDataSet();
    const QStringList files = parser.positionalArguments();
    const bool tour = parser.isSet("tour");
    if (!files.isEmpty() && !(tour ? Tour::loadFile(window, files.front()) : window.loadFile(files.front())) && tour)
        return 1;
    if (tour)
        return Tour::run(window, parser.value("tour"));
    window.show();
    return app.exec();
}
