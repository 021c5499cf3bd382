#pragma once
#include "prompts/PromptsExport.h"
#include <memory>
#include <string>
#include <boost/shared_ptr.hpp>
#include "core/property/Property.h"
#include "core/property/PropertyProxy.h"
#include "core/propertymanager/RelevanceInterface.h"
#include "framework/models/EnabledVariablesListModel.h"
#include "platform/kernel/OrrTypes.h"

namespace orrery {
namespace sdk {
namespace ui {
namespace propertymanager {
class ScatterSizeFontPropertiesGenerated;
} // namespace propertymanager
} // namespace ui
} // namespace sdk

namespace dialogs {
namespace prompt {

/// What the scatter size and font dialog edits beyond the plain style values:
/// the font of the current plot type (scatter symbols in field plots, line
/// plot symbols in line plots), the size multiplier in either unit, and which
/// size controls apply.
class ORRERY_PROMPTS_EXPORT ScatterSizeFontPropertiesManager
{
public:
    /// Short name of the relevance type.
    typedef sdk::ui::propertymanager::RelevanceInterface RelevanceInterface;

    /// Works on \a generated, which must outlive the manager.
    explicit ScatterSizeFontPropertiesManager(sdk::ui::propertymanager::ScatterSizeFontPropertiesGenerated& generated);
    ~ScatterSizeFontPropertiesManager();

    /// The symbol font family of the current plot type.
    boost::shared_ptr<PropertyProxy<std::string>> fontProperty() const;
    /// Follow the plot type like the font; no control edits them.
    boost::shared_ptr<PropertyProxy<bool>> fontBoldProperty() const;
    /// Italic, following the plot type like the font.
    boost::shared_ptr<PropertyProxy<bool>> fontItalicProperty() const;
    /// The one stored multiplier, shown per unit of grid or per centimetre. A
    /// value typed into either is stored unconverted: only the field of the
    /// stored unit is enabled.
    boost::shared_ptr<PropertyAbstract<double>> relativeGridSizeProperty() const;
    /// The multiplier as shown per centimetre.
    boost::shared_ptr<PropertyAbstract<double>> relativeCmSizeProperty() const;
    /// The plot type the properties were last set up for.
    boost::shared_ptr<Property<PlotType_e>> plotTypeProperty() const;
    /// Relevant while the current frame shows a field plot.
    boost::shared_ptr<const RelevanceInterface> fieldPlotTypeRelevance() const;
    /// Relevant in a field plot whose symbols are sized in grid units.
    boost::shared_ptr<const RelevanceInterface> sizeInGridUnitsRelevance() const;
    /// Relevant in a field plot whose symbols are sized in centimetres.
    boost::shared_ptr<const RelevanceInterface> sizeInCmUnitsRelevance() const;
    /// The variables enabled in the current frame, for the size variable.
    boost::shared_ptr<sdk::ui::dialogs::propertybindings::models::EnabledVariablesListModel> variablesModel() const;

    /// Sets the multiplier to the default for the size variable's range.
    void recalculateSize();

    /// Field plots and line plots have symbols to size or to letter.
    static boost::shared_ptr<const RelevanceInterface> relevance();

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace prompt
} // namespace dialogs
} // namespace orrery
