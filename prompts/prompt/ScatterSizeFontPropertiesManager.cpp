#include "prompts/prompt/ScatterSizeFontPropertiesManager.h"

#include <cmath>
#include <algorithm>
#include <boost/make_shared.hpp>
#include <boost/signals2/shared_connection_block.hpp>
#include "core/propertybindings/intern/RejectedValueMessage.h"
#include "core/propertymanager/KernelProperty.h"
#include "core/propertymanager/PropertyDependentRelevance.h"
#include "framework/FieldPlotTypeDependentRelevance.h"
#include "framework/InvertingRelevance.h"
#include "framework/LinePlotTypeDependentRelevance.h"
#include "framework/OnIdleAfterStateChangeActionPerformer.h"
#include "framework/RelevanceExpression.h"
#include "platform/common/SignalConnectionCollection.h"
#include "platform/common/HostCall.h"
#include "platform/kernel/OrrUtil.h"
#include "platform/sdk/AppLock.h"
#include "platform/sdk/DataSetQueries.h"
#include "platform/sdk/StateChangeEventInterface.h"
#include "framework/SharedRelevance.h"
#include "prompts/propertymanager/ScatterSizeFontPropertiesGenerated.h"
#include "platform/sdk/HostAnswers.h"

namespace orrery {
namespace dialogs {
namespace prompt {

namespace pm = sdk::ui::propertymanager;
namespace pb = sdk::ui::dialogs::propertybindings;

namespace {

// One typographic point in centimetres.
const double PointInCm = 2.54 / 72.0;
const double NegligibleMagnitude = 1e-50;

// The stored size multiplier seen in grid units or in centimetres. Reading
// converts when the view's unit is not the stored one; writing stores the
// value as it is, because only the field of the stored unit takes input.
class RelativeSizeProperty : public PropertyAbstract<double>
{
public:
    RelativeSizeProperty(const boost::shared_ptr<PropertyAbstract<double>>& relativeSize,
                         const boost::shared_ptr<PropertyAbstract<bool>>& sizeInGridUnits, bool isGridView)
        : m_relativeSize(relativeSize), m_sizeInGridUnits(sizeInGridUnits), m_isGridView(isGridView)
    {
        // Either a new multiplier or a new stored unit changes what this view shows.
        m_relays.add(m_relativeSize->connectToValueChangedSignal([this](const double&) { announce(); }));
        m_relays.add(m_sizeInGridUnits->connectToValueChangedSignal([this](const bool&) { announce(); }));
    }

    double retrieveValue() const override
    {
        const double stored = m_relativeSize->getValue();
        if (m_isGridView == m_sizeInGridUnits->getValue())
            return stored;
        double factor = 0.0;
        {
            sdk::AppLock lock(sdk::AppLock::ImplicitMacroRecording_Allow);
            factor = ORRERY_HOST_CALL(PointInCm, OrrUtilConvertUnits(Units_Grid, Units_Point, PointInCm));
        }
        if (!m_isGridView)
            return stored * factor;
        return factor != 0.0 ? stored / factor : 0.0;
    }

    void storeValue(const double& value) override
    {
        // setValue announces the value read back once; the relay would repeat it.
        SignalConnectionCollection::ConnectionBlocker quiet(m_relays);
        m_relativeSize->setValue(value);
    }

private:
    void announce() { emitValueChangedSignal(retrieveValue()); }

