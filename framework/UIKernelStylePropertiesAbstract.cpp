#include "framework/UIKernelStylePropertiesAbstract.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

UIKernelStylePropertiesAbstract::UIKernelStylePropertiesAbstract(bool modal) : m_parent(nullptr), m_modal(modal) {}

UIKernelStylePropertiesAbstract::UIKernelStylePropertiesAbstract(UIKernelStylePropertiesAbstract* parent)
    : m_parent(parent), m_modal(parent ? parent->isModal() : true)
{
    if (m_parent)
        m_parentSubmitted = m_parent->connectToSubmittedSignal([this] { parentSubmitted(); });
}

UIKernelStylePropertiesAbstract::~UIKernelStylePropertiesAbstract() = default;

void UIKernelStylePropertiesAbstract::init()
{
    m_initialized();
}

void UIKernelStylePropertiesAbstract::submit()
{
    submitProperties();
    m_submitted();
}

void UIKernelStylePropertiesAbstract::setCollectionOffset(const int& offset)
{
    m_collectionOffset = offset;
    if (m_parent)
        setOffset(m_parent->collectionOffset(), offset);
    else
        setOffset(offset, -1);
}

void UIKernelStylePropertiesAbstract::setOffset(int, int) {}

void UIKernelStylePropertiesAbstract::parentSubmitted()
{
    submit();
}

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
