#pragma once
// Shared by every test folder: a clean kernel per case, the idle queue run on
// demand, a validator that refuses one value, and recorders of what properties,
// relevances, the kernel and its message boxes announce.
#include <string>
#include <utility>
#include <vector>
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>
#include "platform/common/IdleQueue.h"
#include "host/kernel/KernelDriver.h"
#include "platform/sdk/StateChangeEventObservable.h"
#include "core/property/Property.h"
#include "core/propertymanager/RelevanceInterface.h"

namespace testsupport {

typedef orrery::kernel::KernelDriver Kernel;

inline void runIdle()
{
    orrery::sdk::ui::common::IdleQueue::instance().flush();
}

inline std::vector<std::string> messageTexts()
{
    std::vector<std::string> texts;
    for (const Kernel::CapturedMessageBox& box : Kernel::capturedMessageBoxes())
        texts.push_back(box.text);
    return texts;
}

// Refuses one value with a given text.
template <typename T>
struct RefusingValidator : orrery::ValidatorInterface<T>
{
    RefusingValidator(const T& refused, const std::string& text) : refused(refused), text(text) {}
    orrery::ValidationResult validate(const T& value) const override
    {
        orrery::ValidationResult result;
        if (value == refused)
            result.setErrorString(text);
        return result;
    }
    T refused;
    std::string text;
};

template <typename T>
boost::shared_ptr<orrery::Property<T>> refusingProperty(const T& initial, const T& refused, const std::string& text)
{
    return boost::make_shared<orrery::Property<T>>(initial, boost::make_shared<RefusingValidator<T>>(refused, text));
}

template <typename T>
T styleValue(const orrery::toolbox::StringList& path, long member = -1)
{
    return std::get<T>(Kernel::styleValue(path, member));
}

// Every value a property announces.
template <typename T>
struct Emissions
{
    template <typename P>
    explicit Emissions(const P& property)
        : connection(property.connectToValueChangedSignal([this](const T& v) { values.push_back(v); }))
    {}
    size_t count() const { return values.size(); }
    std::vector<T> values;
    boost::signals2::scoped_connection connection;
};

// How often a relevance announced a change.
struct RelevanceChanges
{
    explicit RelevanceChanges(const orrery::sdk::ui::propertymanager::RelevanceInterface& relevance)
        : connection(relevance.connectToRelevanceChangedSignal([this] { ++count; }))
    {}
    int count = 0;
    boost::signals2::scoped_connection connection;
};

// Every state change the kernel announces while it lives: code and style path.
struct StateChangeRecorder
{
    StateChangeRecorder()
        : connection(orrery::sdk::integration::StateChangeEventObservable::getInstance().signal().connect(
            [this](const orrery::sdk::integration::StateChangeEventInterface& e) {
                events.emplace_back(e.code(), e.stylePath().join("/"));
            }))
    {}
    std::vector<StateChange_e> codes() const
    {
        std::vector<StateChange_e> all;
        for (const auto& e : events)
            all.push_back(e.first);
        return all;
    }
    typedef std::vector<std::pair<StateChange_e, std::string>> Events;
    Events events;
    boost::signals2::scoped_connection connection;
};

// A clean kernel holding the sample data set (zones Inlet, Channel, Outlet;
// variables X, Y, Z, Pressure, Temperature), message boxes recorded, and the
// state changes announced from then on.
class SampleKernelTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Kernel::resetKernel();
        Kernel::loadSampleDataSet();
        Kernel::captureMessageBoxes();
        changes.events.clear();
    }
    StateChangeRecorder changes;
};

} // namespace testsupport
