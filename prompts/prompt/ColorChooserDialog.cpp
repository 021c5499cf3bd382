#include "prompts/prompt/ColorChooserDialog.h"

#include <exception>
#include <QCoreApplication>
#include <QGridLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QPixmap>
#include "framework/LaunchHelpAction.h"
#include "platform/common/HostCall.h"
#include "platform/common/SignalConnectionCollection.h"
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
    QT_TRANSLATE_NOOP("ColorChooser", "Black"),  QT_TRANSLATE_NOOP("ColorChooser", "Red"),
    QT_TRANSLATE_NOOP("ColorChooser", "Green"),  QT_TRANSLATE_NOOP("ColorChooser", "Blue"),
    QT_TRANSLATE_NOOP("ColorChooser", "Cyan"),   QT_TRANSLATE_NOOP("ColorChooser", "Yellow"),
    QT_TRANSLATE_NOOP("ColorChooser", "Purple"), QT_TRANSLATE_NOOP("ColorChooser", "White")};
const int FirstCustomColor = 8;
const int NumColors = 64;
const int RGBColoring = -6;
// The kernel's numbers of the multi colourings, which skip -2 and -6 (RGB colouring).
const int MultiColorings[8] = {-1, -3, -4, -5, -7, -8, -9, -10};

// 1 to 8 for a multi colouring, 0 for any other index.
int multiColoringNumber(int colorIndex)
{
    for (int i = 0; i < 8; ++i)
        if (colorIndex == MultiColorings[i])
            return i + 1;
    return 0;
}
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
    if (colorIndex == RGBColoring)
        return "RGBCOLOR";
    const int multi = multiColoringNumber(colorIndex);
    if (multi == 0)
        return std::string();
    return multi == 1 ? "Multi" : "Multi" + std::to_string(multi);
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
    const int multi = multiColoringNumber(colorIndex);
    if (multi == 0)
        return QString();
    return multi == 1 ? QCoreApplication::translate("ColorChooser", "Multi")
                      : QCoreApplication::translate("ColorChooser", "Multi%1").arg(multi);
}

const QString& ColorChooserDialog::multiColorIconPath()
{
    static const QString MUTLI_COLOR_ICON_PATH(":/icons/multi_color.bmp");
    return MUTLI_COLOR_ICON_PATH;
}

namespace {
// The swatches name their colours; these name what they colour by.
void showToolTips(Ui_ColorChooser& ui)
{
    QToolButton* const multi[8] = {ui.C1, ui.C2, ui.C3, ui.C4, ui.C5, ui.C6, ui.C7, ui.C8};
    for (int n = 1; n <= 8; ++n)
        multi[n - 1]->setToolTip(
            QCoreApplication::translate("ColorChooser", "Multi-colouring %1: coloured by a variable").arg(n));
    ui.RGB->setToolTip(
        QCoreApplication::translate("ColorChooser", "RGB colouring: red, green and blue from three variables"));
}
} // namespace

ColorChooserDialog::ColorChooserDialog(QWidget& parent)
    : QtDialogAbstract(parent, RelevancePtr()), m_ui(new Ui_ColorChooser), m_selectedColor(0),
      m_connections(new SignalConnectionCollection)
{
    setHelpAction(new common::LaunchHelpAction("select_color.html", *this));
    m_ui->setupUi(this);
    auto* frameLayout = new QGridLayout(m_ui->buttonGridFrame);
    auto* grid = new ColorChooserWidget(m_ui->buttonGridFrame);
    frameLayout->addWidget(grid, 0, 0);
    m_connections->add(grid->connectToColorSelectedSignal([this](int colorIndex) { colorSelected(colorIndex); }));
    // Through QPixmap, which keeps the decoded image for the next chooser;
    // an icon made from the path decodes it every time.
    m_ui->C1->setIcon(QIcon(QPixmap(multiColorIconPath())));
    showToolTips(*m_ui);
}

void ColorChooserDialog::retranslate()
{
    m_ui->retranslateUi(this);
    showToolTips(*m_ui);
}

ColorChooserDialog::~ColorChooserDialog() = default;

void ColorChooserDialog::setEnableVarColoring(bool enable)
{
    for (QToolButton* button :
         {m_ui->C1, m_ui->C2, m_ui->C3, m_ui->C4, m_ui->C5, m_ui->C6, m_ui->C7, m_ui->C8, m_ui->RGB})
        button->setEnabled(enable);
}

void ColorChooserDialog::showEvent(QShowEvent* event)
{
    m_keysPressedHere.clear();
    QCoreApplication::instance()->installEventFilter(this);
    QtDialogAbstract::showEvent(event);
}

void ColorChooserDialog::hideEvent(QHideEvent* event)
{
    QCoreApplication::instance()->removeEventFilter(this);
    QtDialogAbstract::hideEvent(event);
}

bool ColorChooserDialog::eventFilter(QObject* watched, QEvent* event)
{
    const bool press = event->type() == QEvent::KeyPress;
    if ((!press && event->type() != QEvent::KeyRelease) || !watched->isWidgetType()
        || (watched != this && !isAncestorOf(static_cast<QWidget*>(watched))))
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->isAutoRepeat())
        return false;
    if (press) {
        m_keysPressedHere.insert(key->key());
        return false;
    }
    return m_keysPressedHere.erase(key->key()) == 0;
}

void ColorChooserDialog::colorSelected(int colorIndex)
{
    m_selectedColor = colorIndex;
    accept();
}

void ColorChooserDialog::multiColoringSelected(int number)
{
    colorSelected(MultiColorings[number - 1]);
}

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
    try {
        VariableSelectDialog* variables = RGBVariableSelectDialog::getInstance(parent);
        variables->launch();
        return variables->result() == QDialog::Accepted;
    } catch (const std::exception& failure) {
        // Runs from a button: a dialog that cannot be set up counts as declined.
        ORRERY_HOST_CALL(0, OrrUtilDialogMessageBox(failure.what(), MessageBoxType_Error));
        return false;
    }
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
