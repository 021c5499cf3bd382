#pragma once
#include <string>
#include <vector>
#include <gtest/gtest.h>
#include "platform/kernel/KernelTestSupport.h"
#include "platform/sdk/StateChangeEventObservable.h"

// A clean kernel with the sample data set, recording the style paths the kernel
// announces as changed.
class KernelFixture : public ::testing::Test
{
protected:
    typedef orrery::kernel::testing::KernelTestSupport Kernel;

    void SetUp() override
    {
        Kernel::resetKernel();
        Kernel::loadSampleDataSet();
        Kernel::captureMessageBoxes();
        m_events = orrery::sdk::integration::StateChangeEventObservable::getInstance().signal().connect(
            [this](const orrery::sdk::integration::StateChangeEventInterface& e) {
                if (e.code() == StateChange_Style)
                    styleChanges.push_back(e.stylePath().join("/"));
            });
        styleChanges.clear();
    }

    template <typename T>
    static T kernelValue(const orrery::toolbox::StringList& path, long member = -1)
    {
        return std::get<T>(Kernel::styleValue(path, member));
    }

    std::vector<std::string> styleChanges;

private:
    boost::signals2::scoped_connection m_events;
};

template <typename T>
struct Emissions
{
    template <typename P>
    explicit Emissions(const P& property)
        : connection(property.connectToValueChangedSignal([this](const T& v) { values.push_back(v); }))
    {
    }
    std::vector<T> values;
    boost::signals2::scoped_connection connection;
};
