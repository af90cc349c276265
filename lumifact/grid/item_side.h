// SPDX-License-Identifier: MIT
//
// How large the thumbnails of an album are while it has fewer columns than usual.
#pragma once

#include <cstdint>
#include <optional>

namespace lumifact {

// What the sizes are computed from. Lengths are in points.
struct GridMeasures {
  std::int32_t columnReduction = 0;  // how many columns fewer than the platform's; 0 for its grid
  double screenWidth = 0;
  double spacing = 0;  // between two items
};

// The side of a square item where the platform has `columnsPerRow` columns; none where the
// platform's own size holds: without a reduction, and where it leaves no column.
std::optional<double> sideInColumns(const GridMeasures& measures, std::int64_t columnsPerRow);

// The side of the items of the layout as a whole, which always takes the platform's grid to have
// four columns, and one space more than lies between them; none as above.
std::optional<double> sideOfItems(const GridMeasures& measures);

}  // namespace lumifact
