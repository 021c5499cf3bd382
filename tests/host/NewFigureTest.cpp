#include <fstream>
#include <QDir>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include "host/kernel/FileLoad.h"
#include "host/kernel/Kernel.h"
#include "platform/loaders/DataLoaderRepository.h"
#include "tests/support/TestSupport.h"

using testing::UnorderedElementsAre;
using testsupport::Kernel;
using testsupport::styleValue;

namespace {

class NewFigure : public testsupport::SampleKernelTest
{
protected:
    void load(const std::string& name, const std::string& text)
    {
        const std::string path = QDir(folder.path()).filePath(QString::fromStdString(name)).toStdString();
        std::ofstream(path, std::ios::binary) << text;
        std::string error;
        auto csv = orrery::sdk::DataLoaderRepository::getInstance().loaderNamed("CSV table");
        ASSERT_TRUE(orrery::kernel::FileLoad::load(*csv, path, error)) << error;
    }
    const std::vector<std::string>& reset() const { return orrery::kernel::Kernel::instance().newFigureReset(); }
    QTemporaryDir folder;
};

TEST_F(NewFigure, WhatBelongsToTheOldDataIsResetAndThePreferencesCarryOver)
{
    Kernel::setStyle({"FrameLayout", "Title"}, std::string("Heated plate, run 4"));
    Kernel::setStyle({"IndexRange", "Begin"}, 2L);
    Kernel::setStyle({"IndexRange", "End"}, 3L);
    Kernel::setStyle({"IndexRange", "Skip"}, 2L);
    Kernel::setStyle({"FrameLayout", "ActiveZone"}, 1L);
    Kernel::setStyle({"GlobalContour", "ColorMap"}, 2L);
    Kernel::setStyle({"GlobalScatter", "Symbol"}, std::string("square"));
    Kernel::setStyle({"TwoDAxis", "XDetail", "IsLog"}, true);
    Kernel::setStyle({"TwoDAxis", "YDetail", "IsLog"}, true);

    load("signs.csv", "x,y\n1,-2\n3,4\n5,6\n7,8\n");
    EXPECT_EQ(styleValue<std::string>({"FrameLayout", "Title"}), "") << "the new data set's own title shows";
    EXPECT_EQ(styleValue<long>({"IndexRange", "Begin"}), 1);
    EXPECT_EQ(styleValue<long>({"IndexRange", "End"}), 0) << "to the last point";
    EXPECT_EQ(styleValue<long>({"IndexRange", "Skip"}), 1);
    EXPECT_EQ(styleValue<long>({"FrameLayout", "ActiveZone"}), 0) << "even though the new set has a zone 1";
    EXPECT_EQ(styleValue<long>({"GlobalContour", "ColorMap"}), 2);
    EXPECT_EQ(styleValue<std::string>({"GlobalScatter", "Symbol"}), "square");
    EXPECT_TRUE(styleValue<bool>({"TwoDAxis", "XDetail", "IsLog"})) << "x is positive throughout";
    EXPECT_FALSE(styleValue<bool>({"TwoDAxis", "YDetail", "IsLog"})) << "y holds -2";
    EXPECT_THAT(reset(),
                UnorderedElementsAre("FrameLayout/Title", "IndexRange/Begin", "IndexRange/End", "IndexRange/Skip",
                                     "FrameLayout/ActiveZone", "TwoDAxis/YDetail/IsLog", "ThreeDAxis/ZDetail/VarNum"));

    load("again.csv", "p,q\n1,2\n");
    EXPECT_TRUE(reset().empty()) << "a figure already at its start has nothing to reset";
}

} // namespace
