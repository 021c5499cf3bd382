#pragma once
// Every library dialog, opened the way the demo host opens it, for the checks
// that must hold for all of them (lifetime, help pages, language and layout).
// The list is the demo's dialog catalogue: a new dialog goes there.
#include <functional>
#include <ostream>
#include <string>
#include <vector>
#include "demo/launchers/DialogCatalog.h"

namespace everydialog {

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
    static const std::vector<Opener> all = [] {
        std::vector<Opener> list;
        for (const DialogCatalog::Entry& entry : DialogCatalog::entries())
            if (entry.checkName)
                list.push_back({entry.checkName, entry.open});
        return list;
    }();
    return all;
}

} // namespace everydialog
