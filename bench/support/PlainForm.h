#pragma once
// The baseline a dialog is measured against: its own Designer form set up on a
// plain QDialog, showing what the dialog shows (texts, lists, values, buttons),
// with none of the dialog's classes behind it: no properties, bindings,
// relevance or host calls.
#include <functional>
#include <utility>
#include <vector>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMetaProperty>
#include <QStringList>
#include <QVariant>

namespace benchform {

// Runs what a shown dialog left to the event loop and to idle time.
void settle();

class PlainForm
{
public:
    // Builds the form on a plain dialog, with any widgets the dialog's own code adds.
    using Setup = std::function<void(QDialog&)>;

    // The form as its layout builds it, with nothing captured.
    explicit PlainForm(Setup setup) : m_setup(std::move(setup)) {}
    // Captures from shown (a dialog on screen) what differs from the form as
    // setup builds it: widgets are matched by object name.
    PlainForm(Setup setup, const QDialog& shown);

    // A plain dialog under parent showing what was captured, shown and settled.
    QDialog* show(QWidget& parent) const;
    // Widgets of the plain dialog once shown, to be compared with the dialog's.
    int widgetCount() const;

private:
    struct Write
    {
        QString object;
        QMetaProperty property;
        QVariant value;
    };
    struct List
    {
        QString object;
        QStringList rows;
        int current;
        bool uniformItemSizes;
    };
    struct Buttons
    {
        QString object;
        QDialogButtonBox::StandardButtons added;
    };

    void capture(QWidget& plain, const QWidget& shown);
    void captureList(const QString& object, const QWidget& shown);

    Setup m_setup;
    std::vector<Write> m_writes;
    std::vector<List> m_lists;
    std::vector<Buttons> m_buttons;
    std::vector<QString> m_hidden, m_disabled;
};

// The setup of the Designer form Form (a uic class).
template <typename Form>
PlainForm::Setup formSetup()
{
    return [](QDialog& dialog) {
        Form form;
        form.setupUi(&dialog);
    };
}

} // namespace benchform
