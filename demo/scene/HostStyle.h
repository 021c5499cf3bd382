#pragma once
#include <functional>
#include <string>
#include "platform/toolbox/StringList.h"

// The demo's reads and writes of the host's style, through the toolbox as any
// add-on makes them. Reads never fail: an unreadable value gives the fallback.
// Writes are made under the host's lock, so they are journalled.
class HostStyle
{
public:
    static orrery::toolbox::StringList path(const std::string& slashed);

    static long integer(const std::string& path, long member = -1, long fallback = 0);
    static double number(const std::string& path, long member = -1, double fallback = 0.0);
    static bool flag(const std::string& path, long member = -1, bool fallback = false);
    static std::string text(const std::string& path, long member = -1);

    // False, with the kernel's text in error, when the kernel refuses.
    // member: the zone of a per-zone value, -1 otherwise.
    static bool setInteger(const std::string& path, long value, std::string* error = nullptr, long member = -1);
    static bool setFlag(const std::string& path, bool value, std::string* error = nullptr, long member = -1);
    static bool setText(const std::string& path, const std::string& value, std::string* error = nullptr);
    // Runs writes as one undo step named stepName; when one is refused the
    // step is taken back whole and false returned with its text in error.
    static bool inOneStep(const char* stepName, const std::function<bool(std::string& error)>& writes,
                          std::string* error);
};
