#pragma once
// Every prompt dialog, opened the way its host opens it, for the checks that
// must hold for all of them (layout and language, lifetime).
#include <functional>
#include <ostream>
#include <string>
#include <vector>
#include <boost/make_shared.hpp>
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

namespace everydialog {

using namespace orrery::dialogs::prompt;
using orrery::dialogs::common::QtDialogAbstract;

struct Opener
{
    std::string name; // also a test name suffix: letters only
    std::function<QtDialogAbstract*(QWidget&)> open;
};

// Names the dialog in test listings instead of dumping the object's bytes.
inline void PrintTo(const Opener& opener, std::ostream* out)
{
    *out << opener.name;
}

inline const std::vector<Opener>& openers()
{
    static const std::vector<Opener> all = {
        {"TextString", [](QWidget& p) { return new EnterTextStringDialog(p, "", "Frame 1", "", false); }},
        {"ThreeIntegerValues",
         [](QWidget& p) {
             return EnterThreeIntValuesDialog::getInstance(p, 1, 10, 1, "Index Range", "", "&Begin", "&End", "&Skip",
                                                           1, 1, 1);
         }},
        {"ASCIICharacter", [](QWidget& p) { return EnterASCIICharacterDialog::getInstance(p, "A", true, Font_Greek); }},
        {"AnchorAlignment",
         [](QWidget& p) { return AnchorAlignmentDialog::getInstance(AnchorAlignment_MiddleCenter, p); }},
        {"LoaderChooser",
         [](QWidget& p) {
             return ChooseLoaderDialog::getInstance(
                 p, orrery::sdk::DataLoaderRepository::getInstance().loadersForExtension("dat"), {".dat"});
         }},
        {"ColourChooser", [](QWidget& p) { return ColorChooserDialog::getInstance(p, true); }},
        {"RGBColouringOptions", [](QWidget& p) { return RGBColorOptsDialog::getInstance(p); }},
        {"ScatterSizeAndFont", [](QWidget& p) { return ScatterSizeFontDialog::getInstance(p); }},
        {"ZoneSelection", [](QWidget& p) { return ZoneSelectDialog::getInstance(p, 1); }},
        {"AxisVariables", [](QWidget& p) { return AxisVariableSelectDialog::getInstance(p); }},
        {"VectorVariables", [](QWidget& p) { return VectorVariableSelectDialog::getInstance(p, PlotType_TwoD); }},
        {"RGBVariables", [](QWidget& p) { return RGBVariableSelectDialog::getInstance(p); }},
        {"AddonVariables",
         [](QWidget& p) {
             auto var = [](int v) { return boost::make_shared<orrery::Property<int>>(v); };
             return AddonsVariableSelectDialog::getInstance(p, "Choose the inputs.", "&First:", "&Second:", "&Third:",
                                                            var(1), var(2), var(3));
         }},
    };
    return all;
}

} // namespace everydialog
