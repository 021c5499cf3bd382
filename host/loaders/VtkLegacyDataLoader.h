#pragma once
#include <cstddef>
#include "platform/loaders/DataLoaderInterface.h"

namespace orrery {
namespace sdk {

// Legacy VTK files (.vtk), ASCII or binary (big-endian): structured points,
// structured and rectilinear grids, unstructured grids and poly data. The
// points become one zone with X, Y and Z, and every point-data array becomes
// variables (one per component: "velocity_X", "velocity_Y", ...). Cells and
// cell data are read past: the data set holds points only.
//
// The file is read in blocks, never whole; numbers are read without regard to
// the locale. A load reports its progress through LoadProgress and stops,
// leaving the data set as it was, when that is cancelled.
class VtkLegacyDataLoader : public DataLoaderInterface
{
public:
    static const std::size_t BlockSize = 1 << 20;

    Properties properties() const override;
    bool load(const std::string& path, std::string& error) override;
};

} // namespace sdk
} // namespace orrery
