#include "prompts/prompt/EnterASCIICharacterPropertiesManager.h"

#include <boost/make_shared.hpp>
#include <QCoreApplication>
#include "framework/DataSetExistsRelevance.h"
#include "core/property/Property.h"
#include "framework/SharedRelevance.h"

namespace orrery {
namespace dialogs {
namespace prompt {

struct EnterASCIICharacterPropertiesManager::Impl
{
    class EmptySelecterCharacterValidator : public ValidatorInterface<std::string>
    {
    public:
        ValidationResult validate(const std::string& value) const override
        {
            ValidationResult result;
            if (value.empty())
                result.setErrorString(
                    QCoreApplication::translate("EnterASCIICharacter", "Selected character cannot be empty.")
                        .toStdString());
            return result;
        }
    };

    Impl(std::string const& initialChar, Font_e font)
        : characterValidator(boost::make_shared<EmptySelecterCharacterValidator>()),
          selectedChar(boost::make_shared<Property<std::string>>(initialChar, characterValidator)),
          typeFaceOverride(boost::make_shared<Property<Font_e>>(font))
    {}

    boost::shared_ptr<EmptySelecterCharacterValidator> characterValidator;
    boost::shared_ptr<Property<std::string>> selectedChar;
    boost::shared_ptr<Property<Font_e>> typeFaceOverride;
};

EnterASCIICharacterPropertiesManager::EnterASCIICharacterPropertiesManager(std::string const& initialChar, Font_e font)
    : m_impl(new Impl(initialChar, font))
{}

EnterASCIICharacterPropertiesManager::~EnterASCIICharacterPropertiesManager() = default;

boost::shared_ptr<PropertyAbstract<std::string>> EnterASCIICharacterPropertiesManager::selectedChar() const
{
    return m_impl->selectedChar;
}

boost::shared_ptr<PropertyAbstract<Font_e>> EnterASCIICharacterPropertiesManager::typeFaceOverride() const
{
    return m_impl->typeFaceOverride;
}

boost::shared_ptr<const sdk::ui::propertymanager::RelevanceInterface> EnterASCIICharacterPropertiesManager::relevance()
{
    return sharedRelevance<EnterASCIICharacterPropertiesManager, sdk::ui::propertymanager::DataSetExistsRelevance>();
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