    boost::shared_ptr<PropertyAbstract<double>> m_relativeSize;
    boost::shared_ptr<PropertyAbstract<bool>> m_sizeInGridUnits;
    const bool m_isGridView;
    SignalConnectionCollection m_relays;
};

// Field plots size their scatter symbols; line plots only letter them.
class FieldOrLinePlotTypeRelevance : public pm::RelevanceExpression
{
public:
    FieldOrLinePlotTypeRelevance() : pm::RelevanceExpression(boost::make_shared<pm::FieldPlotTypeDependentRelevance>())
    {
        oor(boost::make_shared<pm::LinePlotTypeDependentRelevance>());
    }
};

} // namespace

struct ScatterSizeFontPropertiesManager::Impl
{
    explicit Impl(pm::ScatterSizeFontPropertiesGenerated& generated)
        : generated(generated), fontProperty(boost::make_shared<PropertyProxy<std::string>>(generated.scatterFont())),
          fontBoldProperty(boost::make_shared<PropertyProxy<bool>>(generated.scatterFontBold())),
          fontItalicProperty(boost::make_shared<PropertyProxy<bool>>(generated.scatterFontItalic())),
          relativeGridSizeProperty(boost::make_shared<RelativeSizeProperty>(generated.scatterRelativeSize(),
                                                                            generated.scatterSizeInGridUnits(), true)),
          relativeCmSizeProperty(boost::make_shared<RelativeSizeProperty>(generated.scatterRelativeSize(),
                                                                          generated.scatterSizeInGridUnits(), false)),
          plotTypeProperty(boost::make_shared<Property<PlotType_e>>(PlotType_Invalid)),
          fieldPlotTypeRelevance(boost::make_shared<pm::FieldPlotTypeDependentRelevance>())
    {
        auto inGridUnits = boost::make_shared<pm::RelevanceExpression>(
            boost::make_shared<pm::PropertyDependentRelevance<bool>>(generated.scatterSizeInGridUnits(), true));
        inGridUnits->aand(fieldPlotTypeRelevance);
        sizeInGridUnitsRelevance = inGridUnits;
        auto inCm = boost::make_shared<pm::RelevanceExpression>(
            boost::make_shared<pm::InvertingRelevance>(sizeInGridUnitsRelevance));
        inCm->aand(fieldPlotTypeRelevance);
        sizeInCmUnitsRelevance = inCm;
        variablesModel = boost::make_shared<pb::models::EnabledVariablesListModel>();
        plotTypeWatcher.reset(new pb::OnIdleAfterStateChangeActionPerformer(
            [this](const sdk::integration::StateChangeEventInterface& event) {
                return plotTypeChangedPredicate(event);
            },
            [this] { setPlotType(); }));
        setPlotType();
    }

    void setPlotType()
    {
        const PlotType_e plotType = sdk::HostAnswers::plotType();
        if (plotType == plotTypeProperty->getValue())
            return;
        if (plotType == PlotType_ThreeD || plotType == PlotType_TwoD) {
            sdk::AppLock lock(sdk::AppLock::ImplicitMacroRecording_Allow);
            sdk::autoAssignScatterVariable();
            retarget(generated.scatterFont(), generated.scatterFontBold(), generated.scatterFontItalic());
        } else if (plotType == PlotType_XYLine || plotType == PlotType_PolarLine)
            retarget(generated.symbolFont(), generated.symbolFontBold(), generated.symbolFontItalic());
        plotTypeProperty->setValue(plotType);
    }

    void retarget(const boost::shared_ptr<PropertyAbstract<std::string>>& font,
                  const boost::shared_ptr<PropertyAbstract<bool>>& bold,
                  const boost::shared_ptr<PropertyAbstract<bool>>& italic)
    {
        fontProperty->setProperty(font);
        fontBoldProperty->setProperty(bold);
        fontItalicProperty->setProperty(italic);
    }

    bool plotTypeChangedPredicate(const sdk::integration::StateChangeEventInterface& event) const
    {
        return event.code() == StateChange_Style && event.stylePath().count() > 1 && event.stylePath()[1] == "PlotType";
    }

    double defaultMultiplierValue(bool inGridUnits) const
    {
        sdk::AppLock lock(sdk::AppLock::ImplicitMacroRecording_Allow);
        double min = 0.0, max = 0.0;
        if (!ORRERY_HOST_CALL(false, OrrUtilVarGetMinMax(generated.scatterSizeVariable()->getValue(), &min, &max)))
            return 0.0;
        const double magnitude = std::max(std::fabs(min), std::fabs(max));
        double base = 0.0;
        if (magnitude >= NegligibleMagnitude) {
            double xMin = 0.0, yMin = 0.0, xMax = 0.0, yMax = 0.0;
            HostCall::run("OrrUtilAxisGetGridRange", [&] { OrrUtilAxisGetGridRange(&xMin, &yMin, &xMax, &yMax); });
            const double range = yMax - yMin;
            base =
                inGridUnits
                    ? range / magnitude
                    : ORRERY_HOST_CALL(range * 2.54 / (magnitude * 72.0),
                                       OrrUtilConvertUnits(Units_Grid, Units_Point, range * 2.54 / (magnitude * 72.0)));
            base = std::fabs(base);
        }
        const sdk::styleproperties::KernelProperty<double> mediumSymbolSize(
            toolbox::StyleValue("BasicSize", "SymbolSizes", "Medium"));
        return base * mediumSymbolSize.getValue() / 100.0;
    }

