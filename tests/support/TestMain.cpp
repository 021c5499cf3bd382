#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <gmock/gmock.h>

// Widgets need an application object; the settings store is pointed at a
// scratch folder so that no test touches the user's own settings.
int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QTemporaryDir scratch;
    qputenv("ORRERY_SETTINGS_DIR", QDir(scratch.path()).absolutePath().toUtf8());
    ::testing::InitGoogleMock(&argc, argv);
    QApplication app(argc, argv);
    return RUN_ALL_TESTS();
}
