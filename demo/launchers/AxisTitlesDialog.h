#pragma once
#include <string>
#include <vector>
#include <QDialog>

class QLineEdit;

// Asks for the titles of the current frame's axes, a unit and all
// ("Temperature (K)"). A title left empty is the axis variable's name.
class AxisTitlesDialog : public QDialog
{
    Q_OBJECT
public:
    explicit AxisTitlesDialog(QWidget* parent = nullptr);

    // The style paths of the titles and what the fields hold, axis by axis.
    const std::vector<std::string>& paths() const { return m_paths; }
    std::vector<std::string> titles() const;

private:
    std::vector<std::string> m_paths;
    std::vector<QLineEdit*> m_fields;
};
