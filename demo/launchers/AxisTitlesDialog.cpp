#include "demo/launchers/AxisTitlesDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include "demo/scene/HostStyle.h"
#include "demo/scene/HostText.h"
#include "host/kernel/OrrUtilHost.h"

AxisTitlesDialog::AxisTitlesDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName("AxisTitlesDialog");
    setWindowTitle(tr("Axis Titles"));
    const bool threeD = OrrUtilFrameGetPlotType() == PlotType_ThreeD;
    const std::string root = threeD ? "ThreeDAxis/" : "TwoDAxis/";
    const char* axes[] = {"XDetail", "YDetail", "ZDetail"};
    const QString labels[] = {tr("&X axis:"), tr("&Y axis:"), tr("&Z axis:")};
    auto* form = new QFormLayout(this);
    for (int a = 0; a < (threeD ? 3 : 2); ++a) {
        m_paths.push_back(root + axes[a] + "/Title");
        auto* field = new QLineEdit(QString::fromStdString(HostStyle::text(m_paths.back())));
        field->setObjectName(QString("axisTitle%1").arg(QChar('X' + a)));
        // The name it stands for while empty.
        field->setPlaceholderText(takeHostText(OrrUtilVarGetName(int(HostStyle::integer(root + axes[a] + "/VarNum")))));
        field->setMinimumWidth(fontMetrics().averageCharWidth() * 32);
        field->setAccessibleName(QString(labels[a]).remove('&').remove(':'));
        auto* label = new QLabel(labels[a]);
        label->setBuddy(field);
        form->addRow(label, field);
        m_fields.push_back(field);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

std::vector<std::string> AxisTitlesDialog::titles() const
{
    std::vector<std::string> titles;
    for (const QLineEdit* field : m_fields)
        titles.push_back(field->text().trimmed().toStdString());
    return titles;
}
