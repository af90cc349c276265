// SPDX-License-Identifier: MIT
#include "lumifact/report/tiff_values.h"

#include <gtest/gtest.h>

#include "model/description.h"

namespace lumifact {
namespace {

using model::Array;
using model::Value;

struct Case {
  const char* key;
  Value value;
  std::optional<std::string> reading;
};

TEST(TiffValues, AreWordedByKey) {
  const Case cases[] = {
      {"ResolutionUnit", 1, std::nullopt},
      {"ResolutionUnit", 2, "Inch (2)"},
      {"ResolutionUnit", 3, "Centimeter (3)"},
      {"ResolutionUnit", 4, std::nullopt},
      {"ResolutionUnit", "2", "Inch (2)"},
      {"Orientation", 2, "180° - Landscape, Mirrored (2)"},
      {"Orientation", 3, "180° - Landscape (3)"},
      {"Orientation", 6.9, "90° CW - Portrait (6)"},
      {"Orientation", 0, std::nullopt},
      {"Orientation", 9, std::nullopt},
      {"Orientation", Array{1}, "[1]"},
      {"WhitePoint", Array{0.3127, 0.329}, "[0.3127, 0.329]"},
      {"Make", "Apple", std::nullopt},
      {"XResolution", 72, std::nullopt},
      {"Artist", model::Dictionary{{"a", 1}}, std::nullopt},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(tiffReading(row.key, row.value), row.reading)
        << row.key << " = " << model::valueText(row.value);
  }
}

}  // namespace
}  // namespace lumifact
