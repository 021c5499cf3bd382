#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>
#include "support/UserActions.h"
#include "WidgetContract.h"
#include "platform/common/IdleQueue.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "platform/settings/ApplicationSettings.h"
#include "prompt/ChooseLoaderDialog.h"

using orrery::dialogs::prompt::ChooseLoaderDialog;
using orrery::sdk::ApplicationSettings;
using orrery::sdk::DataLoaderInterface;
using orrery::sdk::DataLoaderRepository;
using orrery::sdk::ui::common::IdleQueue;
using LoaderPtr = ChooseLoaderDialog::LoaderPtr;
using Rows = std::vector<std::string>;

namespace {

class NamedLoader : public DataLoaderInterface
{
public:
    NamedLoader(std::string name, std::string extension) : m_name(std::move(name)), m_extension(std::move(extension)) {}
    Properties properties() const override { return {m_name, "test loader", {m_extension}}; }
    bool load(const std::string&, std::string& error) override
    {
        error = "not a real loader";
        return false;
    }

private:
    std::string m_name, m_extension;
};

const char* const Multiple =
    "Multiple loaders support this kind of file.\nPlease choose which loader you would like to use.";
const char* const NoneFound =
    "A loader could not be found for this file type.\nPlease choose which loader you would like to use.";

class ChooseLoaderDialogTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        // Installed besides the built-in "CSV table", "Text table" and "Zone blocks".
        pointCloud = boost::make_shared<NamedLoader>("Point cloud", "dat");
        binaryGrid = boost::make_shared<NamedLoader>("Binary grid", "bgr");
        DataLoaderRepository::getInstance().registerLoader(pointCloud);
        DataLoaderRepository::getInstance().registerLoader(binaryGrid);
        textTable = DataLoaderRepository::getInstance().loaderNamed("Text table");
        ASSERT_TRUE(textTable);
    }

    ChooseLoaderDialog* chooser(std::vector<LoaderPtr> suggested, std::set<std::string> extensions)
    {
        ChooseLoaderDialog* dialog = ChooseLoaderDialog::getInstance(*parent, suggested, extensions);
        IdleQueue::instance().flush();
        return dialog;
    }
    std::vector<LoaderPtr> datSuggestions() const { return {textTable, pointCloud}; }

    static QListView* list(QWidget& d) { return d.findChild<QListView*>("LoadersList"); }
    static QPushButton* ok(QWidget& d)
    {
        return d.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok);
    }
    // Rows as shown, header rows in brackets.
    static Rows shownRows(QWidget& d)
    {
        Rows rows;
        QAbstractItemModel* model = list(d)->model();
        for (int r = 0; r < model->rowCount(); ++r)
        {
            const QModelIndex index = model->index(r, 0);
            const std::string text = index.data().toString().toStdString();
            rows.push_back(index.flags() & Qt::ItemIsEnabled ? text : "[" + text + "]");
        }
        return rows;
    }
    static std::string selectedText(QWidget& d)
    {
        const QModelIndexList selected = list(d)->selectionModel()->selectedRows();
        return selected.size() == 1 ? selected.front().data().toString().toStdString() : "<none>";
    }
    static QModelIndex rowNamed(QWidget& d, const std::string& name)
    {
        QAbstractItemModel* model = list(d)->model();
        const QModelIndexList found =
            model->match(model->index(0, 0), Qt::DisplayRole, QString::fromStdString(name), 1, Qt::MatchExactly);
        return found.value(0);
    }
    static void clickRow(QWidget& d, const std::string& name)
    {
        const QModelIndex index = rowNamed(d, name);
        ASSERT_TRUE(index.isValid()) << name;
        QTest::mouseClick(list(d)->viewport(), Qt::LeftButton, Qt::NoModifier, list(d)->visualRect(index).center());
        IdleQueue::instance().flush();
    }
    static void doubleClickRow(QWidget& d, const std::string& name)
    {
        const QModelIndex index = rowNamed(d, name);
        ASSERT_TRUE(index.isValid()) << name;
        const QPoint at = list(d)->visualRect(index).center();
        QTest::mouseClick(list(d)->viewport(), Qt::LeftButton, Qt::NoModifier, at);
        QTest::mouseDClick(list(d)->viewport(), Qt::LeftButton, Qt::NoModifier, at);
        IdleQueue::instance().flush();
    }
    // A new run of the application: the settings come from the file, the dialog is new.
    void restart()
    {
        parent.reset(new QWidget);
        ApplicationSettings::getInstance().reload();
    }

    std::unique_ptr<QWidget> parent{new QWidget};
    LoaderPtr pointCloud, binaryGrid, textTable;
};

