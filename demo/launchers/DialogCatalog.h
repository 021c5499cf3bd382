#pragma once
#include <functional>
#include <type_traits>
#include <vector>
#include <QDialogButtonBox>
#include <QString>
#include "framework/QtDialogAbstract.h"
#include "framework/SingleInstanceDialog.h"

// Every dialog the demo can open: how the host opens it, what the tour does in
// it, which button ends the tour's run, and how its answers read. The one list
// of the library's dialogs: the tests that walk every dialog are made from it.
class DialogCatalog
{
public:
    typedef orrery::dialogs::common::QtDialogAbstract Dialog;

    struct Entry
    {
        QString name; // menu text, in English: it also names the tour's screenshot
        std::function<Dialog*(QWidget& parent)> open;
        std::function<void(Dialog&)> drive;
        QDialogButtonBox::StandardButton closeWith;
        std::function<QString(Dialog&)> answers;
        // What the answers do to the plot, once the dialog is accepted or closed (see PlotEffects).
        std::function<QString(Dialog&)> effect;
        bool callerOwnsDialog; // single-instance dialogs belong to their parent
        // Letters only; set on the one entry per library dialog that the checks
        // walking every dialog open (the others drive a dialog listed before).
        const char* checkName;
    };

    static const std::vector<Entry>& entries();
    // The entry's menu text in the user's language.
    static QString title(const Entry& entry);

private:
    template <typename D>
    static Entry entry(const QString& name, D* (*open)(QWidget&), void (*drive)(D&),
                       QDialogButtonBox::StandardButton closeWith, QString (*answers)(D&), QString (*effect)(D&),
                       const char* checkName = nullptr)
    {
        return {name,
                [open](QWidget& parent) -> Dialog* { return open(parent); },
                [drive](Dialog& d) { drive(static_cast<D&>(d)); },
                closeWith,
                [answers](Dialog& d) { return answers(static_cast<D&>(d)); },
                [effect](Dialog& d) { return effect(static_cast<D&>(d)); },
                !std::is_base_of_v<orrery::dialogs::prompt::SingleInstanceDialog<D>, D>,
                checkName};
    }
};
