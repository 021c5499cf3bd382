#include <QListView>
#include "tests/prompts/prompt/DialogTestSupport.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "host/settings/SettingsFile.h"
#include "prompts/prompt/ChooseLoaderDialog.h"

using namespace dialogtest;
using orrery::host::SettingsFile;
using orrery::sdk::DataLoaderInterface;
using orrery::sdk::DataLoaderRepository;
using LoaderPtr = ChooseLoaderDialog::LoaderPtr;
using Rows = std::vector<std::string>;

namespace {

struct NamedLoader : DataLoaderInterface
{
    NamedLoader(std::string name, std::string extension) : name(std::move(name)), extension(std::move(extension)) {}
    Properties properties() const override { return {name, "test loader", {extension}}; }
    bool load(const std::string&, std::string&) override { return false; }
    std::string name, extension;
};

const char* const Multiple =
    "Multiple loaders support this kind of file.\nPlease choose which loader you would like to use.";
const char* const NoneFound =
    "A loader could not be found for this file type.\nPlease choose which loader you would like to use.";

class ChooseLoaderDialogTest : public DialogTest
{
protected:
    void SetUp() override
    {
        DialogTest::SetUp();
        // Installed besides the built-in "CSV table", "Text table" and "Zone blocks".
        DataLoaderRepository::getInstance().registerLoader(pointCloud);
        DataLoaderRepository::getInstance().registerLoader(binaryGrid);
        ASSERT_TRUE(textTable);
    }

    ChooseLoaderDialog* chooser(std::vector<LoaderPtr> suggested, std::set<std::string> extensions)
    {
        ChooseLoaderDialog* dialog = ChooseLoaderDialog::getInstance(*window, suggested, extensions);
        runIdle();
        return dialog;
    }
    std::vector<LoaderPtr> datSuggestions() const { return {textTable, pointCloud}; }

    static QListView* list(QWidget& d) { return d.findChild<QListView*>("LoadersList"); }
    static QPushButton* ok(QWidget& d) { return standard(d, QDialogButtonBox::Ok); }
    // Rows as shown, header rows in brackets.
    static Rows shownRows(QWidget& d)
    {
        Rows rows;
        QAbstractItemModel* model = list(d)->model();
        for (int r = 0; r < model->rowCount(); ++r) {
            const std::string text = model->index(r, 0).data().toString().toStdString();
            rows.push_back(model->index(r, 0).flags() & Qt::ItemIsEnabled ? text : "[" + text + "]");
        }
        return rows;
    }
    static std::string selectedText(QWidget& d)
    {
        const QModelIndexList selected = list(d)->selectionModel()->selectedRows();
        return selected.size() == 1 ? selected.front().data().toString().toStdString() : "<none>";
    }
    // Clicks (or double-clicks) the row of that text.
    static void clickRow(QWidget& d, const std::string& name, bool twice = false)
    {
        QAbstractItemModel* model = list(d)->model();
        const QModelIndex index =
            model->match(model->index(0, 0), Qt::DisplayRole, QString::fromStdString(name), 1, Qt::MatchExactly)
                .value(0);
        ASSERT_TRUE(index.isValid()) << name;
        user::clickRow(*list(d), index.row());
        if (twice)
            QTest::mouseDClick(list(d)->viewport(), Qt::LeftButton, Qt::NoModifier,
                               list(d)->visualRect(index).center());
        runIdle();
    }
    // A new run of the application: the settings come from the file, the dialog is new.
    void restart()
    {
        window.reset(new QWidget);
        SettingsFile::instance().reload();
    }

    std::unique_ptr<QWidget> window{new QWidget};
    LoaderPtr pointCloud = boost::make_shared<NamedLoader>("Point cloud", "dat");
    LoaderPtr binaryGrid = boost::make_shared<NamedLoader>("Binary grid", "bgr");
    LoaderPtr textTable = DataLoaderRepository::getInstance().loaderNamed("Text table");
};

TEST_F(ChooseLoaderDialogTest, SuggestedLoadersComeFirstUnderHeadersThenTheOthersByName)
{
    ChooseLoaderDialog* dialog = chooser({pointCloud, textTable, pointCloud}, {".dat"});
    EXPECT_EQ(shownRows(*dialog),
              (Rows{"[Suggested Loaders]", "Point cloud", "Text table", "[]", "[Other Available Loaders]",
                    "Binary grid", "CSV table", "VTK legacy", "Zone blocks"}));
    EXPECT_EQ(dialog->windowTitle(), "Choose Loader (*.dat)");
    EXPECT_EQ(dialog->findChild<QLabel*>("label")->text(), Multiple);

    chooser({pointCloud}, {".dat", ".plt"}); // one suggestion still reads "Multiple"
    EXPECT_EQ(dialog->findChild<QLabel*>("label")->text(), Multiple);
    EXPECT_EQ(dialog->windowTitle(), "Choose Loader (*.dat *.plt)");
    EXPECT_EQ(shownRows(*dialog).size(), 9u);

    // Without suggestions all loaders are listed by name, without headers.
    chooser({}, {});
    EXPECT_EQ(shownRows(*dialog),
              (Rows{"Binary grid", "CSV table", "Point cloud", "Text table", "VTK legacy", "Zone blocks"}));
    EXPECT_EQ(dialog->windowTitle(), "Choose Loader ");
    EXPECT_EQ(dialog->findChild<QLabel*>("label")->text(), NoneFound);
    EXPECT_EQ(selectedText(*dialog), "<none>");
    EXPECT_FALSE(ok(*dialog)->isEnabled());
}

TEST_F(ChooseLoaderDialogTest, OkNeedsASelectedLoaderAndADoubleClickAcceptsLikeOk)
{
    ChooseLoaderDialog* dialog = chooser(datSuggestions(), {".xyz"});
    user::open(*dialog);
    EXPECT_FALSE(ok(*dialog)->isEnabled());
    EXPECT_FALSE(dialog->selectedLoader());
    clickRow(*dialog, "Suggested Loaders"); // a caption, not a choice
    EXPECT_FALSE(ok(*dialog)->isEnabled());
    clickRow(*dialog, "Text table");
    EXPECT_TRUE(ok(*dialog)->isEnabled());
    // A selection does not survive a rebuild of the list.
    dialog = chooser({}, {".xyz"});
    EXPECT_EQ(selectedText(*dialog), "<none>");
    EXPECT_FALSE(dialog->selectedLoader());
    EXPECT_FALSE(ok(*dialog)->isEnabled());

    user::open(*dialog);
    clickRow(*dialog, "Zone blocks");
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    ASSERT_TRUE(dialog->selectedLoader());
    EXPECT_EQ(dialog->selectedLoader()->properties().name, "Zone blocks");

    dialog = chooser(datSuggestions(), {".dat"});
    user::open(*dialog);
    clickRow(*dialog, "Other Available Loaders", true);
    EXPECT_TRUE(dialog->isVisible());
    clickRow(*dialog, "Binary grid", true);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedLoader(), binaryGrid);
    EXPECT_EQ(SettingsFile::instance().getStringValue("LastLoaderUsedForExt_.dat"), "Binary grid");
}

