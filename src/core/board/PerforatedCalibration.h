#pragma once

// A page to check the perforated strip stock settings against the stock itself.

class QPagedPaintDevice;

namespace tb {

// The number of strip outlines the calibration page holds at most.
inline constexpr int CalibrationStripCount = 40;

// What the calibration page drew.
struct CalibrationPageResult
{
    bool printed = false;
    int strips = 0;     // outlines drawn
    int firstLeft = 0;  // the first outline's left edge on the page, in device dots
    int stripWidth = 0; // the outline width in dots (rounded)
};

// Prints one page of numbered strip outlines, the first at the left margin and each
// one strip wide, placed exactly as board printing on perforated stock places its
// strips (a margin inside the printer's unprintable edge starts one strip further
// right), under a millimetre ruler measured from the sheet's left edge, with the two
// numbers printed.
CalibrationPageResult PrintCalibrationPage(double marginMm, double stripWidthMm, QPagedPaintDevice &device);

} // namespace tb