    pm::ScatterSizeFontPropertiesGenerated& generated;
    boost::shared_ptr<PropertyProxy<std::string>> fontProperty;
    boost::shared_ptr<PropertyProxy<bool>> fontBoldProperty;
    boost::shared_ptr<PropertyProxy<bool>> fontItalicProperty;
    boost::shared_ptr<RelativeSizeProperty> relativeGridSizeProperty;
    boost::shared_ptr<RelativeSizeProperty> relativeCmSizeProperty;
    boost::shared_ptr<Property<PlotType_e>> plotTypeProperty;
    boost::shared_ptr<pm::FieldPlotTypeDependentRelevance> fieldPlotTypeRelevance;
    boost::shared_ptr<const pm::RelevanceInterface> sizeInGridUnitsRelevance;
    boost::shared_ptr<const pm::RelevanceInterface> sizeInCmUnitsRelevance;
    boost::shared_ptr<pb::models::EnabledVariablesListModel> variablesModel;
    std::unique_ptr<pb::OnIdleAfterStateChangeActionPerformer> plotTypeWatcher;
};

ScatterSizeFontPropertiesManager::ScatterSizeFontPropertiesManager(pm::ScatterSizeFontPropertiesGenerated& generated)
    : m_impl(new Impl(generated))
{}

ScatterSizeFontPropertiesManager::~ScatterSizeFontPropertiesManager() = default;

boost::shared_ptr<PropertyProxy<std::string>> ScatterSizeFontPropertiesManager::fontProperty() const
{
    return m_impl->fontProperty;
}

boost::shared_ptr<PropertyProxy<bool>> ScatterSizeFontPropertiesManager::fontBoldProperty() const
{
    return m_impl->fontBoldProperty;
}

boost::shared_ptr<PropertyProxy<bool>> ScatterSizeFontPropertiesManager::fontItalicProperty() const
{
    return m_impl->fontItalicProperty;
}

boost::shared_ptr<PropertyAbstract<double>> ScatterSizeFontPropertiesManager::relativeGridSizeProperty() const
{
    return m_impl->relativeGridSizeProperty;
}

boost::shared_ptr<PropertyAbstract<double>> ScatterSizeFontPropertiesManager::relativeCmSizeProperty() const
{
    return m_impl->relativeCmSizeProperty;
}

boost::shared_ptr<Property<PlotType_e>> ScatterSizeFontPropertiesManager::plotTypeProperty() const
{
    return m_impl->plotTypeProperty;
}

boost::shared_ptr<const pm::RelevanceInterface> ScatterSizeFontPropertiesManager::fieldPlotTypeRelevance() const
{
    return m_impl->fieldPlotTypeRelevance;
}

boost::shared_ptr<const pm::RelevanceInterface> ScatterSizeFontPropertiesManager::sizeInGridUnitsRelevance() const
{
    return m_impl->sizeInGridUnitsRelevance;
}

boost::shared_ptr<const pm::RelevanceInterface> ScatterSizeFontPropertiesManager::sizeInCmUnitsRelevance() const
{
    return m_impl->sizeInCmUnitsRelevance;
}

boost::shared_ptr<pb::models::EnabledVariablesListModel> ScatterSizeFontPropertiesManager::variablesModel() const
{
    return m_impl->variablesModel;
}

void ScatterSizeFontPropertiesManager::recalculateSize()
{
    const double multiplier = m_impl->defaultMultiplierValue(m_impl->generated.scatterSizeInGridUnits()->getValue());
    try {
        m_impl->generated.scatterRelativeSize()->setValue(multiplier);
    } catch (const InvalidPropertyValueException& refusal) {
        // Runs from a button: the kernel's reason is told, not thrown into Qt.
        pb::intern::showRejectedValueMessage(refusal);
    }
}

boost::shared_ptr<const pm::RelevanceInterface> ScatterSizeFontPropertiesManager::relevance()
{
    return sharedRelevance<ScatterSizeFontPropertiesManager, FieldOrLinePlotTypeRelevance>();
}

} // namespace prompt
} // namespace dialogs
} // namespace orrery
