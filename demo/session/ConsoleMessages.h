#pragma once
#include <cstdio>
#include "demo/session/Messages.h"

// The messages of a run without a window: problems go to standard error, the
// log lines nowhere (the files the run writes say what it did).
class ConsoleMessages : public Messages
{
public:
    void report(const QString&) override {}
    void complain(const QString& text) override { std::fprintf(stderr, "orrery-demo: %s\n", qPrintable(text)); }
};
