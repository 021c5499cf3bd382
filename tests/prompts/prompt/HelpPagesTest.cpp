#include <QFile>
#include "tests/prompts/prompt/DialogTestSupport.h"
#include "framework/HelpViewer.h"
#include "framework/LaunchHelpAction.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"
#include "prompts/prompt/RGBVariableSelectDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"

using orrery::dialogs::common::HelpViewer;
using orrery::dialogs::common::LaunchHelpAction;
using namespace orrery::dialogs::prompt;

namespace {

TEST(HelpPagesTest, EveryPageTheDialogsNameShipsWithATitleAndContent)
{
    testsupport::Kernel::resetKernel();
    QWidget owner;
    std::vector<std::string> pages = {"select_color.html", "select_mapping_zone.html", "select_variable.html",
                                      "rgb_coloring_options.html", "scatter_size_font.html", "symbol_font.html"};
    const orrery::dialogs::common::QtDialogAbstract* dialogs[] = {
        AnchorAlignmentDialog::getInstance(AnchorAlignment_TopLeft, owner),
        ChooseLoaderDialog::getInstance(owner, {}, {}),
        EnterASCIICharacterDialog::getInstance(owner, "a", true, Font_Greek),
        ZoneSelectDialog::getInstance(owner, 1),
        RGBVariableSelectDialog::getInstance(owner),
    };
    for (const orrery::dialogs::common::QtDialogAbstract* dialog : dialogs)
    {
        auto* help = qobject_cast<LaunchHelpAction*>(dialog->helpAction());
        ASSERT_NE(help, nullptr);
        EXPECT_TRUE(QFile::exists(":/help/" + QString::fromStdString(help->helpPage()))) << help->helpPage();
        pages.push_back(help->helpPage());
    }
    for (const std::string& page : pages)
    {
        SCOPED_TRACE(page);
        HelpViewer* viewer = HelpViewer::showPage(QString::fromStdString(page), &owner);
        EXPECT_TRUE(viewer->pageFound());
        EXPECT_FALSE(viewer->windowTitle().isEmpty());
        EXPECT_NE(viewer->windowTitle(), "Help");
        EXPECT_GT(viewer->text().size(), 150);
    }
}

} // namespace
