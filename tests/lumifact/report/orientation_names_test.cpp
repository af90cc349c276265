// SPDX-License-Identifier: MIT
#include "lumifact/report/orientation_names.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumifact {
namespace {

struct Row {
  std::int64_t orientation;
  std::string_view image;
  std::string_view tiff;
};

constexpr Row rows[] = {
    {1, "0\u00B0 - Landscape (1)", "0\u00B0 - Landscape (1)"},
    {2, "0\u00B0 - Landscape, Mirrored (2)", "180\u00B0 - Landscape, Mirrored (2)"},
    {3, "0\u00B0 - Landscape (3)", "180\u00B0 - Landscape (3)"},
    {4, "180\u00B0 - Landscape, Mirrored (4)", "180\u00B0 - Landscape, Mirrored (4)"},
    {5, "90\u00B0 CW - Portrait,  Mirrored (5)", "90\u00B0 CW - Portrait,  Mirrored (5)"},
    {6, "90\u00B0 CW - Portrait (6)", "90\u00B0 CW - Portrait (6)"},
    {7, "90\u00B0 CCW - Portrait,  Mirrored (7)", "90\u00B0 CCW - Portrait,  Mirrored (7)"},
    {8, "90\u00B0 CCW - Portrait (8)", "90\u00B0 CCW - Portrait (8)"},
};

TEST(OrientationNames, NameAllEightInBothTables) {
  for (const Row& row : rows) {
    EXPECT_EQ(imageOrientationName(row.orientation), row.image) << row.orientation;
    EXPECT_EQ(tiffOrientationName(row.orientation), row.tiff) << row.orientation;
  }
}

TEST(OrientationNames, NameNothingElse) {
  for (const std::int64_t orientation :
       {std::int64_t{0}, std::int64_t{9}, std::int64_t{-1}, std::int64_t{1} << 32 | 1,
        std::numeric_limits<std::int64_t>::max(), std::numeric_limits<std::int64_t>::min()}) {
    EXPECT_EQ(imageOrientationName(orientation), std::nullopt) << orientation;
    EXPECT_EQ(tiffOrientationName(orientation), std::nullopt) << orientation;
  }
}

}  // namespace
}  // namespace lumifact
