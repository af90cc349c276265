// SPDX-License-Identifier: MIT
//
// What the tag tables of the sections are made of: one row a tag, with the key it is shown under
// and the function that makes its value.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "media/image/ifd/tiff_ifd.h"
#include "model/value.h"

namespace media::image {

struct TagRow {
  std::uint16_t tag;
  std::string_view key;
  // The value to show; none where the field holds nothing fit to be shown.
  std::optional<model::Value> (*valueOf)(const TiffField&);
};

// Rows are found by bisection: their tags ascend.
template <std::size_t count>
constexpr bool tagsAscend(const TagRow (&rows)[count]) {
  for (std::size_t index = 1; index < count; ++index) {
    if (rows[index - 1].tag >= rows[index].tag) return false;
  }
  return true;
}

// Puts the IFD's fields that have a row into the section of that name, over what it has already,
// since Exif fields go before what other blocks say. Of fields with the same tag the first counts.
// The section is made only where there is something to put into it. Texts that the limits cut are
// noted (shortfall.h).
void readTags(TiffStructure& structure, const Ifd& ifd, std::span<const TagRow> rows,
              std::string_view sectionName, model::Dictionary& properties);

// The values of most rows. Fields of another type than the tag asks for are taken as cameras write
// them: any kind of number for a number, bytes without a type for a text.

// A whole number, or an array where there are several; a field of fractions gives reals. 32-bit
// numbers are signed, as the phone's framework shows them.
std::optional<model::Value> integerValue(const TiffField& field);
// The same, always as an array.
std::optional<model::Value> integerArray(const TiffField& field);
// The first whole number alone: one-byte codes that some cameras pad.
std::optional<model::Value> firstInteger(const TiffField& field);
// A real, or an array where there are several, in which 0/0 is 0; none where another one divides
// by 0.
std::optional<model::Value> realValue(const TiffField& field);
// The bytes up to the first NUL; trailing blanks stay.
std::optional<model::Value> textValue(const TiffField& field);
// The same without trailing blanks, which fill fields of a fixed width; none where nothing is left.
std::optional<model::Value> trimmedText(const TiffField& field);

}  // namespace media::image