TEST_F(ChooseLoaderDialogTest, LayoutContract)
{
    ChooseLoaderDialog dialog(*parent);
    contract::expectWidgets(dialog, {
        {"ChooseLoader", "orrery::dialogs::prompt::ChooseLoaderDialog", "Choose Loader"},
        {"verticalLayout_2", "QVBoxLayout", nullptr},
        {"verticalLayout", "QVBoxLayout", nullptr},
        {"label", "QLabel",
         "Multiple loaders support this kind of file.  Please choose \nwhich loader you would like to use."},
        {"LoadersList", "QListView", nullptr},
        {"buttonBox", "QDialogButtonBox", nullptr},
    });
    auto* inner = dialog.findChild<QVBoxLayout*>("verticalLayout");
    EXPECT_EQ(dialog.findChild<QVBoxLayout*>("verticalLayout_2")->indexOf(inner), 0);
    EXPECT_EQ(inner->indexOf(dialog.findChild<QLabel*>("label")), 0);
    EXPECT_EQ(inner->indexOf(list(dialog)), 1);
    EXPECT_EQ(inner->indexOf(dialog.findChild<QDialogButtonBox*>("buttonBox")), 2);
    EXPECT_FALSE(dialog.findChild<QLabel*>("label")->wordWrap());
    EXPECT_EQ(list(dialog)->selectionMode(), QAbstractItemView::SingleSelection);
    EXPECT_EQ(dialog.findChild<QDialogButtonBox*>("buttonBox")->standardButtons(),
              QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    EXPECT_EQ(dialog.size(), QSize(284, 273));
    EXPECT_TRUE(dialog.isModal());
    ASSERT_NE(dialog.helpAction(), nullptr);
}

TEST_F(ChooseLoaderDialogTest, SuggestedLoadersComeFirstUnderHeadersThenTheOthersByName)
{
    ChooseLoaderDialog* dialog = chooser({pointCloud, textTable, pointCloud}, {".dat"});
    EXPECT_EQ(shownRows(*dialog), (Rows{"[Suggested Loaders]", "Point cloud", "Text table", "[]",
                                        "[Other Available Loaders]", "Binary grid", "CSV table", "Zone blocks"}));
    EXPECT_EQ(dialog->windowTitle(), "Choose Loader (*.dat)");
    EXPECT_EQ(dialog->findChild<QLabel*>("label")->text(), Multiple);

    chooser({pointCloud}, {".dat", ".plt"}); // one suggestion still reads "Multiple"
    EXPECT_EQ(dialog->findChild<QLabel*>("label")->text(), Multiple);
    EXPECT_EQ(dialog->windowTitle(), "Choose Loader (*.dat *.plt)");
    EXPECT_EQ(shownRows(*dialog).size(), 8u);
}

TEST_F(ChooseLoaderDialogTest, WithoutSuggestionsAllLoadersAreListedByNameWithoutHeaders)
{
    ChooseLoaderDialog* dialog = chooser({}, {});
    EXPECT_EQ(shownRows(*dialog), (Rows{"Binary grid", "CSV table", "Point cloud", "Text table", "Zone blocks"}));
    EXPECT_EQ(dialog->windowTitle(), "Choose Loader ");
    EXPECT_EQ(dialog->findChild<QLabel*>("label")->text(), NoneFound);
    EXPECT_EQ(selectedText(*dialog), "<none>");
    EXPECT_FALSE(ok(*dialog)->isEnabled());
}

TEST_F(ChooseLoaderDialogTest, OkNeedsASelectedLoaderAndReturnsIt)
{
    ChooseLoaderDialog* dialog = chooser(datSuggestions(), {".dat"});
    user::open(*dialog);
    EXPECT_FALSE(ok(*dialog)->isEnabled());
    EXPECT_FALSE(dialog->selectedLoader());
    clickRow(*dialog, "Suggested Loaders"); // a caption, not a choice
    EXPECT_FALSE(ok(*dialog)->isEnabled());
    clickRow(*dialog, "Zone blocks");
    EXPECT_TRUE(ok(*dialog)->isEnabled());
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    ASSERT_TRUE(dialog->selectedLoader());
    EXPECT_EQ(dialog->selectedLoader()->properties().name, "Zone blocks");
}

TEST_F(ChooseLoaderDialogTest, TheChoiceForAnExtensionIsPreselectedAfterARestart)
{
    ChooseLoaderDialog* dialog = chooser(datSuggestions(), {".dat"});
    user::open(*dialog);
    clickRow(*dialog, "Point cloud");
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(ApplicationSettings::getInstance().getStringValue("LastLoaderUsedForExt_.dat"), "Point cloud");

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
}

TEST_F(ChooseLoaderDialogTest, CancelAndSeveralOrNoExtensionsLeaveTheHistoryAlone)
{
    ApplicationSettings::getInstance().depositValue("LastLoaderUsedForExt_.dat", "Point cloud");
    ChooseLoaderDialog* dialog = chooser(datSuggestions(), {".dat", ".txt"});
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
    EXPECT_EQ(ApplicationSettings::getInstance().getStringValue("LastLoaderUsedForExt_.dat"), "Point cloud");
    EXPECT_EQ(ApplicationSettings::getInstance().getStringValue("LastLoaderUsedForExt_.txt"), "");
}

TEST_F(ChooseLoaderDialogTest, AStoredLoaderThatIsGoneFallsBackToTheFirstSelectableRow)
{
    ApplicationSettings::getInstance().depositValue("LastLoaderUsedForExt_.dat", "Uninstalled reader");
    ChooseLoaderDialog* dialog = chooser(datSuggestions(), {".dat"});
    EXPECT_EQ(selectedText(*dialog), "Point cloud"); // row 1, under the header
    dialog = chooser({}, {".dat"});
    EXPECT_EQ(selectedText(*dialog), "Binary grid"); // row 0
    EXPECT_TRUE(ok(*dialog)->isEnabled());
}

TEST_F(ChooseLoaderDialogTest, DoubleClickAcceptsAndRemembersLikeOk)
{
    ChooseLoaderDialog* dialog = chooser(datSuggestions(), {".dat"});
    user::open(*dialog);
    doubleClickRow(*dialog, "Other Available Loaders");
    EXPECT_TRUE(dialog->isVisible());
    doubleClickRow(*dialog, "Binary grid");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedLoader(), binaryGrid);
    EXPECT_EQ(ApplicationSettings::getInstance().getStringValue("LastLoaderUsedForExt_.dat"), "Binary grid");
}

