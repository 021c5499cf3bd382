// A throw-away library for the ABI check's own test: FIXTURE_CHANGE selects an
// incompatible change against the plain build.
#pragma once

class Widget
{
public:
    virtual ~Widget();
    virtual int size() const;
#if FIXTURE_CHANGE != 1
    virtual int weight() const;
#endif
private:
#if FIXTURE_CHANGE == 2
    double m_count = 0;
#else
    int m_count = 0;
#endif
};

int widgetCount(const Widget& widget);
