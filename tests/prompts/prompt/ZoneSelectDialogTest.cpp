#include <QListView>
#include <QScrollBar>
#include "tests/prompts/prompt/DialogTestSupport.h"
#include "host/kernel/DataSet.h"
#include "prompts/prompt/ZoneSelectDialog.h"

using namespace dialogtest;
using Texts = std::vector<std::string>;

namespace {

class ZoneSelectDialogTest : public DialogTest
{
protected:
    void TearDown() override { delete ZoneSelectDialog::liveInstance(); }

    // A data set of count zones named "Zone 1" ...
    static void loadZones(int count)
    {
        orrery::kernel::DataSet zones("Zones", {"X", "Y"});
        for (int z = 1; z <= count; ++z)
            zones.addZone("Zone " + std::to_string(z), {{double(z)}, {0}});
        Kernel::setDataSet(zones);
    }
    ZoneSelectDialog* prompt(int zone)
    {
        ZoneSelectDialog* dialog = ZoneSelectDialog::getInstance(parent, zone);
        user::open(*dialog);
        runIdle();
        return dialog;
    }
    static QListView* list(QWidget& d) { return d.findChild<QListView*>("Zone_Source_MList"); }
    static Texts rows(QWidget& d)
    {
        Texts texts;
        for (int r = 0; r < list(d)->model()->rowCount(); ++r)
            texts.push_back(list(d)->model()->index(r, 0).data().toString().toStdString());
        return texts;
    }
    static Texts selected(QWidget& d)
    {
        Texts texts;
        for (const QModelIndex& index : list(d)->selectionModel()->selectedRows())
            texts.push_back(index.data().toString().toStdString());
        return texts;
    }
    static bool rowVisible(QWidget& d, int row)
    {
        QListView* view = list(d);
        return view->viewport()->rect().intersects(view->visualRect(view->model()->index(row, 0)));
    }
};

TEST_F(ZoneSelectDialogTest, GivenZoneIsSelectedAndScrolledIntoView)
{
    loadZones(200);
    ZoneSelectDialog* dialog = prompt(150);
    EXPECT_EQ(Texts{"Zone 150"}, selected(*dialog));
    EXPECT_TRUE(rowVisible(*dialog, 149));
    EXPECT_FALSE(rowVisible(*dialog, 0));
    user::press(*dialog, QDialogButtonBox::Ok);
    EXPECT_EQ(QDialog::Accepted, dialog->result());
    EXPECT_EQ(150, dialog->selectedZone());

    // Called again: the same dialog, now showing the new zone.
    EXPECT_EQ(dialog, prompt(3));
    EXPECT_EQ(Texts{"Zone 3"}, selected(*dialog));
    EXPECT_TRUE(rowVisible(*dialog, 2));
}

TEST_F(ZoneSelectDialogTest, UserPicksByClickDoubleClickOrClearsTheChoice)
{
    ZoneSelectDialog* dialog = prompt(1);
    EXPECT_EQ((Texts{"Inlet", "Channel", "Outlet"}), rows(*dialog));
    user::clickRow(*list(*dialog), 2);
    runIdle();
    EXPECT_EQ(3, dialog->selectedZone());

    // Ctrl-click on the chosen zone leaves none chosen.
    QTest::mouseClick(list(*dialog)->viewport(), Qt::LeftButton, Qt::ControlModifier,
                      list(*dialog)->visualRect(list(*dialog)->model()->index(2, 0)).center());
    runIdle();
    EXPECT_EQ(Texts{}, selected(*dialog));
    EXPECT_EQ(0, dialog->selectedZone());

    const QRect second = list(*dialog)->visualRect(list(*dialog)->model()->index(1, 0));
    QTest::mouseClick(list(*dialog)->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
    QTest::mouseDClick(list(*dialog)->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(QDialog::Accepted, dialog->result());
    EXPECT_EQ(2, dialog->selectedZone());
}

TEST_F(ZoneSelectDialogTest, ListFollowsTheEnabledZonesWhileOpen)
{
    Kernel::setEnabledZones({2, 3});
    ZoneSelectDialog* dialog = prompt(3);
    // Row 2 does not exist: the zone is kept but no row is scrolled to.
    EXPECT_EQ((Texts{"Channel", "Outlet"}), rows(*dialog));
    EXPECT_EQ(Texts{"Outlet"}, selected(*dialog));
    EXPECT_EQ(3, dialog->selectedZone());

    Kernel::setEnabledZones({1, 2});
    runIdle();
    EXPECT_EQ((Texts{"Inlet", "Channel"}), rows(*dialog));
    EXPECT_EQ(0, dialog->selectedZone()) << "a zone that went is no longer the choice";

    user::clickRow(*list(*dialog), 1);
    runIdle();
    Kernel::setEnabledZones({1, 2, 3});
    runIdle();
    EXPECT_EQ((Texts{"Inlet", "Channel", "Outlet"}), rows(*dialog));
    EXPECT_EQ(Texts{"Channel"}, selected(*dialog));
    EXPECT_EQ(2, dialog->selectedZone());

    // Another file with as many zones: the new names, not the shown ones kept.
    loadZones(3);
    runIdle();
    EXPECT_EQ((Texts{"Zone 1", "Zone 2", "Zone 3"}), rows(*dialog));

    // A zone the data set does not have is left as given.
    EXPECT_EQ(99, prompt(99)->selectedZone());
    EXPECT_EQ(Texts{}, selected(*dialog));
}

TEST_F(ZoneSelectDialogTest, WithoutDataSetTheDialogIsNotUsableAndNotCrashing)
{
    Kernel::clearDataSet();
    ZoneSelectDialog* dialog = ZoneSelectDialog::getInstance(parent, 1);
    EXPECT_FALSE(dialog->isRelevant());
    dialog->launch();
    EXPECT_EQ(QDialog::Rejected, dialog->result());
    EXPECT_EQ(Texts{}, rows(*dialog));
    EXPECT_EQ(1, dialog->selectedZone());

    delete dialog;
    EXPECT_EQ(nullptr, ZoneSelectDialog::liveInstance());
    Kernel::loadSampleDataSet();
    ZoneSelectDialog* fresh = prompt(2);
    EXPECT_TRUE(fresh->isRelevant());
    EXPECT_EQ(Texts{"Channel"}, selected(*fresh));
}

} // namespace
