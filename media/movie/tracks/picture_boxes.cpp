// SPDX-License-Identifier: MIT
#include "media/movie/tracks/picture_boxes.h"

#include <array>
#include <string>
#include <string_view>

#include "media/movie/tracks/colour_tags.h"

namespace media::movie {

namespace {

using model::Dictionary;
using model::fourCharCode;

using io::ByteOrder::big;

void setPixelAspectRatio(Dictionary& extensions, io::ByteView payload) {
  const auto across = payload.u32(0, big);
  const auto down = payload.u32(4, big);
  if (!across || !down) return;
  extensions["CVPixelAspectRatio"] =
      Dictionary{{"HorizontalSpacing", *across}, {"VerticalSpacing", *down}};
}

// Widths are unsigned, offsets signed; all are small enough that reading both as signed is right.
struct Fraction {
  std::int32_t numerator = 0;
  std::int32_t denominator = 0;

  bool isWhole() const { return std::int64_t{numerator} % denominator == 0; }
  model::Value value() const {
    if (isWhole()) return std::int64_t{numerator} / denominator;
    return static_cast<double>(numerator) / denominator;
  }
};

// The platform states a rectangle as numbers, and as fractions too where one of them is broken.
void setCleanAperture(Dictionary& extensions, io::ByteView payload) {
  constexpr std::array<std::string_view, 4> keys = {"Width", "Height", "HorizontalOffset",
                                                    "VerticalOffset"};
  if (payload.size() < 8 * keys.size()) return;
  Dictionary aperture;
  Dictionary rationals;
  bool isWhole = true;
  for (std::size_t index = 0; index < keys.size(); ++index) {
    const std::string key(keys[index]);
    const Fraction fraction{static_cast<std::int32_t>(payload.u32(8 * index, big).value_or(0)),
                            static_cast<std::int32_t>(payload.u32(8 * index + 4, big).value_or(0))};
    if (fraction.denominator == 0) return;
    isWhole = isWhole && fraction.isWhole();
    aperture[key] = fraction.value();
    rationals[key + "Rational"] = model::Array{fraction.numerator, fraction.denominator};
  }
  if (!isWhole) aperture.merge(rationals);
  extensions["CVCleanAperture"] = std::move(aperture);
}

struct FieldDetail {
  std::uint8_t code;
  std::string_view name;
};

// QuickTime's "fiel": which field comes first in time, and which in the lines of the picture.
constexpr FieldDetail fieldDetails[] = {
    {1, "TemporalTopFirst"},
    {6, "TemporalBottomFirst"},
    {9, "SpatialFirstLineEarly"},
    {14, "SpatialFirstLineLate"},
};

void setFields(Dictionary& extensions, io::ByteView payload) {
  const auto count = payload.u8(0);
  const auto code = payload.u8(1);
  if (!count || !code || *count == 0) return;
  extensions["CVFieldCount"] = *count;
  for (const FieldDetail& detail : fieldDetails) {
    if (*count > 1 && detail.code == *code) extensions["CVFieldDetail"] = detail.name;
  }
}

struct PictureBox {
  model::FourCharCode type;
  void (*set)(Dictionary&, io::ByteView);
};

constexpr PictureBox pictureBoxes[] = {
    {fourCharCode("pasp"), setPixelAspectRatio},
    {fourCharCode("clap"), setCleanAperture},
    {fourCharCode("fiel"), setFields},
};

}  // namespace

bool setPictureBox(Dictionary& extensions, const BoxView& box) {
  for (const PictureBox& known : pictureBoxes) {
    if (known.type != box.type) continue;
    known.set(extensions, box.payload);
    return true;
  }
  return false;
}

bool isColourBox(io::ByteView payload) {
  return payload.startsWith("nclc") || payload.startsWith("nclx");
}

void setColourBox(Dictionary& extensions, io::ByteView payload) {
  const auto primaries = payload.u16(4, big);
  const auto transfer = payload.u16(6, big);
  const auto matrix = payload.u16(8, big);
  if (!primaries || !transfer || !matrix) return;
  for (const char* key : {"CVImageBufferColorPrimaries", "CVImageBufferTransferFunction",
                          "CVImageBufferGammaLevel", "CVImageBufferYCbCrMatrix"})
    extensions.erase(key);
  setColourTags(extensions, {*primaries, *transfer, *matrix});
  const auto flags = payload.u8(10);
  if (payload.startsWith("nclx") && flags) extensions["FullRangeVideo"] = (*flags & 0x80) != 0;
}

}  // namespace media::movie
