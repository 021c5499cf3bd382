#include <stdexcept>
#include <QPointer>
#include <QWidget>
#include <gtest/gtest.h>
#include "framework/SingleInstanceDialog.h"

using orrery::dialogs::prompt::SingleInstanceDialog;

namespace {

class Probe : public QWidget, public SingleInstanceDialog<Probe>
{
public:
    Probe(QWidget& parent, bool fail) : QWidget(&parent)
    {
        if (fail)
            throw std::runtime_error("construction failed");
    }
    static Probe* getInstance(QWidget& parent, bool fail = false) { return obtain(parent, fail); }
    // As a dialog's drop(): it waits for its deletion from now on.
    bool isDropped() const { return dropped; }
    bool dropped = false;
};

TEST(SingleInstanceDialogTest, AFailedConstructionOrAnotherObjectLeavesTheRegistrationAloneADestroyedOneIsRebuilt)
{
    auto* firstParent = new QWidget;
    QPointer<Probe> first = Probe::getInstance(*firstParent);
    delete firstParent; // takes the live dialog with it
    EXPECT_TRUE(first.isNull());
    EXPECT_EQ(Probe::liveInstance(), nullptr);

    QWidget parent;
    EXPECT_THROW(Probe::getInstance(parent, true), std::runtime_error);
    EXPECT_EQ(Probe::liveInstance(), nullptr);
    EXPECT_TRUE(parent.findChildren<Probe*>().isEmpty());
    Probe* probe = Probe::getInstance(parent);
    EXPECT_EQ(Probe::liveInstance(), probe);
    EXPECT_EQ(probe->parentWidget(), &parent);
    EXPECT_EQ(Probe::getInstance(parent, true), probe); // a live instance is not rebuilt
    {
        Probe directlyBuilt(parent, false);
    }
    EXPECT_EQ(Probe::liveInstance(), probe);

    probe->dropped = true;
    EXPECT_EQ(Probe::liveInstance(), nullptr);
    Probe* next = Probe::getInstance(parent);
    EXPECT_NE(next, probe);
    delete probe; // its deletion comes late, and must not unregister its successor
    EXPECT_EQ(Probe::liveInstance(), next);
}

} // namespace
