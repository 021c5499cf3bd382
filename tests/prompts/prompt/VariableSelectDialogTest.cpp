// The variable dialogs: the generic dialog, its axis, vector, RGB and add-on
// variants, and the decision whether the vector layer may be switched on.
#include <functional>
#include <stdexcept>
#include <QComboBox>
#include <QTimer>
#include "tests/prompts/prompt/DialogTestSupport.h"
#include "core/property/InvalidPropertyValueException.h"
#include "core/propertymanager/KernelProperty.h"
#include "host/kernel/DataSet.h"
#include "host/kernel/OrrUtilHost.h"
#include "platform/sdk/AppLock.h"
#include "platform/toolbox/StyleValue.h"
#include "prompts/prompt/AddonsVariableSelectDialog.h"
#include "prompts/prompt/AxisVariableSelectDialog.h"
#include "prompts/prompt/RGBVariableSelectDialog.h"
#include "prompts/prompt/VectorVarAssignStrategy.h"
#include "prompts/prompt/VectorVariableSelectDialog.h"

using namespace dialogtest;
using orrery::toolbox::StringList;
using Texts = std::vector<std::string>;

namespace {

const StringList X2D{"TwoDAxis", "XDetail", "VarNum"};
const StringList Y2D{"TwoDAxis", "YDetail", "VarNum"};
const StringList Red{"GlobalRGB", "RedChannelVar"};
const StringList Green{"GlobalRGB", "GreenChannelVar"};
const StringList Blue{"GlobalRGB", "BlueChannelVar"};
const StringList U2D{"GlobalTwoDVector", "UVar"};
const StringList V2D{"GlobalTwoDVector", "VVar"};

QComboBox* combo(QWidget& d, int i)
{
    return d.findChild<QComboBox*>(QString("var%1_comboBox").arg(i));
}
QLabel* label(QWidget& d, int i)
{
    return d.findChild<QLabel*>(QString("var%1_label").arg(i));
}

// What a row shows: its label and its chosen variable, or "hidden".
std::string row(QWidget& d, int i)
{
    if (label(d, i)->isHidden() || combo(d, i)->isHidden())
        return "hidden";
    return label(d, i)->text().toStdString() + " " + combo(d, i)->currentText().toStdString();
}

Texts listed(QComboBox* box)
{
    Texts names;
    for (int r = 0; r < box->count(); ++r)
        names.push_back(box->itemText(r).toStdString());
    return names;
}

// Picks a variable in the open list with the keyboard.
void choose(QComboBox* box, const QString& name)
{
    const int index = box->findText(name);
    ASSERT_GE(index, 0) << name.toStdString();
    box->showPopup();
    box->view()->setCurrentIndex(box->model()->index(index, 0));
    QTest::keyClick(box->view(), Qt::Key_Return);
    runIdle();
    ASSERT_EQ(box->currentText(), name);
}

Texts rows(QWidget& d)
{
    return {row(d, 1), row(d, 2), row(d, 3)};
}
long style(const StringList& path)
{
    return styleValue<long>(path);
}
std::vector<long> channels()
{
    return {style(Red), style(Green), style(Blue)};
}

struct NoAssignment : VariableSelectDialog::DefaultVarAssignmentInterface
{
    void assignVariables(orrery::PropertyAbstract<int>&, orrery::PropertyAbstract<int>&,
                         orrery::PropertyAbstract<int>&) const override
    {}
};

class VariableSelectDialogTest : public DialogTest
{
protected:
    void TearDown() override
    {
        delete VariableSelectDialog::liveInstance();
        delete AddonsVariableSelectDialog::liveInstance();
    }

