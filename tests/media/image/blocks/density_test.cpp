// SPDX-License-Identifier: MIT
#include "media/image/blocks/density.h"

#include <gtest/gtest.h>

#include <optional>

namespace media::image {
namespace {

struct DensityCase {
  const char* name;
  std::optional<model::Dictionary> tiff;
  std::optional<double> width;
  std::optional<double> height;
};

std::optional<double> realAt(const model::Dictionary& dictionary, const char* key) {
  const model::Value* value = model::find(dictionary, key);
  if (!value || !value->asReal()) return std::nullopt;
  return *value->asReal();
}

TEST(Density, followsTheResolutionUnit) {
  const DensityCase cases[] = {
      {"no section", std::nullopt, std::nullopt, std::nullopt},
      {"inch", {{{"XResolution", 72.0}, {"YResolution", 96.0}, {"ResolutionUnit", 2}}}, 72, 96},
      {"absent unit", {{{"XResolution", 300.0}}}, 300, std::nullopt},
      {"centimetre", {{{"XResolution", 100.0}, {"ResolutionUnit", 3}}}, 254, std::nullopt},
      {"no unit", {{{"XResolution", 72.0}, {"ResolutionUnit", 1}}}, std::nullopt, std::nullopt},
      {"unknown unit", {{{"XResolution", 72.0}, {"ResolutionUnit", 9}}}, std::nullopt, {}},
      {"zero", {{{"XResolution", 0.0}, {"YResolution", 72.0}}}, std::nullopt, 72},
  };
  for (const DensityCase& one : cases) {
    model::Dictionary properties;
    if (one.tiff) properties["{TIFF}"] = *one.tiff;
    setDensityFromTiff(properties);
    EXPECT_EQ(realAt(properties, "DPIWidth"), one.width) << one.name;
    EXPECT_EQ(realAt(properties, "DPIHeight"), one.height) << one.name;
  }
}

}  // namespace
}  // namespace media::image