TEST_F(ChooseLoaderDialogTest, ASelectionDoesNotSurviveARebuildOfTheList)
{
    ChooseLoaderDialog* dialog = chooser(datSuggestions(), {".xyz"});
    user::open(*dialog);
    clickRow(*dialog, "Text table");
    dialog = chooser({}, {".xyz"});
    EXPECT_EQ(selectedText(*dialog), "<none>");
    EXPECT_FALSE(dialog->selectedLoader());
    EXPECT_FALSE(ok(*dialog)->isEnabled());
}

TEST_F(ChooseLoaderDialogTest, AnUnusableSettingsFileIsReportedAndTheDialogWorksWithoutHistory)
{
    const QString path = QString::fromStdString(ApplicationSettings::getInstance().filePath());
    QFile::remove(path);
    ASSERT_TRUE(QDir().mkpath(path)); // a folder where the file should be: unreadable, unwritable
    restart();
    ChooseLoaderDialog* dialog = chooser(datSuggestions(), {".dat"});
    EXPECT_EQ(selectedText(*dialog), "<none>");
    user::open(*dialog);
    clickRow(*dialog, "Point cloud");
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(dialog->selectedLoader(), pointCloud);
    EXPECT_FALSE(ApplicationSettings::getInstance().lastError().empty());
    QDir(path).removeRecursively();

    // A file with garbage in it: the readable entries are kept.
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("\x01\x02 no equals sign\n=\nLastLoaderUsedForExt_.dat=Text table\n");
    file.close();
    restart();
    dialog = chooser(datSuggestions(), {".dat"});
    EXPECT_EQ(selectedText(*dialog), "Text table");
}

} // namespace
