#include "KernelFixture.h"
#include "property/Property.h"
#include "propertymanager/RGBColorOptsPropertiesGenerated.h"
#include "propertymanager/ScatterSizeFontPropertiesGenerated.h"

using namespace orrery;
using namespace orrery::sdk::ui::propertymanager;
using orrery::toolbox::StringList;

class GeneratedStylePropertySetTest : public KernelFixture
{
};

TEST_F(GeneratedStylePropertySetTest, ModalSetWritesOnlyChangedEntriesOnSubmitInTableOrder)
{
    RGBColorOptsPropertiesGenerated set(true, StringList());
    EXPECT_TRUE(set.isModal());
    const double max = kernelValue<double>({"GlobalRGB", "RangeMax"});
    set.rangeMax()->setValue(max + 1.0);
    set.blueVar()->setValue(2);
    set.rgbMode()->setValue(RGBMode_SpecifyRB);
    set.greenVar()->setValue(set.greenVar()->getValue());
    EXPECT_TRUE(styleChanges.empty());

    set.submit();
    EXPECT_EQ((std::vector<std::string>{"GlobalRGB/RGBMode", "GlobalRGB/BlueChannelVar", "GlobalRGB/RangeMax"}),
              styleChanges);
    EXPECT_EQ(max + 1.0, kernelValue<double>({"GlobalRGB", "RangeMax"}));
}

TEST_F(GeneratedStylePropertySetTest, NonModalSetWritesEachEditAtOnce)
{
    ScatterSizeFontPropertiesGenerated set(false, StringList());
    set.scatterFontItalic()->setValue(true);
    EXPECT_TRUE(kernelValue<bool>({"GlobalScatter", "BaseFontIsItalic"}));
    set.symbolFont()->setValue("Serif");
    EXPECT_EQ("Serif", kernelValue<std::string>({"GlobalLinePlot", "BaseFontFamily"}));
    const int writes = Kernel::styleWriteCount();
    set.submitProperties();
    EXPECT_EQ(writes, Kernel::styleWriteCount());
}

TEST_F(GeneratedStylePropertySetTest, ReplacedPropertyIsHandedOutWhileSubmitStillAppliesTheKernelOne)
{
    RGBColorOptsPropertiesGenerated set(true, StringList());
    auto kernelSide = set.redVar();
    auto own = boost::make_shared<Property<int>>(0);
    set.setRedVar(own);
    EXPECT_EQ(own, set.redVar());

    kernelSide->setValue(3);
    set.submitProperties();
    EXPECT_EQ(3, kernelValue<long>({"GlobalRGB", "RedChannelVar"}));
}

TEST_F(GeneratedStylePropertySetTest, SetWithAParentTakesTheParentsModality)
{
    RGBColorOptsPropertiesGenerated modalParent(true, StringList());
    RGBColorOptsPropertiesGenerated immediateParent(false, StringList());
    ScatterSizeFontPropertiesGenerated deferredChild(&modalParent, StringList());
    ScatterSizeFontPropertiesGenerated immediateChild(&immediateParent, StringList());
    EXPECT_TRUE(deferredChild.isModal());
    EXPECT_FALSE(immediateChild.isModal());

    deferredChild.scatterFontBold()->setValue(true);
    EXPECT_FALSE(kernelValue<bool>({"GlobalScatter", "BaseFontIsBold"}));
    // The child submits when its parent does.
    modalParent.submit();
    EXPECT_TRUE(kernelValue<bool>({"GlobalScatter", "BaseFontIsBold"}));

    immediateChild.scatterFontBold()->setValue(false);
    EXPECT_FALSE(kernelValue<bool>({"GlobalScatter", "BaseFontIsBold"}));
}

TEST_F(GeneratedStylePropertySetTest, ScatterSizeVariableLivesUnderTheShortNameVar)
{
    ScatterSizeFontPropertiesGenerated set(false, StringList());
    set.scatterSizeVariable()->setValue(4);
    EXPECT_EQ((std::vector<std::string>{"GlobalScatter/Var"}), styleChanges);
}

TEST_F(GeneratedStylePropertySetTest, PrefixIsPutInFrontOfEveryPath)
{
    RGBColorOptsPropertiesGenerated set(false, StringList{"Elsewhere"});
    EXPECT_EQ(StringList{"Elsewhere"}, set.prefix());
    EXPECT_THROW(set.rangeMin()->setValue(0.25), InvalidPropertyValueException);
    EXPECT_TRUE(styleChanges.empty());
}
