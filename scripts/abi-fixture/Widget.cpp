#include "Widget.h"

Widget::~Widget() = default;
int Widget::size() const
{
    return m_count;
}
#if FIXTURE_CHANGE != 1
int Widget::weight() const
{
    return 2 * size();
}
#endif
int widgetCount(const Widget& widget)
{
    return widget.size();
}
