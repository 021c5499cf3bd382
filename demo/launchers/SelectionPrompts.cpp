#include "demo/launchers/SelectionPrompts.h"

#include <QComboBox>
#include <QListView>
#include <boost/make_shared.hpp>
#include "core/property/Property.h"
#include "demo/common/DemoUser.h"
#include "demo/launchers/StyleWrites.h"
#include "demo/common/Translations.h"
#include "platform/kernel/OrrUtil.h"
#include "prompts/prompt/AddonsVariableSelectDialog.h"
#include "prompts/prompt/AxisVariableSelectDialog.h"
#include "prompts/prompt/RGBVariableSelectDialog.h"
#include "prompts/prompt/VectorVariableSelectDialog.h"
#include "prompts/prompt/ZoneSelectDialog.h"

using namespace orrery::dialogs::prompt;

namespace {

StyleWrites styleWrites;

struct AddonInputs
{
    boost::shared_ptr<orrery::Property<int>> source = boost::make_shared<orrery::Property<int>>(1);
    boost::shared_ptr<orrery::Property<int>> weight = boost::make_shared<orrery::Property<int>>(2);
    boost::shared_ptr<orrery::Property<int>> unused = boost::make_shared<orrery::Property<int>>(0);
};

AddonInputs& addonInputs()
{
    static AddonInputs inputs;
    return inputs;
}

// Before a variable dialog opens: a dialog of its own, and a fresh record.
void prepareVariableDialog()
{
    SelectionPrompts::dropVariableDialog();
    styleWrites.start();
}

} // namespace

void SelectionPrompts::dropVariableDialog()
{
    delete VariableSelectDialog::liveInstance();
}

VariableSelectDialog* SelectionPrompts::openAxisVariables(QWidget& parent)
{
    prepareVariableDialog();
    return AxisVariableSelectDialog::getInstance(parent);
}

void SelectionPrompts::driveAxisVariables(VariableSelectDialog& d)
{
    DemoUser::choose(*d.findChild<QComboBox*>("var2_comboBox"), "Temperature");
}

VariableSelectDialog* SelectionPrompts::openVectorVariables(QWidget& parent)
{
    prepareVariableDialog();
    return VectorVariableSelectDialog::getInstance(parent, OrrUtilFrameGetPlotType());
}

void SelectionPrompts::driveVectorVariables(VariableSelectDialog& d)
{
    DemoUser::choose(*d.findChild<QComboBox*>("var1_comboBox"), "Pressure");
}

VariableSelectDialog* SelectionPrompts::openRGBVariables(QWidget& parent)
{
    prepareVariableDialog();
    return RGBVariableSelectDialog::getInstance(parent);
}

void SelectionPrompts::driveRGBVariables(VariableSelectDialog& d)
{
    DemoUser::choose(*d.findChild<QComboBox*>("var3_comboBox"), "Y");
}

QString SelectionPrompts::variableAnswers(VariableSelectDialog&)
{
    return styleWrites.report();
}

AddonsVariableSelectDialog* SelectionPrompts::openAddonVariables(QWidget& parent)
{
    styleWrites.start();
    AddonInputs& inputs = addonInputs();
    // The dialog translates only its own texts: a host passes its own translated.
    static std::string instructions, source, weight;
    instructions = Translations::forDialog(QT_TRANSLATE_NOOP("DialogCatalog", "Choose the add-on's input variables."));
    source = Translations::forDialog(QT_TRANSLATE_NOOP("DialogCatalog", "&Source:"));
    weight = Translations::forDialog(QT_TRANSLATE_NOOP("DialogCatalog", "&Weight:"));
    return AddonsVariableSelectDialog::getInstance(parent, instructions.c_str(), source.c_str(), weight.c_str(),
                                                   nullptr, inputs.source, inputs.weight, inputs.unused);
}

void SelectionPrompts::driveAddonVariables(AddonsVariableSelectDialog& d)
{
    DemoUser::choose(*d.findChild<QComboBox*>("var2_comboBox"), "Pressure");
}

QString SelectionPrompts::addonAnswers(AddonsVariableSelectDialog&)
{
    return Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "source = %1, weight = %2, %3"))
        .arg(addonInputs().source->getValue())
        .arg(addonInputs().weight->getValue())
        .arg(styleWrites.report());
}

ZoneSelectDialog* SelectionPrompts::openZone(QWidget& parent)
{
    return ZoneSelectDialog::getInstance(parent, 1);
}

void SelectionPrompts::driveZone(ZoneSelectDialog& d)
{
    auto* list = d.findChild<QListView*>("Zone_Source_MList");
    if (list->model()->rowCount() > 1)
        DemoUser::selectRow(*list, list->model()->index(1, 0).data().toString());
}

QString SelectionPrompts::zoneAnswers(ZoneSelectDialog& d)
{
    return Translations::text(QT_TRANSLATE_NOOP("DialogCatalog", "zone = %1")).arg(d.selectedZone());
}
