// SPDX-License-Identifier: MIT
#include "lumifact/grid/item_side.h"

namespace lumifact {
namespace {

constexpr std::int32_t usualColumns = 4;

// In double precision, of counts and with a result in single precision.
double side(double width, float columns, double spacing, float spaces) {
  const double exact = width / static_cast<double>(columns) - spacing * static_cast<double>(spaces);
  return static_cast<double>(static_cast<float>(exact));
}

}  // namespace

std::optional<double> sideInColumns(const GridMeasures& measures, std::int64_t columnsPerRow) {
  if (measures.columnReduction == 0 || columnsPerRow <= measures.columnReduction)
    return std::nullopt;
  const std::int64_t columns = columnsPerRow - measures.columnReduction;
  return side(measures.screenWidth, static_cast<float>(columns), measures.spacing,
              static_cast<float>(columns - 1));
}

std::optional<double> sideOfItems(const GridMeasures& measures) {
  if (measures.columnReduction == 0 || measures.columnReduction >= usualColumns)
    return std::nullopt;
  const auto columns = static_cast<float>(usualColumns - measures.columnReduction);
  return side(measures.screenWidth, columns, measures.spacing, columns);
}

}  // namespace lumifact
