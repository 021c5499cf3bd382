#include <QFile>
#include <set>
#include "tests/prompts/prompt/DialogTestSupport.h"
#include "tests/support/EveryDialog.h"
#include "framework/HelpViewer.h"
#include "framework/LaunchHelpAction.h"

using orrery::dialogs::common::HelpViewer;
using orrery::dialogs::common::LaunchHelpAction;

namespace {

typedef dialogtest::DialogTest HelpPagesTest;

TEST_F(HelpPagesTest, EveryPageTheDialogsNameShipsWithATitleAndContent)
{
    // The scatter dialog names its symbol font page only on line plots.
    std::set<std::string> pages = {"symbol_font.html"};
    for (const everydialog::Opener& opener : everydialog::openers()) {
        everydialog::QtDialogAbstract* dialog = opener.open(parent);
        if (auto* help = qobject_cast<LaunchHelpAction*>(dialog->helpAction())) {
            if (!help->helpPage().empty())
                pages.insert(help->helpPage());
        }
        delete dialog;
    }
    EXPECT_EQ(pages, (std::set<std::string>{"anchor_alignment.html", "choose_loader.html", "enter_ascii_character.html",
                                            "enter_three_integers.html", "rgb_coloring_options.html",
                                            "scatter_size_font.html", "select_color.html", "select_mapping_zone.html",
                                            "select_variable.html", "symbol_font.html"}));
    for (const std::string& page : pages) {
        SCOPED_TRACE(page);
        EXPECT_TRUE(QFile::exists(":/help/" + QString::fromStdString(page)));
        HelpViewer* viewer = HelpViewer::showPage(QString::fromStdString(page), &parent);
        EXPECT_TRUE(viewer->pageFound());
        EXPECT_FALSE(viewer->windowTitle().isEmpty());
        EXPECT_NE(viewer->windowTitle(), "Help");
        EXPECT_GT(viewer->text().size(), 150);
    }
}

} // namespace
