// Cost of the property protocol beside its baselines (a plain virtual call and
// a bare signals2 emit to one slot), and of kernel-backed reads and writes.
#include <benchmark/benchmark.h>
#include <boost/signals2/signal.hpp>

#include "host/kernel/KernelDriver.h"
#include "core/property/Property.h"
#include "core/propertymanager/KernelProperty.h"

using namespace orrery;

namespace {

struct Base
{
    virtual ~Base() = default;
    virtual long get() const = 0;
};
struct Derived : Base
{
    // Not inlined, so that the call really goes through the table.
    __attribute__((noinline)) long get() const override { return value; }
    long value = 1;
};

void BaselineVirtualCall(benchmark::State& state)
{
    Derived d;
    // Read through a volatile pointer so that the call cannot be devirtualized.
    const Base* volatile b = &d;
    for (auto _ : state)
        benchmark::DoNotOptimize(b->get());
}
BENCHMARK(BaselineVirtualCall);

void BaselineSignalEmitOneSlot(benchmark::State& state)
{
    boost::signals2::signal<void(const long&)> signal;
    long sink = 0;
    signal.connect([&sink](const long& v) { sink += v; });
    long v = 0;
    for (auto _ : state)
        signal(++v);
    benchmark::DoNotOptimize(sink);
}
BENCHMARK(BaselineSignalEmitOneSlot);

void SetValueUnchanged(benchmark::State& state)
{
    Property<long> p(5L);
    for (auto _ : state)
        p.setValue(5);
}
BENCHMARK(SetValueUnchanged);

void SetValueChangedOneTypedListener(benchmark::State& state)
{
    Property<long> p(0L);
    long sink = 0;
    boost::signals2::scoped_connection c = p.connectToValueChangedSignal([&sink](const long& v) { sink += v; });
    long v = 0;
    for (auto _ : state)
        p.setValue(++v);
    benchmark::DoNotOptimize(sink);
}
BENCHMARK(SetValueChangedOneTypedListener);

void SetValueChangedTypedAndUntypedListeners(benchmark::State& state)
{
    Property<long> p(0L);
    long sink = 0;
    boost::signals2::scoped_connection c = p.connectToValueChangedSignal([&sink](const long& v) { sink += v; });
    boost::signals2::scoped_connection u = p.connectToPropertyChangedSignal([&sink] { ++sink; });
    long v = 0;
    for (auto _ : state)
        p.setValue(++v);
    benchmark::DoNotOptimize(sink);
}
BENCHMARK(SetValueChangedTypedAndUntypedListeners);

void KernelPropertyRead(benchmark::State& state)
{
    kernel::KernelDriver::resetKernel();
    sdk::styleproperties::KernelProperty<double> p{toolbox::StyleValue("GlobalRGB", "RangeMax")};
    for (auto _ : state)
        benchmark::DoNotOptimize(p.getValue());
}
BENCHMARK(KernelPropertyRead);

void KernelPropertyWrite(benchmark::State& state)
{
    kernel::KernelDriver::resetKernel();
    sdk::styleproperties::KernelProperty<double> p{toolbox::StyleValue("GlobalRGB", "RangeMax")};
    double v = 0.5;
    for (auto _ : state) {
        v = v == 0.5 ? 0.75 : 0.5;
        p.storeValue(v);
    }
}
BENCHMARK(KernelPropertyWrite);

} // namespace

BENCHMARK_MAIN();
