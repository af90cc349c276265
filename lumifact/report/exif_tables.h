// SPDX-License-Identifier: MIT
//
// The codes of the Exif IFD (EXIF 2.31, 4.6.5) and how each is worded. The tag's number stands
// beside its table.
#pragma once

#include "lumifact/report/label.h"

namespace lumifact {

// 0x8822
inline constexpr Label exposurePrograms[] = {
    {0, "Not defined (0)"},
    {1, "Manual (1)"},
    {2, "Normal program (2)"},
    {3, "Aperture priority (3)"},
    {4, "Shutter priority (4)"},
    {5, "Creative program (biased toward depth of field) (5)"},
    {6, "Action program (biased toward fast shutter speed) (6)"},
    {7, "Portrait mode (for closeup photos with the background out of focus) (7)"},
    {8, "Landscape mode (for landscape photos with the background in focus) (8)"},
};

// 0x9101, an element each
inline constexpr Label componentNames[] = {
    {1, "Y"}, {2, "Cb"}, {3, "Cr"}, {4, "R"}, {5, "G"}, {6, "B"},
};

// 0x9206; truncated, so anything below a metre counts as unknown
inline constexpr Label distances[] = {
    {-1, "Infinity"},
    {0, "Unknown (0)"},
};

// 0x9207
inline constexpr Label meteringModes[] = {
    {0, "Unknown (0)"}, {1, "Average (1)"},   {2, "CenterWeightedAverage (2)"},
    {3, "Spot (3)"},    {4, "MultiSpot (4)"}, {5, "Pattern (5)"},
    {6, "Partial (6)"}, {255, "Other (255)"},
};

// 0x9208
inline constexpr Label lightSources[] = {
    {0, "Unknown (0)"},
    {1, "Daylight (1)"},
    {2, "Fluorescent (2)"},
    {3, "Tungsten (incandescent light) (3)"},
    {4, "Flash (4)"},
    {9, "Fine weather (9)"},
    {10, "Cloudy weather (10)"},
    {11, "Shade (11)"},
    {12, "Daylight fluorescent (D 5700 - 7100K) (12)"},
    {13, "Day white fluorescent (N 4600 - 5400K) (13)"},
    {14, "Cool white fluorescent (W 3900 - 4500K) (14)"},
    {15, "White fluorescent (WW 3200 - 3700K) (15)"},
    {17, "Standard light A (17)"},
    {18, "Standard light B (18)"},
    {19, "Standard light C (19)"},
    {20, "D55 (20)"},
    {21, "D65 (21)"},
    {22, "D75 (22)"},
    {23, "D50 (23)"},
    {24, "ISO studio tungsten (24)"},
    {255, "Other (255)"},
};

// 0xA217; 6 repeats the text of 3, which is how the report words it
inline constexpr Label sensingMethods[] = {
    {1, "Not defined (1)"},
    {2, "One-chip color area sensor (2)"},
    {3, "Two-chip color area sensor (3)"},
    {4, "Three-chip color area sensor (4)"},
    {5, "Color sequential area sensor (5)"},
    {6, "Two-chip color area sensor (6)"},
    {7, "Trilinear sensor (7)"},
    {8, "Color sequential linear sensor (8)"},
};

// 0xA300
inline constexpr Label fileSources[] = {
    {3, "DSC (3)"},
};

// 0xA301
inline constexpr Label sceneTypes[] = {
    {1, "Directly photographed (1)"},
};

// 0xA302, where it is one code
inline constexpr Label colorFilters[] = {
    {0, "Red (0)"},     {1, "Green (1)"},  {2, "Blue (2)"},  {3, "Cyan (3)"},
    {4, "Magenta (4)"}, {5, "Yellow (5)"}, {6, "White (6)"},
};

// 0xA401
inline constexpr Label renderings[] = {
    {0, "Normal process (0)"},
    {1, "Custom process (1)"},
};

// 0xA402
inline constexpr Label exposureModes[] = {
    {0, "Auto (0)"},
    {1, "Manual (1)"},
    {2, "Auto Bracket (2)"},
};

// 0xA403
inline constexpr Label whiteBalances[] = {
    {0, "Auto (0)"},
    {1, "Manual (1)"},
};

// 0xA406
inline constexpr Label sceneCaptureTypes[] = {
    {0, "Standard (0)"},
    {1, "Landscape (1)"},
    {2, "Portrait (2)"},
    {3, "Night scene (3)"},
};

// 0xA407
inline constexpr Label gainControls[] = {
    {0, "None (0)"},          {1, "Low gain up (1)"},    {2, "High gain up (2)"},
    {3, "Low gain down (3)"}, {4, "High gain down (4)"},
};

// 0xA408
inline constexpr Label contrasts[] = {
    {0, "Normal (0)"},
    {1, "Soft (1)"},
    {2, "Hard (2)"},
};

// 0xA409
inline constexpr Label saturations[] = {
    {0, "Normal (0)"},
    {1, "Low saturation (1)"},
    {2, "High saturation (2)"},
};

// 0xA40A
inline constexpr Label sharpnesses[] = {
    {0, "Normal (0)"},
    {1, "Soft (1)"},
    {2, "Hard (2)"},
};

// 0xA40C
inline constexpr Label distanceRanges[] = {
    {0, "Unknown (0)"},
    {1, "Macro (1)"},
    {2, "Close view (2)"},
    {3, "Distant view (3)"},
};

}  // namespace lumifact
