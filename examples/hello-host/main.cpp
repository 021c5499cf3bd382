// A minimal host: opens the three-integer prompt, lets a scripted "user" type a
// new end value and press OK, and prints the answer as a host command would read it.
#include <iostream>
#include <QApplication>
#include <QMainWindow>
#include <QSpinBox>
#include <QTimer>
#include "host/kernel/KernelDriver.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"

using orrery::dialogs::prompt::EnterThreeIntValuesDialog;

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QMainWindow host;
    // The prompts apply only while the host has data; the stand-in host brings a sample.
    orrery::kernel::KernelDriver::loadSampleDataSet();
    EnterThreeIntValuesDialog* dialog =
        EnterThreeIntValuesDialog::getInstance(host, 1, 100, 1, "Range", "", "&Begin", "&End", "&Skip", 1, 1, 1);

    QTimer::singleShot(0, dialog, [dialog] {
        if (QSpinBox* end = dialog->findChild<QSpinBox*>("value2"))
            end->setValue(42);
        dialog->accept();
    });
    if (dialog->exec() != QDialog::Accepted)
        return 1;
    std::cout << "begin " << dialog->value1() << ", end " << dialog->value2() << ", skip " << dialog->value3()
              << std::endl;
    return dialog->value2() == 42 ? 0 : 1;
}
