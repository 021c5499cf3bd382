#pragma once

namespace orrery {
namespace kernel {

// The kernel's colour table: 8 basic colours (0..7) and 56 custom colours
// (8..63). Negative indices colour by variable (the multi colourings and RGB).
class ColorMap
{
public:
    static const int NumColors = 64;

    // Black for an index outside the table.
    static void rgb(int index, unsigned char& red, unsigned char& green, unsigned char& blue);
    // A table colour or one of -1, -3..-10 (multi colourings, -6 is RGB colouring).
    static bool isValidIndex(int index);
};

} // namespace kernel
} // namespace orrery
