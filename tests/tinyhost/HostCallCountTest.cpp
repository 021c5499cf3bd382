// How often the dialogs ask the host for anything while they open. A host's
// operation may cost far more than a lookup (a remote kernel, a lock): what
// does not depend on a zone or variable is asked once per show, and what does
// is asked at most once for each, however large the data set.
#include <QCoreApplication>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <gtest/gtest.h>
#include "platform/common/IdleQueue.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "prompts/prompt/AnchorAlignmentDialog.h"
#include "prompts/prompt/AxisVariableSelectDialog.h"
#include "prompts/prompt/ChooseLoaderDialog.h"
#include "prompts/prompt/ColorChooserDialog.h"
#include "prompts/prompt/EnterASCIICharacterDialog.h"
#include "prompts/prompt/EnterThreeIntValuesDialog.h"
#include "prompts/prompt/RGBColorOptsDialog.h"
#include "prompts/prompt/RGBVariableSelectDialog.h"
#include "prompts/prompt/ScatterSizeFontDialog.h"
#include "prompts/prompt/VectorVariableSelectDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"
#include "examples/tiny-host/TinyHost.h"

using namespace orrery::dialogs::prompt;
using orrery::dialogs::common::QtDialogAbstract;
using tinyhost::Host;

namespace {

const int Zones = 300;
const int Vars = 200;

// No dialog edits more style values than this.
const long StyleValues = 32;

// Operations asked about one zone, variable, colour or style value: at most once
// each per show. Every other operation is asked at most once per show.
const std::map<std::string, long> OncePerItem = {
    {"ZoneGetName", Zones},         {"FrameZoneIsEnabled", Zones},   {"VarGetName", Vars},
    {"FrameVarIsEnabled", Vars},    {"VarGetMinMax", Vars},          {"StringDealloc", Zones + Vars},
    {"StyleGetValue", StyleValues}, {"StyleNameGetID", StyleValues}, {"ColorMapGetBasicColorRGB", 64}};

struct Opening
{
    const char* name;
    std::function<QtDialogAbstract*(QWidget&)> open;
};

// Names the dialog in test listings instead of dumping the object's bytes.
void PrintTo(const Opening& opening, std::ostream* out)
{
    *out << opening.name;
}

const Opening Openings[] = {
    {"zone prompt", [](QWidget& p) { return ZoneSelectDialog::getInstance(p, 7); }},
    {"axis variables", [](QWidget& p) { return AxisVariableSelectDialog::getInstance(p); }},
    {"RGB variables", [](QWidget& p) { return RGBVariableSelectDialog::getInstance(p); }},
    {"vector variables", [](QWidget& p) { return VectorVariableSelectDialog::getInstance(p, PlotType_TwoD); }},
    {"RGB options", [](QWidget& p) { return RGBColorOptsDialog::getInstance(p); }},
    {"scatter size", [](QWidget& p) { return ScatterSizeFontDialog::getInstance(p); }},
    {"colour chooser", [](QWidget& p) { return ColorChooserDialog::getInstance(p, true); }},
    {"anchor", [](QWidget& p) { return AnchorAlignmentDialog::getInstance(AnchorAlignment_TopLeft, p); }},
    {"ASCII character", [](QWidget& p) { return EnterASCIICharacterDialog::getInstance(p, "A", true, Font_Math); }},
    {"three integers",
     [](QWidget& p) {
         return EnterThreeIntValuesDialog::getInstance(p, 1, 10, 1, "Range", "", "&Begin", "&End", "&Skip", 1, 1, 1);
     }},
    {"loader chooser",
     [](QWidget& p) {
         return ChooseLoaderDialog::getInstance(
             p, orrery::sdk::DataLoaderRepository::getInstance().loadersForExtension("tiny"), {".tiny"});
     }},
};

class HostCallCountTest : public ::testing::TestWithParam<Opening>
{
protected:
    void SetUp() override
    {
        Host::instance().reset();
        tinyhost::registerLoaders();
        std::vector<std::string> zones, vars;
        for (int z = 1; z <= Zones; ++z)
            zones.push_back("Zone " + std::to_string(z));
        for (int v = 1; v <= Vars; ++v)
            vars.push_back("Var " + std::to_string(v));
        Host::instance().replaceDataSet(
            zones, vars,
            std::vector<std::vector<std::vector<double>>>(Zones, std::vector<std::vector<double>>(Vars, {1.0, 2.0})));
        settle();
    }
    static void settle()
    {
        QCoreApplication::processEvents();
        orrery::sdk::ui::common::IdleQueue::instance().flush();
    }
    // What fetching and showing the dialog asked of the host, once it has settled.
    static std::map<std::string, long> askedToShow(QWidget& parent, QtDialogAbstract*& dialog)
    {
        Host::instance().asked.clear();
        dialog = GetParam().open(parent);
        dialog->show();
        settle();
        return Host::instance().asked;
    }
    static void expectFew(const std::map<std::string, long>& asked, const char* when)
    {
        for (const auto& [operation, count] : asked) {
            const auto item = OncePerItem.find(operation);
            EXPECT_LE(count, item == OncePerItem.end() ? 1 : item->second) << operation << " " << when;
        }
    }
    QWidget parent;
};

TEST_P(HostCallCountTest, EachOperationIsAskedOncePerShowOrOncePerItem)
{
    Host::instance().countAsked = true;
    QtDialogAbstract* dialog = nullptr;
    expectFew(askedToShow(parent, dialog), "on the first show");
    dialog->hide();
    settle();
    QtDialogAbstract* first = dialog;
    expectFew(askedToShow(parent, dialog), "on a later show");
    EXPECT_EQ(dialog, first) << "the live dialog again";
    delete dialog;
}

INSTANTIATE_TEST_SUITE_P(Dialogs, HostCallCountTest, ::testing::ValuesIn(Openings),
                         [](const ::testing::TestParamInfo<Opening>& info) {
                             std::string name;
                             for (const char* c = info.param.name; *c; ++c)
                                 if (std::isalpha(static_cast<unsigned char>(*c)))
                                     name += *c;
                             return name;
                         });

} // namespace