    // Runs the dialog modally as the host does; whileOpen acts as the user and
    // ends with a button. Returns the dialog's result.
    static int run(orrery::dialogs::common::QtDialogAbstract& dialog, const std::function<void()>& whileOpen)
    {
        QTimer::singleShot(0, &dialog, [&] {
            runIdle();
            whileOpen();
            if (dialog.isVisible()) {
                ADD_FAILURE() << "the dialog is still open";
                dialog.reject();
            }
        });
        dialog.launch();
        return dialog.result();
    }
    // Presses OK and expects the dialog to close.
    static void ok(QDialog& d) { user::press(d, QDialogButtonBox::Ok); }
    // Runs the dialog, lets whileOpen act, then accepts it with OK.
    static void accept(
        orrery::dialogs::common::QtDialogAbstract& d, const std::function<void()>& whileOpen = [] {})
    {
        EXPECT_EQ(QDialog::Accepted, run(d, [&] {
                      whileOpen();
                      ok(d);
                  }));
    }
};

TEST_F(VariableSelectDialogTest, AxisDialogShowsTheFramesAxesAndWritesOnlyThoseChanged)
{
    VariableSelectDialog* dialog = AxisVariableSelectDialog::getInstance(parent);
    accept(*dialog, [&] {
        EXPECT_EQ(dialog->findChild<QLabel*>("instructions_label")->text(),
                  "Choose the variables to assign to the axes.");
        EXPECT_EQ((Texts{"&X X", "&Y Y", "hidden"}), rows(*dialog));
        EXPECT_EQ((Texts{"X", "Y", "Z", "Pressure", "Temperature"}), listed(combo(*dialog, 1)));
        choose(combo(*dialog, 2), "Pressure");
        EXPECT_EQ(0, Kernel::styleWriteCount()) << "nothing reaches the kernel before OK";
    });
    EXPECT_EQ(1, Kernel::styleWriteCount());
    EXPECT_EQ(4, style(Y2D));
    EXPECT_EQ(1, Kernel::styleWriteCount(Y2D));
    delete dialog;

    Kernel::setPlotType(PlotType_ThreeD);
    dialog = AxisVariableSelectDialog::getInstance(parent);
    accept(*dialog, [&] {
        EXPECT_EQ((Texts{"&X X", "&Y Y", "&Z Z"}), rows(*dialog));
        choose(combo(*dialog, 1), "Temperature");
        choose(combo(*dialog, 3), "X");
    });
    EXPECT_EQ(5, style({"ThreeDAxis", "XDetail", "VarNum"}));
    EXPECT_EQ(2, style({"ThreeDAxis", "YDetail", "VarNum"}));
    EXPECT_EQ(1, style({"ThreeDAxis", "ZDetail", "VarNum"}));
    EXPECT_EQ(4, style(Y2D)) << "the 2D axes are not the 3D frame's";
}

TEST_F(VariableSelectDialogTest, VectorDialogStartsFromTheCandidatesAndWritesTheComponents)
{
    VariableSelectDialog* dialog = VectorVariableSelectDialog::getInstance(parent, PlotType_TwoD);
    accept(*dialog, [&] {
        EXPECT_EQ(dialog->findChild<QLabel*>("instructions_label")->text(), "Choose the vector variables.");
        // The variables after the axes' X and Y.
        EXPECT_EQ((Texts{"&U Z", "&V Pressure", "hidden"}), rows(*dialog));
    });
    EXPECT_EQ(3, style(U2D));
    EXPECT_EQ(4, style(V2D));
    EXPECT_EQ(2, Kernel::styleWriteCount());
    delete dialog;

    // Variables named U, V and W are the 3D candidates.
    orrery::kernel::DataSet flow("Flow", {"X", "Y", "Z", "P", "w", "V", "u"});
    flow.addZone("Box", {{0}, {0}, {0}, {0}, {0}, {0}, {0}});
    Kernel::setDataSet(flow);
    Kernel::setPlotType(PlotType_ThreeD);
    dialog = VectorVariableSelectDialog::getInstance(parent, PlotType_ThreeD);
    accept(*dialog, [&] {
        EXPECT_EQ((Texts{"&U u", "&V V", "&W w"}), rows(*dialog));
        choose(combo(*dialog, 3), "P");
    });
    EXPECT_EQ(7, style({"GlobalThreeDVector", "UVar"}));
    EXPECT_EQ(6, style({"GlobalThreeDVector", "VVar"}));
    EXPECT_EQ(4, style({"GlobalThreeDVector", "WVar"}));
}

TEST_F(VariableSelectDialogTest, OkIsOneUndoStepAndCancelWritesNothing)
{
    VariableSelectDialog* dialog = RGBVariableSelectDialog::getInstance(parent);
    int actions = 0;
    dialog->setPostAssignmentAction([&] { ++actions; });
    EXPECT_EQ(QDialog::Rejected, run(*dialog, [&] {
                  choose(combo(*dialog, 1), "X");
                  user::press(*dialog, QDialogButtonBox::Cancel);
              }));
    EXPECT_EQ(0, Kernel::styleWriteCount());
    EXPECT_EQ(0, actions);

    // The channels start from the candidates Z, Pressure, Temperature.
    dialog->setPostAssignmentAction([&] {
        ++actions;
        Kernel::setStyle({"GlobalRGB", "RangeMax"}, 0.5);
    });
    accept(*dialog, [&] {
        // Cancel kept the dialog's choice for its next run.
        EXPECT_EQ((Texts{"&R X", "&G Pressure", "&B Temperature"}), rows(*dialog));
    });
    EXPECT_EQ(1, actions);
    EXPECT_EQ((std::vector<long>{1, 4, 5}), channels());
    EXPECT_EQ(0.5, styleValue<double>({"GlobalRGB", "RangeMax"}));
    EXPECT_EQ(0, orrery::sdk::AppLock::depth());

    ASSERT_TRUE(OrrUtilUndoPerform());
    EXPECT_EQ((std::vector<long>{0, 0, 0}), channels());
    EXPECT_EQ(1.0, styleValue<double>({"GlobalRGB", "RangeMax"})) << "the action's writes belong to the step";
    EXPECT_FALSE(OrrUtilUndoPerform());
    ASSERT_TRUE(OrrUtilRedoPerform());
    EXPECT_EQ((std::vector<long>{1, 4, 5}), channels());
    EXPECT_EQ(0.5, styleValue<double>({"GlobalRGB", "RangeMax"}));
}

TEST_F(VariableSelectDialogTest, OkRunsTheLastActionInABalancedStepAndARefusalKeepsTheDialogOpen)
{
    VariableSelectDialog* dialog = AxisVariableSelectDialog::getInstance(parent);
    int first = 0, second = 0;
    dialog->setPostAssignmentAction([&] { ++first; });
    dialog->setPostAssignmentAction([&] { ++second; });
    accept(*dialog);
    EXPECT_EQ(0, Kernel::styleWriteCount());
    EXPECT_EQ(0, first) << "only the last action set runs";
    EXPECT_EQ(1, second);
    // A later write is an undo step of its own: the dialog's bracket was closed.
    Kernel::setStyle(X2D, 3L);
    ASSERT_TRUE(OrrUtilUndoPerform());
    EXPECT_EQ(1, style(X2D));
    EXPECT_FALSE(OrrUtilUndoPerform());

    // The action writes a value the kernel refuses, after the axis was written.
    dialog->setPostAssignmentAction([] {
        orrery::sdk::styleproperties::KernelProperty<int> u{orrery::toolbox::StyleValue(U2D)};
        u.setValue(9);
    });
    accept(*dialog, [&] {
        choose(combo(*dialog, 1), "Z");
        ok(*dialog);
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(Texts{"Variable number 9 is out of range (1 to 5)."}, messageTexts());
        EXPECT_EQ(0, orrery::sdk::AppLock::depth());
        EXPECT_EQ(1, style(X2D)) << "what was written before the refusal is taken back with it";
        dialog->setPostAssignmentAction({});
    });
    // The refused OK left no step; the second OK wrote the axis as one.
    ASSERT_TRUE(OrrUtilUndoPerform());
    EXPECT_EQ(1, style(X2D));

    // A refusal of the pending value itself.
    Kernel::refuseNextWrite("The kernel says no.");
    EXPECT_EQ(
        QDialog::Rejected, run(*dialog, [&] {
            choose(combo(*dialog, 2), "Temperature");
            ok(*dialog);
            EXPECT_TRUE(dialog->isVisible());
            EXPECT_EQ((Texts{"Variable number 9 is out of range (1 to 5).", "The kernel says no."}), messageTexts());
            user::press(*dialog, QDialogButtonBox::Cancel);
        }));
    EXPECT_EQ(2, style(Y2D));
}

TEST_F(VariableSelectDialogTest, LiveDialogIsReusedWithItsOwnPathsAndTextsUntilDeleted)
{
    VariableSelectDialog* rgb = RGBVariableSelectDialog::getInstance(parent);
    EXPECT_EQ(rgb, AxisVariableSelectDialog::getInstance(parent));
    accept(*rgb, [&] {
        EXPECT_EQ("&R Z", row(*rgb, 1));
        choose(combo(*rgb, 1), "Y");
    });
    EXPECT_EQ(2, style(Red));
    EXPECT_EQ(1, style(X2D));
    delete rgb;
    EXPECT_EQ(nullptr, VariableSelectDialog::liveInstance());
    VariableSelectDialog* axis = AxisVariableSelectDialog::getInstance(parent);
    EXPECT_EQ(axis, VariableSelectDialog::liveInstance());
    EXPECT_EQ(QDialog::Rejected, run(*axis, [&] {
                  EXPECT_EQ("&X X", row(*axis, 1));
                  user::press(*axis, QDialogButtonBox::Cancel);
              }));
}

TEST_F(VariableSelectDialogTest, RGBDefaultsAreSetEvenWithoutThreeCandidates)
{
    Kernel::loadSampleDataSet("Small");
    VariableSelectDialog* dialog = RGBVariableSelectDialog::getInstance(parent);
    // Candidates X, Y and none: the blue list shows its first variable, and OK writes what is shown.
    accept(*dialog, [&] { EXPECT_EQ((Texts{"&R X", "&G Y", "&B X"}), rows(*dialog)); });
    EXPECT_EQ((std::vector<long>{1, 2, 1}), channels());
    delete dialog;

    // Variables named for the channels win over the order of the data set.
    orrery::kernel::DataSet image("Image", {"X", "Y", "blue", "Green", "R"});
    image.addZone("Pixels", {{0}, {0}, {0}, {0}, {0}});
    Kernel::setDataSet(image);
    dialog = RGBVariableSelectDialog::getInstance(parent);
    accept(*dialog, [&] { EXPECT_EQ((Texts{"&R R", "&G Green", "&B blue"}), rows(*dialog)); });
    EXPECT_EQ((std::vector<long>{5, 4, 3}), channels());
}

TEST_F(VariableSelectDialogTest, ListsFollowTheDataSetWhileOpenAndVanishedChoicesAreDropped)
{
    VariableSelectDialog* dialog = RGBVariableSelectDialog::getInstance(parent);
    accept(*dialog, [&] {
        EXPECT_EQ("&G Pressure", row(*dialog, 2));
        Kernel::setEnabledVars({1, 2, 3, 5});
        runIdle();
        EXPECT_EQ((Texts{"X", "Y", "Z", "Temperature"}), listed(combo(*dialog, 2)));
        EXPECT_EQ((Texts{"&R Z", "&G X", "&B Temperature"}), rows(*dialog));
        // A file loaded while the dialog is open brings its variables.
        orrery::kernel::DataSet more("More", {"X", "Y", "Z", "Pressure", "Temperature", "Density"});
        more.addZone("All", {{0}, {0}, {0}, {0}, {0}, {0}});
        Kernel::setDataSet(more);
        runIdle();
        EXPECT_EQ("Density", listed(combo(*dialog, 3)).back());
        choose(combo(*dialog, 3), "Density");
    });
    EXPECT_EQ((std::vector<long>{3, 1, 6}), channels());
}

TEST_F(VariableSelectDialogTest, MissingLabelsFailBeforeShowingAndFailedAssignmentLeavesNoDialog)
{
    VariableSelectDialog* dialog = VariableSelectDialog::getInstance(
        parent, X2D, Y2D, StringList{"TwoDAxis", "ZDetail"}, "Pick", {"&A", "&B"}, NoAssignment());
    EXPECT_THROW(dialog->launch(), std::out_of_range);
    EXPECT_FALSE(dialog->isVisible());
    delete dialog;

    struct Refusing : VariableSelectDialog::DefaultVarAssignmentInterface
    {
        void assignVariables(orrery::PropertyAbstract<int>&, orrery::PropertyAbstract<int>&,
                             orrery::PropertyAbstract<int>&) const override
        {
            throw orrery::InvalidPropertyValueException("no default");
        }
    };
    EXPECT_THROW(VariableSelectDialog::getInstance(parent, X2D, Y2D, {}, "Pick", {"&A", "&B"}, Refusing()),
                 orrery::InvalidPropertyValueException);
    EXPECT_EQ(nullptr, VariableSelectDialog::liveInstance());
}

TEST_F(VariableSelectDialogTest, AxisAndVectorDialogsNeedAFrameWithAFieldPlot)
{
    auto relevant = [] {
        return std::make_pair(AxisVariableSelectDialog::relevance()->isRelevant(),
                              VectorVariableSelectDialog::relevance()->isRelevant());
    };
    EXPECT_EQ(std::make_pair(true, true), relevant());
    Kernel::setPlotType(PlotType_XYLine);
    EXPECT_EQ(std::make_pair(false, false), relevant());
    // Built anyway, on empty paths: nothing to write, nothing breaks.
    const int writes = Kernel::styleWriteCount();
    VariableSelectDialog* dialog = AxisVariableSelectDialog::getInstance(parent);
    accept(*dialog);
    EXPECT_EQ(writes, Kernel::styleWriteCount());
    delete dialog;
    Kernel::setPlotType(PlotType_ThreeD);
    EXPECT_EQ(std::make_pair(true, true), relevant());
    Kernel::setFrameCount(0);
    EXPECT_EQ(std::make_pair(false, false), relevant());
    dialog = VectorVariableSelectDialog::getInstance(parent, OrrUtilFrameGetPlotType());
    accept(*dialog);
    delete dialog;
    Kernel::setFrameCount(1);
    Kernel::setPageCount(0);
    EXPECT_EQ(std::make_pair(false, false), relevant());
}

TEST_F(VariableSelectDialogTest, VectorStrategyAsksOnlyWhenTheStyleHasNoUsableVectorVariables)
{
    orrery::dialogs::prompt::VectorVarAssignStrategy mayTurnOnVectors(parent);
    EXPECT_FALSE(mayTurnOnVectors(PlotType_XYLine));
    EXPECT_EQ(nullptr, VariableSelectDialog::liveInstance());

    // The user cancels, then accepts the proposed components.
    for (const bool accept : {false, true}) {
        SCOPED_TRACE(accept);
        QTimer::singleShot(0, &parent, [accept] {
            runIdle();
            VariableSelectDialog* dialog = VariableSelectDialog::liveInstance();
            ASSERT_NE(dialog, nullptr);
            ASSERT_TRUE(dialog->isVisible());
            user::press(*dialog, accept ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel);
        });
        EXPECT_EQ(accept, mayTurnOnVectors(PlotType_TwoD));
    }
    EXPECT_EQ(3, style(U2D));
    EXPECT_EQ(4, style(V2D));

    // Now the style names usable components: no dialog.
    delete VariableSelectDialog::liveInstance();
    EXPECT_TRUE(mayTurnOnVectors(PlotType_TwoD));
    EXPECT_EQ(nullptr, VariableSelectDialog::liveInstance());
}

TEST_F(VariableSelectDialogTest, AddonDialogSkipsNullLabelsAndEditsTheAddonsProperties)
{
    auto var1 = boost::make_shared<orrery::Property<int>>(1);
    auto var2 = boost::make_shared<orrery::Property<int>>(2);
    auto var3 = boost::make_shared<orrery::Property<int>>(3);
    AddonsVariableSelectDialog* dialog = AddonsVariableSelectDialog::getInstance(parent, "Pick the add-on's inputs.",
                                                                                 "A", nullptr, "C", var1, var2, var3);
    EXPECT_EQ(dialog, AddonsVariableSelectDialog::getInstance(parent, "Other", "1", "2", "3", var3, var2, var1));
    user::open(*dialog);
    runIdle();
    EXPECT_EQ(dialog->findChild<QLabel*>("instructions_label")->text(), "Pick the add-on's inputs.");
    EXPECT_EQ((Texts{"A X", "C Y", "hidden"}), rows(*dialog));
    choose(combo(*dialog, 2), "Temperature");
    EXPECT_EQ(5, var2->getValue()) << "the second row edits the second property";
    var3->setValue(4);
    runIdle();
    EXPECT_EQ("Pressure", combo(*dialog, 3)->currentText().toStdString()) << "the hidden row is still bound";
    EXPECT_EQ(0, Kernel::styleWriteCount());
    EXPECT_TRUE(AddonsVariableSelectDialog::relevance()->isRelevant());
    delete dialog;

    EXPECT_THROW(
        AddonsVariableSelectDialog::getInstance(parent, "No labels", nullptr, nullptr, nullptr, var1, var2, var3),
        std::out_of_range);
    EXPECT_EQ(nullptr, AddonsVariableSelectDialog::liveInstance());
    Kernel::clearDataSet();
    EXPECT_FALSE(AddonsVariableSelectDialog::relevance()->isRelevant());
}

} // namespace
