#include "demo/window/PlotExportDialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>

namespace {

// Screen pixels are 1/96 inch.
const int ScreenDpi = 96;

QSpinBox* spinBox(const QString& name, int min, int max, int value, const QString& suffix)
{
    auto* box = new QSpinBox;
    box->setObjectName(name);
    box->setRange(min, max);
    box->setValue(std::clamp(value, min, max));
    box->setSuffix(suffix);
    return box;
}

} // namespace

PlotExportDialog::PlotExportDialog(const QSize& size, QWidget* parent)
    : QDialog(parent), m_width(spinBox("exportWidth", 240, 20000, size.width(), tr(" px"))),
      m_height(spinBox("exportHeight", 180, 20000, size.height(), tr(" px"))),
      m_dpi(spinBox("exportDpi", 24, 2400, ScreenDpi, tr(" dpi")))
{
    setObjectName("PlotExportDialog");
    setWindowTitle(tr("Export Plot"));
    auto* form = new QFormLayout(this);
    const std::pair<QString, QSpinBox*> rows[] = {
        {tr("&Width:"), m_width}, {tr("&Height:"), m_height}, {tr("&Resolution (PNG):"), m_dpi}};
    for (const auto& [text, box] : rows) {
        auto* label = new QLabel(text);
        label->setBuddy(box);
        box->setAccessibleName(QString(text).remove('&').remove(':'));
        form->addRow(label, box);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

QSize PlotExportDialog::plotSize() const
{
    return QSize(m_width->value(), m_height->value());
}

int PlotExportDialog::dotsPerInch() const
{
    return m_dpi->value();
}

double PlotExportDialog::ratio() const
{
    return double(m_dpi->value()) / ScreenDpi;
}
