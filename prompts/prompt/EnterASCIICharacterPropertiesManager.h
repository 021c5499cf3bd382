#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <string>
#include <boost/shared_ptr.hpp>
#include "platform/kernel/OrrTypes.h"
#include "core/property/PropertyAbstract.h"
#include "core/propertymanager/RelevanceInterface.h"

namespace orrery {
namespace dialogs {
namespace prompt {

/// The symbol character and the font it is drawn in. The font 255 stands for
/// the plot's base font (no override).
class ORRERY_PROMPTS_EXPORT EnterASCIICharacterPropertiesManager
{
public:
    /// Starts from \a initialChar in \a font.
    EnterASCIICharacterPropertiesManager(std::string const& initialChar, Font_e font);
    ~EnterASCIICharacterPropertiesManager();

    /// Refuses the empty string.
    boost::shared_ptr<PropertyAbstract<std::string>> selectedChar() const;
    /// The font; 255 for the base font.
    boost::shared_ptr<PropertyAbstract<Font_e>> typeFaceOverride() const;

    /// Relevant while a data set exists.
    static boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> relevance();

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
