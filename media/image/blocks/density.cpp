// SPDX-License-Identifier: MIT
#include "media/image/blocks/density.h"

#include <cmath>
#include <optional>
#include <string_view>

namespace media::image {

namespace {

// Dots per inch for one resolution in each unit; none for units that are no length.
std::optional<double> inchFactor(const model::Dictionary& tiff) {
  const model::Value* unit = model::find(tiff, "ResolutionUnit");
  if (!unit) return 1.0;
  const std::int64_t* code = unit->asInteger();
  if (!code || (*code != 2 && *code != 3)) return std::nullopt;
  return *code == 2 ? 1.0 : 2.54;
}

void setOne(const model::Dictionary& tiff, std::string_view from, double factor,
            std::string_view key, model::Dictionary& properties) {
  const model::Value* resolution = model::find(tiff, from);
  const double* dots = resolution ? resolution->asReal() : nullptr;
  if (dots && *dots > 0) properties.insert_or_assign(std::string(key), *dots * factor);
}

}  // namespace

void setDensityFromTiff(model::Dictionary& properties) {
  const model::Value* section = model::find(properties, "{TIFF}");
  const model::Dictionary* tiff = section ? section->asDictionary() : nullptr;
  if (!tiff) return;
  const auto factor = inchFactor(*tiff);
  if (!factor) return;
  setOne(*tiff, "XResolution", *factor, "DPIWidth", properties);
  setOne(*tiff, "YResolution", *factor, "DPIHeight", properties);
}

void setDensityFromMetres(std::uint32_t x, std::uint32_t y, model::Dictionary& properties) {
  constexpr double metresPerInch = 0.0254;
  properties.insert_or_assign("DPIWidth", std::llround(x * metresPerInch));
  properties.insert_or_assign("DPIHeight", std::llround(y * metresPerInch));
}

}  // namespace media::image