TEST_F(ChooseLoaderDialogTest, TheChoiceForOneExtensionIsPreselectedAfterARestartCancelKeepsTheHistory)
{
    ChooseLoaderDialog* dialog = chooser(datSuggestions(), {".dat"});
    user::open(*dialog);
    clickRow(*dialog, "Point cloud");
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(SettingsFile::instance().getStringValue("LastLoaderUsedForExt_.dat"), "Point cloud");

    restart();
    dialog = chooser(datSuggestions(), {".dat"});
    EXPECT_EQ(selectedText(*dialog), "Point cloud");
    EXPECT_TRUE(ok(*dialog)->isEnabled());
    EXPECT_EQ(dialog->selectedLoader(), pointCloud);

    user::open(*dialog);
    clickRow(*dialog, "Text table");
    user::press(*dialog, QDialogButtonBox::Ok);
    restart();
    dialog = chooser(datSuggestions(), {".dat"});
    EXPECT_EQ(selectedText(*dialog), "Text table");
    dialog = chooser({}, {".csv"}); // other extensions have their own history
    EXPECT_EQ(selectedText(*dialog), "<none>");

    // Cancel and several extensions leave the history alone; a gone loader falls back.
    SettingsFile::instance().depositValue("LastLoaderUsedForExt_.dat", "Point cloud");
    dialog = chooser(datSuggestions(), {".dat", ".txt"});
    EXPECT_EQ(selectedText(*dialog), "<none>");
    user::open(*dialog);
    clickRow(*dialog, "CSV table");
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);

    dialog = chooser(datSuggestions(), {".dat"});
    EXPECT_EQ(selectedText(*dialog), "Point cloud");
    user::open(*dialog);
    clickRow(*dialog, "CSV table");
    user::press(*dialog, QDialogButtonBox::Cancel);
    EXPECT_EQ(SettingsFile::instance().getStringValue("LastLoaderUsedForExt_.dat"), "Point cloud");
    EXPECT_EQ(SettingsFile::instance().getStringValue("LastLoaderUsedForExt_.txt"), "");

    // A stored loader that is gone falls back to the first selectable row.
    SettingsFile::instance().depositValue("LastLoaderUsedForExt_.dat", "Uninstalled reader");
    dialog = chooser(datSuggestions(), {".dat"});
    EXPECT_EQ(selectedText(*dialog), "Point cloud"); // row 1, under the header
    dialog = chooser({}, {".dat"});
    EXPECT_EQ(selectedText(*dialog), "Binary grid"); // row 0
    EXPECT_TRUE(ok(*dialog)->isEnabled());
}

TEST_F(ChooseLoaderDialogTest, ARememberedLoaderFarDownALongListIsTheCurrentRowAndInSight)
{
    std::vector<LoaderPtr> many;
    for (int i = 10; i < 70; ++i) {
        many.push_back(boost::make_shared<NamedLoader>("Reader " + std::to_string(i), "xyz"));
        DataLoaderRepository::getInstance().registerLoader(many.back());
    }
    SettingsFile::instance().depositValue("LastLoaderUsedForExt_.xyz", "Reader 65");
    ChooseLoaderDialog* dialog = chooser({}, {".xyz"});
    user::open(*dialog);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog));
    runIdle();
    QListView* view = list(*dialog);
    EXPECT_EQ(selectedText(*dialog), "Reader 65");
    ASSERT_TRUE(view->currentIndex().isValid());
    EXPECT_EQ(view->currentIndex().data().toString(), "Reader 65");
    EXPECT_TRUE(view->viewport()->rect().intersects(view->visualRect(view->currentIndex())));

    // The keyboard goes on from the remembered loader.
    view->setFocus();
    QTest::keyClick(view, Qt::Key_Down);
    runIdle();
    EXPECT_EQ(selectedText(*dialog), "Reader 66");
    EXPECT_EQ(dialog->selectedLoader(), many[56]);
}

} // namespace
