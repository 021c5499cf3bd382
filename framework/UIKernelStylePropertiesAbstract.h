#pragma once
#include "framework/FrameworkExport.h"
#include <boost/signals2/connection.hpp>
#include "framework/UIKernelStylePropertiesInterface.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

/// Host base of every properties manager. A child set (built with a parent)
/// takes the parent's modality, submits when the parent submits, and addresses
/// collection members as (parent's offset, own offset).
class ORRERY_FRAMEWORK_EXPORT UIKernelStylePropertiesAbstract : public virtual UIKernelStylePropertiesInterface
{
public:
    explicit UIKernelStylePropertiesAbstract(bool modal);
    explicit UIKernelStylePropertiesAbstract(UIKernelStylePropertiesAbstract* parent);
    ~UIKernelStylePropertiesAbstract() override;

    UIKernelStylePropertiesAbstract* parent() const { return m_parent; }
    void init() override;
    bool isModal() const override { return m_modal; }
    /// Applies pending edits (nothing for an immediate set), then announces it.
    void submit() override;
    void setCollectionOffset(const int& offset) override;
    int collectionOffset() const override { return m_collectionOffset; }

    virtual void submitProperties() {}
    virtual void setOffset(int first, int second);
    virtual void parentSubmitted();

private:
    UIKernelStylePropertiesAbstract* m_parent;
    bool m_modal;
    int m_collectionOffset = -1;
    boost::signals2::scoped_connection m_parentSubmitted;
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery
