// SPDX-License-Identifier: MIT
#include "lumifact/report/tiff_values.h"

#include "lumifact/report/label.h"
#include "lumifact/report/orientation_names.h"
#include "lumifact/report/section_text.h"
#include "model/conversions.h"

namespace lumifact {

namespace {

// TIFF 6.0, tag 0x0128
constexpr Label resolutionUnits[] = {
    {2, "Inch (2)"},
    {3, "Centimeter (3)"},
};
static_assert(keysAscend(resolutionUnits));

std::optional<std::string_view> nameOf(std::string_view key, const model::Value& value) {
  if (key == "Orientation") return tiffOrientationName(model::integerValue(value));
  if (key == "ResolutionUnit") return labelOf(resolutionUnits, model::integerValue(value));
  return std::nullopt;
}

}  // namespace

std::optional<std::string> tiffReading(std::string_view key, const model::Value& value) {
  if (const auto* elements = value.asArray()) return bracketed(*elements);
  const auto name = nameOf(key, value);
  return name ? std::optional<std::string>(*name) : std::nullopt;
}

}  // namespace lumifact
