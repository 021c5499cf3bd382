#pragma once
#include <QString>
#include "platform/kernel/OrrUtil.h"

// A string the host allocated, as a QString; the host's copy is freed. Null gives an empty string.
inline QString takeHostText(char* text)
{
    const QString result = text ? QString::fromUtf8(text) : QString();
    OrrUtilStringDealloc(&text);
    return result;
}
