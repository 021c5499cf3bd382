#include <QFile>
#include <gtest/gtest.h>
#include "framework/HelpViewer.h"
#include "framework/LaunchHelpAction.h"
#include "platform/kernel/KernelTestSupport.h"
#include "prompt/AnchorAlignmentDialog.h"
#include "prompt/ChooseLoaderDialog.h"
#include "prompt/EnterASCIICharacterDialog.h"

using orrery::dialogs::common::HelpViewer;
using orrery::dialogs::common::LaunchHelpAction;
using namespace orrery::dialogs::prompt;

namespace {

const char* const Pages[] = {"choose_loader.html",      "enter_ascii_character.html", "anchor_alignment.html",
                             "select_color.html",       "select_mapping_zone.html",   "select_variable.html",
                             "rgb_coloring_options.html", "scatter_size_font.html",   "symbol_font.html"};

TEST(HelpPagesTest, EveryPageTheDialogsNameShipsWithATitleAndContent)
{
    QWidget owner;
    for (const char* page : Pages)
    {
        SCOPED_TRACE(page);
        HelpViewer* viewer = HelpViewer::showPage(page, &owner);
        EXPECT_TRUE(viewer->pageFound());
        EXPECT_FALSE(viewer->windowTitle().isEmpty());
        EXPECT_NE(viewer->windowTitle(), "Help");
        EXPECT_GT(viewer->text().size(), 150);
    }
}

TEST(HelpPagesTest, TheDialogsOpenShippedPages)
{
    orrery::kernel::testing::KernelTestSupport::resetKernel();
    QWidget parent;
    const orrery::dialogs::common::QtDialogAbstract* dialogs[] = {
        AnchorAlignmentDialog::getInstance(AnchorAlignment_TopLeft, parent),
        ChooseLoaderDialog::getInstance(parent, {}, {}),
        EnterASCIICharacterDialog::getInstance(parent, "a", true, Font_Greek),
    };
    for (const orrery::dialogs::common::QtDialogAbstract* dialog : dialogs)
    {
        auto* help = qobject_cast<LaunchHelpAction*>(dialog->helpAction());
        ASSERT_NE(help, nullptr);
        EXPECT_TRUE(QFile::exists(":/help/" + QString::fromStdString(help->helpPage()))) << help->helpPage();
    }
}

} // namespace
