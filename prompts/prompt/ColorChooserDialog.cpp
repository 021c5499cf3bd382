#include "prompts/prompt/ColorChooserDialog.h"

#include <exception>
#include <QCoreApplication>
#include <QGridLayout>
#include <QIcon>
#include "framework/LaunchHelpAction.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/AppLock.h"
#include "platform/sdk/DataSetQueries.h"
#include "platform/toolbox/StyleValue.h"
#include "prompts/prompt/ColorChooserWidget.h"
#include "prompts/prompt/RGBVariableSelectDialog.h"
#include "ui_ColorChooser.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace {
const char* const BasicColorNames[8] = {
    QT_TRANSLATE_NOOP("ColorChooser", "Black"), QT_TRANSLATE_NOOP("ColorChooser", "Red"),
    QT_TRANSLATE_NOOP("ColorChooser", "Green"), QT_TRANSLATE_NOOP("ColorChooser", "Blue"),
    QT_TRANSLATE_NOOP("ColorChooser", "Cyan"),  QT_TRANSLATE_NOOP("ColorChooser", "Yellow"),
    QT_TRANSLATE_NOOP("ColorChooser", "Purple"), QT_TRANSLATE_NOOP("ColorChooser", "White")};
const int FirstCustomColor = 8;
const int NumColors = 64;
const int RGBColoring = -6;
} // namespace

ColorChooserDialog* ColorChooserDialog::getInstance(QWidget& parent, bool enableVarColoring)
{
    ColorChooserDialog* dialog = obtain(parent);
    if (dialog->parentWidget() != &parent)
        dialog->setParent(&parent, dialog->windowFlags());
    dialog->setEnableVarColoring(enableVarColoring);
    return dialog;
}

std::string ColorChooserDialog::colorToString(int colorIndex, bool shortForm)
{
    if (colorIndex >= 0 && colorIndex < FirstCustomColor)
        return BasicColorNames[colorIndex];
    if (colorIndex >= FirstCustomColor && colorIndex < NumColors)
        return (shortForm ? "Cust " : "CUSTOM") + std::to_string(colorIndex - FirstCustomColor + 1);
    switch (colorIndex)
    {
    case -1: return "Multi";
    case -3: return "Multi2";
    case -4: return "Multi3";
    case -5: return "Multi4";
    case RGBColoring: return "RGBCOLOR";
    case -7: return "Multi5";
    case -8: return "Multi6";
    case -9: return "Multi7";
    case -10: return "Multi8";
    default: return std::string();
    }
}

QString ColorChooserDialog::colorDisplayName(int colorIndex, bool shortForm)
{
    if (colorIndex >= 0 && colorIndex < FirstCustomColor)
        return QCoreApplication::translate("ColorChooser", BasicColorNames[colorIndex]);
    const int custom = colorIndex - FirstCustomColor + 1;
    if (colorIndex >= FirstCustomColor && colorIndex < NumColors)
        return (shortForm ? QCoreApplication::translate("ColorChooser", "Cust %1")
                          : QCoreApplication::translate("ColorChooser", "Custom color %1"))
            .arg(custom);
    if (colorIndex == RGBColoring)
        return QCoreApplication::translate("ColorChooser", "RGBCOLOR");
    static const int multiColorings[8] = {-1, -3, -4, -5, -7, -8, -9, -10};
    for (int i = 0; i < 8; ++i)
        if (colorIndex == multiColorings[i])
            return i == 0 ? QCoreApplication::translate("ColorChooser", "Multi")
                          : QCoreApplication::translate("ColorChooser", "Multi%1").arg(i + 1);
    return QString();
}

const QString& ColorChooserDialog::multiColorIconPath()
{
    static const QString MUTLI_COLOR_ICON_PATH(":/icons/multi_color.bmp");
    return MUTLI_COLOR_ICON_PATH;
}

ColorChooserDialog::ColorChooserDialog(QWidget& parent)
    : QtDialogAbstract(parent, RelevancePtr()), m_ui(new Ui_ColorChooser), m_selectedColor(0)
{
    setHelpAction(new common::LaunchHelpAction("select_color.html", *this));
    m_ui->setupUi(this);
    auto* frameLayout = new QGridLayout(m_ui->buttonGridFrame);
    auto* grid = new ColorChooserWidget(m_ui->buttonGridFrame);
    frameLayout->addWidget(grid, 0, 0);
    m_connections.add(grid->connectToColorSelectedSignal([this](int colorIndex) { colorSelected(colorIndex); }));
    m_ui->C1->setIcon(QIcon(multiColorIconPath()));
}

ColorChooserDialog::~ColorChooserDialog() = default;

void ColorChooserDialog::setEnableVarColoring(bool enable)
{
    for (QToolButton* button : {m_ui->C1, m_ui->C2, m_ui->C3, m_ui->C4, m_ui->C5, m_ui->C6, m_ui->C7, m_ui->C8,
                                m_ui->RGB})
        button->setEnabled(enable);
}

void ColorChooserDialog::colorSelected(int colorIndex)
{
    m_selectedColor = colorIndex;
    accept();
}

// The multi colourings skip -2 and -6 (RGB colouring): the kernel's numbering.
void ColorChooserDialog::on_C1_clicked(bool) { colorSelected(-1); }
void ColorChooserDialog::on_C2_clicked(bool) { colorSelected(-3); }
void ColorChooserDialog::on_C3_clicked(bool) { colorSelected(-4); }
void ColorChooserDialog::on_C4_clicked(bool) { colorSelected(-5); }
void ColorChooserDialog::on_C5_clicked(bool) { colorSelected(-7); }
void ColorChooserDialog::on_C6_clicked(bool) { colorSelected(-8); }
void ColorChooserDialog::on_C7_clicked(bool) { colorSelected(-9); }
void ColorChooserDialog::on_C8_clicked(bool) { colorSelected(-10); }

void ColorChooserDialog::on_RGB_clicked(bool)
{
    bool assigned = false;
    {
        // Only the check runs busy: the variable dialog below needs idle
        // moments to refresh its lists.
        sdk::AppLock lock;
        assigned = sdk::checkRGBChannelVars(toolbox::StyleValue("GlobalRGB"));
    }
    if (assigned || askForRGBChannelVariables(*this))
        colorSelected(RGBColoring);
}

bool askForRGBChannelVariables(QWidget& parent)
{
    try
    {
        VariableSelectDialog* variables = RGBVariableSelectDialog::getInstance(parent);
        variables->launch();
        return variables->result() == QDialog::Accepted;
    }
    catch (const std::exception& failure)
    {
        // Runs from a button: a dialog that cannot be set up counts as declined.
        OrrUtilDialogMessageBox(failure.what(), MessageBoxType_Error);
        return false;
    }
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
