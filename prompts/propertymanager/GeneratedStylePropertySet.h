#pragma once
#include "prompts/PromptsExport.h"
#include <vector>
#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include "framework/UIKernelStylePropertiesAbstract.h"
#include "platform/toolbox/StringList.h"
#include "platform/toolbox/StyleValue.h"
#include "core/propertymanager/KernelPropertyDeferred.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {

/// One style value of a generated set: the kernel property (kept for offsets and
/// submission) and the property the accessor hands out, which a manager may
/// replace by one of its own placed in front of the kernel property.
template <typename T>
struct GeneratedStyleEntry
{
    /// The property on the kernel's style value.
    boost::shared_ptr<styleproperties::KernelPropertyAbstract<T>> kernel;
    /// The property handed out; the kernel property unless replaced.
    boost::shared_ptr<PropertyAbstract<T>> property;
};

/// Common part of the generated style property sets: a modal set collects edits
/// and writes them on submission, a non-modal one writes every edit at once.
class ORRERY_PROMPTS_EXPORT GeneratedStylePropertySet : public virtual UIKernelStylePropertiesAbstract
{
public:
    /// The style path in front of every value's group and name.
    const toolbox::StringList& prefix() const { return m_prefix; }

    void submitProperties() override
    {
        for (const auto& handle : m_handles)
            handle->apply();
    }

    void setOffset(int first, int second) override
    {
        for (const auto& handle : m_handles)
            handle->setOffsets(first, second);
    }

protected:
    /// The virtual base is built by the concrete set with its modality or parent;
    /// the base initializer named here is never used.
    explicit GeneratedStylePropertySet(const toolbox::StringList& prefix)
        : UIKernelStylePropertiesAbstract(true), m_prefix(prefix)
    {}

    /// The entry of style value \a group / \a name below the prefix: a deferred kernel
    /// property in a modal set, an immediate one otherwise.
    template <typename T>
    GeneratedStyleEntry<T> makeEntry(const char* group, const char* name)
    {
        toolbox::StringList path(m_prefix);
        path.append(toolbox::StringList{group, name});
        const toolbox::StyleValue styleValue(path);
        boost::shared_ptr<styleproperties::KernelPropertyAbstract<T>> kernel;
        if (isModal())
            kernel = boost::make_shared<styleproperties::KernelPropertyDeferred<T>>(styleValue);
        else
            kernel = boost::make_shared<styleproperties::KernelProperty<T>>(styleValue);
        m_handles.push_back(kernel);
        return GeneratedStyleEntry<T>{kernel, kernel};
    }

private:
    toolbox::StringList m_prefix;
    std::vector<boost::shared_ptr<styleproperties::KernelPropertyHandle>> m_handles;
};

} // namespace propertymanager
} // namespace ui
} // namespace sdk
} // namespace orrery

// The two constructors of a generated set: the virtual base takes the given
// modality, or the parent (whose modality the set then shares).
#define ORRERY_GENERATED_STYLE_SET(Set)                                                                                \
public:                                                                                                                \
    Set(bool modal, const toolbox::StringList& prefix)                                                                 \
        : UIKernelStylePropertiesAbstract(modal), GeneratedStylePropertySet(prefix)                                    \
    {}                                                                                                                 \
    Set(UIKernelStylePropertiesAbstract* parent, const toolbox::StringList& prefix)                                    \
        : UIKernelStylePropertiesAbstract(parent), GeneratedStylePropertySet(prefix)                                   \
    {}

// One style value of a generated set: its accessor, its setter, and its entry,
// made from the style group and value name as the set is constructed (entries
// are made in the order they are declared).
#define ORRERY_GENERATED_STYLE_ENTRY(T, accessor, setter, group, name)                                                 \
public:                                                                                                                \
    boost::shared_ptr<PropertyAbstract<T>> accessor() const                                                            \
    {                                                                                                                  \
        return m_##accessor.property;                                                                                  \
    }                                                                                                                  \
    void setter(const boost::shared_ptr<PropertyAbstract<T>>& property)                                                \
    {                                                                                                                  \
        m_##accessor.property = property;                                                                              \
    }                                                                                                                  \
                                                                                                                       \
private:                                                                                                               \
    GeneratedStyleEntry<T> m_##accessor = makeEntry<T>(group, name);
