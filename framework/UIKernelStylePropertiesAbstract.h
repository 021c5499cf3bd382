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
    /// A top-level set: \a modal sets keep edits until submit(), others write at once.
    explicit UIKernelStylePropertiesAbstract(bool modal);
    /// A child set of \a parent (which must outlive it); without a parent it is modal.
    explicit UIKernelStylePropertiesAbstract(UIKernelStylePropertiesAbstract* parent);
    ~UIKernelStylePropertiesAbstract() override;

    /// The parent set, or null for a top-level set.
    UIKernelStylePropertiesAbstract* parent() const { return m_parent; }
    void init() override;
    bool isModal() const override { return m_modal; }
    /// Applies pending edits (nothing for an immediate set), then announces it.
    void submit() override;
    void setCollectionOffset(const int& offset) override;
    int collectionOffset() const override { return m_collectionOffset; }

    /// Applies the set's pending edits; a set with deferred properties overrides it.
    virtual void submitProperties() {}
    /// Points the set's properties at collection member (\a first, \a second); -1 is none.
    virtual void setOffset(int first, int second);
    /// Called when the parent submits; submits this set too.
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
