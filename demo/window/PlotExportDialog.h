#pragma once
#include <QDialog>
#include <QSize>

class QSpinBox;

// Asks how large an exported plot is to be: its width and height in logical
// pixels (as on a screen at 100 %) and the resolution a PNG is written at.
class PlotExportDialog : public QDialog
{
    Q_OBJECT
public:
    PlotExportDialog(const QSize& size, QWidget* parent = nullptr);

    QSize plotSize() const;
    int dotsPerInch() const;
    // Pixels of a PNG to one logical pixel.
    double ratio() const;

private:
    QSpinBox* m_width;
    QSpinBox* m_height;
    QSpinBox* m_dpi;
};
