// Every dialog, run every way a host may run it, asked for again and switched to
// another language: what it shows comes from the caller whichever way it is
// shown, a later getInstance refreshes exactly what the dialogs' one rule says
// (see SingleInstanceDialog), and a dialog built before a language change shows
// what one built after it does.
#include <functional>
#include <memory>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>
#include "tests/prompts/prompt/DialogTestSupport.h"
#include "core/property/Property.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "prompts/prompt/AddonsVariableSelectDialog.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/AxisVariableSelectDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/ColorChooserDialog.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"
#include "prompts/prompt/EnterTextStringDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"
#include "prompts/prompt/RGBColorOptsDialog.h"
#include "prompts/prompt/RGBVariableSelectDialog.h"
#include "prompts/prompt/ScatterSizeFontDialog.h"
#include "prompts/prompt/VectorVariableSelectDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"

using namespace dialogtest;
using orrery::dialogs::common::QtDialogAbstract;

namespace {

// What a later getInstance applies of its arguments.
enum Refreshes
{
    Nothing,
    Content,         // what the dialog shows, not its parent
    ContentAndParent // what it shows, and the window it stays over
};

struct ReuseCase
{
    std::string name;
    // Opens the dialog as a host does; call 0 and call 1 pass different arguments.
    std::function<QtDialogAbstract*(QWidget& parent, int call)> open;
    Refreshes refreshes;
    bool singleInstance = true;
    // getInstance takes nothing but the parent: the calls differ in it alone.
    bool onlyParentDiffers = false;
};

void PrintTo(const ReuseCase& c, std::ostream* out)
{
    *out << c.name;
}

const char* pick(int call, const char* first, const char* second)
{
    return call ? second : first;
}

QtDialogAbstract* addonDialog(QWidget& parent, int call)
{
    const auto var = [call](int n) { return boost::make_shared<orrery::Property<int>>(n + call); };
    return AddonsVariableSelectDialog::getInstance(parent, pick(call, "Inputs:", "Other inputs:"),
                                                   pick(call, "&Source", "&Origin"), "&Weight", nullptr, var(1), var(2),
                                                   var(3));
}

const std::vector<ReuseCase>& cases()
{
    using orrery::sdk::DataLoaderRepository;
    static const std::vector<ReuseCase> all = {
        {"TextString",
         [](QWidget& p, int call) -> QtDialogAbstract* {
             auto* dialog =
                 new EnterTextStringDialog(p, pick(call, "Title:", "Name:"), pick(call, "one", "two"), "", false);
             dialog->setModal(true);
             dialog->setOkButtonText(pick(call, "Use", "Take"));
             return dialog;
         },
         ContentAndParent, false},
        {"ThreeIntegerValues",
         [](QWidget& p, int call) -> QtDialogAbstract* {
             return EnterThreeIntValuesDialog::getInstance(p, 1 + call, 100 + call, 1, pick(call, "Range", "Other"), "",
                                                           pick(call, "&Begin", "&From"), "&End", "&Skip", 1 - call, 1,
                                                           1);
         },
         Nothing},
        {"ASCIICharacter",
         [](QWidget& p, int call) -> QtDialogAbstract* {
             return EnterASCIICharacterDialog::getInstance(p, pick(call, "A", "b"), call == 0, Font_Greek);
         },
         Nothing},
        {"AnchorAlignment",
         [](QWidget& p, int call) -> QtDialogAbstract* {
             return AnchorAlignmentDialog::getInstance(call ? AnchorAlignment_BottomRight : AnchorAlignment_TopCenter,
                                                       p);
         },
         Nothing},
        {"LoaderChooser",
         [](QWidget& p, int call) -> QtDialogAbstract* {
             const char* extension = pick(call, ".dat", ".vtk");
             return ChooseLoaderDialog::getInstance(
                 p, DataLoaderRepository::getInstance().loadersForExtension(extension), {extension});
         },
         Content},
        {"AxisVariables",
         [](QWidget& p, int call) -> QtDialogAbstract* {
             Kernel::setPlotType(call ? PlotType_ThreeD : PlotType_TwoD);
             return AxisVariableSelectDialog::getInstance(p);
         },
         Nothing},
        {"VectorVariables",
         [](QWidget& p, int call) -> QtDialogAbstract* {
             Kernel::setPlotType(call ? PlotType_ThreeD : PlotType_TwoD);
             return VectorVariableSelectDialog::getInstance(p, call ? PlotType_ThreeD : PlotType_TwoD);
         },
         Nothing},
        {"RGBVariables", [](QWidget& p, int) -> QtDialogAbstract* { return RGBVariableSelectDialog::getInstance(p); },
         Nothing, true, true},
        {"AddonVariables", addonDialog, Nothing},
        {"ZoneSelection",
         [](QWidget& p, int call) -> QtDialogAbstract* { return ZoneSelectDialog::getInstance(p, 1 + 2 * call); },
         Content},
        {"ColourChooser",
         [](QWidget& p, int call) -> QtDialogAbstract* { return ColorChooserDialog::getInstance(p, call == 0); },
         ContentAndParent},
        {"RGBColouringOptions", [](QWidget& p, int) -> QtDialogAbstract* { return RGBColorOptsDialog::getInstance(p); },
         Nothing, true, true},
        {"ScatterSizeAndFont",
         [](QWidget& p, int) -> QtDialogAbstract* { return ScatterSizeFontDialog::getInstance(p); }, Nothing, true,
         true},
    };
    return all;
}

// Everything the dialog shows that a caller or the user may have set: its title
// and, for each widget shown, its text, value, check and enabled state.
QString snapshot(QDialog& dialog)
{
    runIdle(); // some lists follow their properties once the host is idle
    QStringList lines{"title " + dialog.windowTitle()};
    for (QWidget* w : dialog.findChildren<QWidget*>()) {
        if (!w->isVisibleTo(&dialog))
            continue;
        QString line = w->objectName() + (w->isEnabled() ? "" : " (disabled)");
        if (!w->toolTip().isEmpty())
            line += " tip " + w->toolTip();
        if (auto* label = qobject_cast<QLabel*>(w))
            line += " label " + label->text();
        else if (auto* button = qobject_cast<QAbstractButton*>(w))
            line += " button " + button->text() + (button->isChecked() ? " checked" : "");
        else if (auto* spin = qobject_cast<QAbstractSpinBox*>(w))
            line += " spin " + spin->text();
        else if (auto* combo = qobject_cast<QComboBox*>(w))
            line += " combo " + combo->currentText();
        else if (auto* edit = qobject_cast<QLineEdit*>(w))
            line += " edit " + edit->text();
        else if (auto* view = qobject_cast<QAbstractItemView*>(w)) {
            for (int row = 0; row < view->model()->rowCount(); ++row) {
                const QModelIndex index = view->model()->index(row, 0);
                line += " | " + index.data().toString() + (view->selectionModel()->isSelected(index) ? " *" : "");
            }
        } else if (w->toolTip().isEmpty())
            continue;
        lines << line;
    }
    return lines.join('\n');
}

class DialogReuseTest : public DialogTest, public ::testing::WithParamInterface<ReuseCase>
{
protected:
    QtDialogAbstract* open(QWidget& parent, int call) { return GetParam().open(parent, call); }
    // What a fresh dialog for this call shows; the dialog is gone afterwards.
    QString freshSnapshot(int call)
    {
        QtDialogAbstract* dialog = open(parent, call);
        const QString shown = snapshot(*dialog);
        delete dialog;
        return shown;
    }

