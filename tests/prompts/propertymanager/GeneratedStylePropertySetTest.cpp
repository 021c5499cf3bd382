#include "core/property/Property.h"
#include "prompts/propertymanager/RGBColorOptsPropertiesGenerated.h"
#include "prompts/propertymanager/ScatterSizeFontPropertiesGenerated.h"
#include "tests/support/TestSupport.h"

using namespace orrery;
using namespace orrery::sdk::ui::propertymanager;
using namespace testsupport;
using orrery::toolbox::StringList;

typedef SampleKernelTest GeneratedStylePropertySetTest;

TEST_F(GeneratedStylePropertySetTest, ModalSetWritesOnlyChangedEntriesOnSubmitInTableOrderEvenWhenReplaced)
{
    RGBColorOptsPropertiesGenerated set(true, StringList());
    EXPECT_TRUE(set.isModal());
    const double max = styleValue<double>({"GlobalRGB", "RangeMax"});
    set.rangeMax()->setValue(max + 1.0);
    set.blueVar()->setValue(2);
    set.rgbMode()->setValue(RGBMode_SpecifyRB);
    set.greenVar()->setValue(set.greenVar()->getValue());
    EXPECT_TRUE(changes.events.empty());

    set.submit();
    EXPECT_EQ((StateChangeRecorder::Events{{StateChange_Style, "GlobalRGB/RGBMode"},
                                           {StateChange_Style, "GlobalRGB/BlueChannelVar"},
                                           {StateChange_Style, "GlobalRGB/RangeMax"}}),
              changes.events);
    EXPECT_EQ(max + 1.0, styleValue<double>({"GlobalRGB", "RangeMax"}));

    // A replaced property is handed out while submit still applies the kernel one.
    auto kernelSide = set.redVar();
    auto own = boost::make_shared<Property<int>>(0);
    set.setRedVar(own);
    EXPECT_EQ(own, set.redVar());

    kernelSide->setValue(3);
    set.submitProperties();
    EXPECT_EQ(3, styleValue<long>({"GlobalRGB", "RedChannelVar"}));
}

TEST_F(GeneratedStylePropertySetTest, NonModalSetWritesEachEditAtOnceUnderItsPath)
{
    ScatterSizeFontPropertiesGenerated set(false, StringList());
    set.scatterFontItalic()->setValue(true);
    EXPECT_TRUE(styleValue<bool>({"GlobalScatter", "BaseFontIsItalic"}));
    set.symbolFont()->setValue("Serif");
    EXPECT_EQ("Serif", styleValue<std::string>({"GlobalLinePlot", "BaseFontFamily"}));
    set.scatterSizeVariable()->setValue(4); // under the short name Var
    EXPECT_EQ((StateChangeRecorder::Events{{StateChange_Style, "GlobalScatter/BaseFontIsItalic"},
                                           {StateChange_Style, "GlobalLinePlot/BaseFontFamily"},
                                           {StateChange_Style, "GlobalScatter/Var"}}),
              changes.events);
    const int writes = Kernel::styleWriteCount();
    set.submitProperties();
    EXPECT_EQ(writes, Kernel::styleWriteCount());

    // A prefix is put in front of every path.
    RGBColorOptsPropertiesGenerated elsewhere(false, StringList{"Elsewhere"});
    EXPECT_EQ(StringList{"Elsewhere"}, elsewhere.prefix());
    EXPECT_THROW(elsewhere.rangeMin()->setValue(0.25), InvalidPropertyValueException);
    EXPECT_EQ(3u, changes.events.size());
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
    EXPECT_FALSE(styleValue<bool>({"GlobalScatter", "BaseFontIsBold"}));
    // The child submits when its parent does.
    modalParent.submit();
    EXPECT_TRUE(styleValue<bool>({"GlobalScatter", "BaseFontIsBold"}));

    immediateChild.scatterFontBold()->setValue(false);
    EXPECT_FALSE(styleValue<bool>({"GlobalScatter", "BaseFontIsBold"}));
}
