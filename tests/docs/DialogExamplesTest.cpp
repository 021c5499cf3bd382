// The documentation's host examples, run as a host would run them.
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QListView>
#include <QSpinBox>
#include <QTimer>
#include "docs/examples/DialogExamples.h"
#include "tests/prompts/prompt/DialogTestSupport.h"

using namespace dialogtest;

namespace {

// Acts as the user on the dialog that is open once the example waits for one.
void whenOpen(const std::function<void(QDialog&)>& act)
{
    QTimer::singleShot(0, [act] {
        runIdle();
        QDialog* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr) << "no dialog is open";
        act(*dialog);
    });
}

class DialogExamplesTest : public DialogTest
{};

TEST_F(DialogExamplesTest, PlainValueAndTextPromptsAnswerWhatTheUserEntered)
{
    whenOpen([](QDialog& d) {
        d.findChild<QSpinBox*>("value2")->setValue(42);
        user::press(d, QDialogButtonBox::Ok);
    });
    const examples::IndexRange range = examples::askForIndexRange(parent);
    EXPECT_TRUE(range.accepted);
    EXPECT_EQ(range.end, 42);

    whenOpen([](QDialog& d) {
        user::type(*d.findChild<QLineEdit*>("EnterTextString_lineEdit"), "Inlet, cooled");
        user::press(d, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(examples::askForFrameTitle(parent), "Inlet, cooled");
}

TEST_F(DialogExamplesTest, AnOpenedDialogAnswersEachRunOnceThoughTheDialogIsReused)
{
    std::vector<int> answers;
    examples::pickZone(parent, 2, [&](int zone) { answers.push_back(zone); });
    QDialog* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr) << "openWith shows the dialog and returns";
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(answers, std::vector<int>{2});

    examples::pickZone(parent, 3, [&](int zone) { answers.push_back(10 * zone); });
    ASSERT_EQ(QApplication::activeModalWidget(), dialog) << "the same dialog, reused";
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(answers, (std::vector<int>{2, 30}));
    dialog->open();
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(answers, (std::vector<int>{2, 30})) << "a later run calls neither function again";
}

TEST_F(DialogExamplesTest, VariablesAreWrittenOnOkAndStyleDialogsAtOnce)
{
    whenOpen([](QDialog& d) {
        QComboBox* y = d.findChild<QComboBox*>("var2_comboBox");
        y->setCurrentIndex(y->findText("Temperature"));
        user::press(d, QDialogButtonBox::Ok);
    });
    EXPECT_TRUE(examples::assignAxisVariables(parent));
    EXPECT_EQ(styleValue<long>({"TwoDAxis", "YDetail", "VarNum"}), 5);

    examples::showRGBColoringOptions(parent);
    runIdle();
    QComboBox* mode = parent.findChild<QComboBox*>("rGBColorOpts_Mode_CmbBox");
    ASSERT_NE(mode, nullptr);
    mode->setCurrentIndex(RGBMode_SpecifyRB);
    EXPECT_EQ(styleValue<long>({"GlobalRGB", "RGBMode"}), RGBMode_SpecifyRB);
}

TEST_F(DialogExamplesTest, LoaderChooserAnswersTheChosenLoaderAndTranslationsInstall)
{
    whenOpen([](QDialog& d) {
        QListView* list = d.findChild<QListView*>();
        for (int row = 0; row < list->model()->rowCount(); ++row)
            if (list->model()->index(row, 0).data().toString() == "Text table")
                user::clickRow(*list, row);
        user::press(d, QDialogButtonBox::Ok);
    });
    EXPECT_EQ(examples::chooseLoaderFor(parent, ".dat"), "Text table");

    examples::installGermanTranslation();
    EXPECT_EQ(QCoreApplication::translate("EnterTextString", "Prompt for text string").toStdString(), "Texteingabe");
    EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel").toStdString(), "Abbrechen");
}

} // namespace
