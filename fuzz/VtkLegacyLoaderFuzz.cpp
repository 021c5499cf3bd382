// The "VTK legacy" loader on arbitrary file contents.
#include "fuzz/LoaderFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static loaderfuzz::Harness harness("VTK legacy", "vtk");
    harness.run(data, size);
    return 0;
}
