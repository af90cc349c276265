// SPDX-License-Identifier: MIT
#include "media/movie/tracks/colour_tags.h"

#include <span>
#include <string_view>

namespace media::movie {

namespace {

struct Name {
  std::uint32_t code;
  std::string_view name;
};

constexpr Name primaries[] = {
    {1, "ITU_R_709_2"}, {5, "EBU_3213"}, {6, "SMPTE_C"},
    {9, "ITU_R_2020"},  {11, "DCI_P3"},  {12, "P3_D65"},
};

// 6, 14 and 15 are the curve of 1; 4 and 5 are gammas.
constexpr Name transfers[] = {
    {1, "ITU_R_709_2"},     {4, "UseGamma"},        {5, "UseGamma"},     {6, "ITU_R_709_2"},
    {7, "SMPTE_240M_1995"}, {14, "ITU_R_709_2"},    {15, "ITU_R_709_2"}, {16, "SMPTE_ST_2084_PQ"},
    {17, "SMPTE_ST_428_1"}, {18, "ITU_R_2100_HLG"},
};

constexpr Name matrices[] = {
    {1, "ITU_R_709_2"},     {5, "ITU_R_601_4"}, {6, "ITU_R_601_4"},
    {7, "SMPTE_240M_1995"}, {9, "ITU_R_2020"},
};

constexpr Name chromaLocations[] = {
    {0, "Left"}, {1, "Center"}, {2, "TopLeft"}, {3, "Top"}, {4, "BottomLeft"}, {5, "Bottom"},
};

constexpr bool codesAscend(std::span<const Name> names) {
  for (std::size_t index = 1; index < names.size(); ++index) {
    if (names[index - 1].code >= names[index].code) return false;
  }
  return true;
}
static_assert(codesAscend(primaries) && codesAscend(transfers) && codesAscend(matrices) &&
              codesAscend(chromaLocations));

std::optional<std::string_view> nameOf(std::span<const Name> names, std::uint32_t code) {
  for (const Name& name : names) {
    if (name.code == code) return name.name;
  }
  return std::nullopt;
}

}  // namespace

void setColourTags(model::Dictionary& extensions, const ColourCodes& codes) {
  if (const auto name = nameOf(primaries, codes.primaries))
    extensions["CVImageBufferColorPrimaries"] = *name;
  if (const auto name = nameOf(transfers, codes.transfer))
    extensions["CVImageBufferTransferFunction"] = *name;
  if (codes.transfer == 4) extensions["CVImageBufferGammaLevel"] = 2.2;
  if (codes.transfer == 5) extensions["CVImageBufferGammaLevel"] = 2.8;
  if (const auto name = nameOf(matrices, codes.matrix))
    extensions["CVImageBufferYCbCrMatrix"] = *name;
}

void setChromaLocation(model::Dictionary& extensions, std::uint32_t topField,
                       std::uint32_t bottomField) {
  extensions["CVImageBufferChromaLocationTopField"] =
      nameOf(chromaLocations, topField).value_or("Left");
  extensions["CVImageBufferChromaLocationBottomField"] =
      nameOf(chromaLocations, bottomField).value_or("Left");
}

}  // namespace media::movie