    QWidget otherParent;
};

// Shows the dialog one way, takes what it shows while it is up, and closes it.
QString shownBy(QtDialogAbstract& dialog, const std::string& way)
{
    QString shown;
    const auto takeAndClose = [&] {
        runIdle();
        EXPECT_TRUE(dialog.isVisible()) << way;
        shown = snapshot(dialog);
        dialog.reject();
    };
    if (way == "launch" || way == "exec") {
        const bool blocks = way == "exec" || dialog.isModal();
        if (blocks)
            QTimer::singleShot(0, &dialog, takeAndClose);
        if (way == "exec")
            dialog.exec();
        else
            dialog.launch();
        if (!blocks)
            takeAndClose();
    } else {
        if (way == "open")
            dialog.open();
        else
            dialog.show();
        takeAndClose();
    }
    return shown;
}

TEST_P(DialogReuseTest, EveryWayOfShowingShowsTheCallersTextsAndTheCurrentValues)
{
    QString byLaunch;
    for (const std::string way : {"launch", "exec", "open", "show"}) {
        SCOPED_TRACE(way);
        QtDialogAbstract* dialog = open(parent, 0);
        const QString shown = shownBy(*dialog, way);
        delete dialog;
        if (way == "launch")
            byLaunch = shown;
        else
            EXPECT_EQ(shown.toStdString(), byLaunch.toStdString());
    }
}

TEST_P(DialogReuseTest, ALaterCallRefreshesWhatTheRuleSaysAndNothingElse)
{
    const QString first = freshSnapshot(0), second = freshSnapshot(1);
    if (!GetParam().onlyParentDiffers) {
        ASSERT_NE(first.toStdString(), second.toStdString()) << "the calls must differ, or the check proves nothing";
    }

    QtDialogAbstract* dialog = open(parent, 0);
    QtDialogAbstract* again = open(otherParent, 1);
    if (GetParam().singleInstance) {
        EXPECT_EQ(again, dialog);
    }
    const Refreshes refreshes = GetParam().refreshes;
    EXPECT_EQ(snapshot(*again).toStdString(), (refreshes == Nothing ? first : second).toStdString());
    EXPECT_EQ(again->parentWidget(), refreshes == ContentAndParent ? &otherParent : &parent);
}

TEST_P(DialogReuseTest, ADroppedDialogIsNotHandedOutAgainAndTheNextOneAsksAfresh)
{
    const QString second = freshSnapshot(1);
    QPointer<QtDialogAbstract> dropped = open(parent, 0);
    dropped->drop();
    QPointer<QtDialogAbstract> next = open(parent, 1);
    EXPECT_NE(next, dropped);
    EXPECT_EQ(snapshot(*next).toStdString(), second.toStdString());
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(dropped.isNull());
    ASSERT_FALSE(next.isNull());
    if (GetParam().singleInstance) {
        EXPECT_EQ(open(parent, 1), next) << "the new dialog is the live one, although the dropped one went after it";
    } else {
        delete next;
    }
}

// German while it lives: the library's translation and Qt's own (OK, Cancel, Help).
class German
{
public:
    German()
    {
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
        const QString qtTranslations = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
        const QString qtTranslations = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
        EXPECT_TRUE(ours.load(":/translations/orrery_de.qm"));
        EXPECT_TRUE(qt.load("qtbase_de", qtTranslations));
        QCoreApplication::installTranslator(&ours);
        QCoreApplication::installTranslator(&qt);
        settle();
    }
    ~German()
    {
        QCoreApplication::removeTranslator(&qt);
        QCoreApplication::removeTranslator(&ours);
        settle();
    }
    // Lets the language change reach every widget, and the dialogs retranslate.
    static void settle()
    {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }

private:
    QTranslator ours, qt;
};

TEST_P(DialogReuseTest, ADialogBuiltBeforeALanguageChangeShowsWhatOneBuiltAfterDoes)
{
    QtDialogAbstract* dialog = open(parent, 0);
    const QString english = snapshot(*dialog);
    std::unique_ptr<German> german(new German);
    const QString retranslated = snapshot(*dialog);
    delete dialog;
    const QString built = freshSnapshot(0);
    EXPECT_NE(built.toStdString(), english.toStdString()) << "German must change something, or this proves nothing";
    EXPECT_EQ(retranslated.toStdString(), built.toStdString());

    dialog = open(parent, 0);
    german.reset();
    EXPECT_EQ(snapshot(*dialog).toStdString(), english.toStdString()) << "and back to English";
    delete dialog;
}

INSTANTIATE_TEST_SUITE_P(EveryDialog, DialogReuseTest, ::testing::ValuesIn(cases()),
                         [](const ::testing::TestParamInfo<ReuseCase>& info) { return info.param.name; });

} // namespace
