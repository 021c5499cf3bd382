#pragma once
#include <functional>
#include <string>

namespace orrery {
namespace kernel {

// Shows the kernel's message boxes, or hands them to an installed handler.
class MessageBoxPresenter
{
public:
    typedef std::function<int(const std::string& text, int type)> Handler;

    // Returns 1 for OK/Yes and 0 for No. Without a handler and without an
    // interactive display (offscreen or minimal platform, or no application) the
    // text goes to stderr and the answer is 1.
    int show(const std::string& text, int type) const;
    void setHandler(const Handler& handler) { m_handler = handler; }

private:
    Handler m_handler;
};

} // namespace kernel
} // namespace orrery
