// SPDX-License-Identifier: MIT
//
// Layout: "Nikon", NUL, a version, then a whole TIFF structure with offsets of its own, so that the
// note may lie anywhere. What the lens says of itself is a block whose version tells what stands
// where, in most cameras under a cipher. https://exiftool.org/TagNames/Nikon.html
#include "media/image/maker/maker_nikon.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "media/image/blocks/metadata_blocks.h"
#include "media/image/ifd/tag_table.h"
#include "media/image/ifd/tiff_ifd.h"
#include "media/image/maker/nikon_cipher.h"
#include "model/number_text.h"

namespace media::image {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view signature = "Nikon\0\2"sv;
constexpr std::uint64_t structureOffset = 10;

constexpr std::uint16_t serialNumber = 0x001D;
constexpr std::uint16_t lens = 0x0084;
constexpr std::uint16_t lensData = 0x0098;
constexpr std::uint16_t shutterCount = 0x00A7;

// A signed number of steps, and a step as a fraction.
std::optional<model::Value> flashCompensationValue(const TiffField& field) {
  const auto number = [&](std::uint64_t index) {
    return static_cast<std::int8_t>(field.bytes.u8(index).value_or(0));
  };
  if (sizeOf(field.type) != 1 || field.count < 3) return std::nullopt;
  if (number(2) == 0) return model::Value(0.0);
  return model::Value(static_cast<double>(number(0) * number(1)) / number(2));
}

// The shortest and the longest focal length, and the widest aperture of each.
std::optional<std::array<double, 4>> lensRange(const TiffField& field) {
  std::array<double, 4> range{};
  for (std::size_t index = 0; index < range.size(); ++index) {
    range[index] = field.real(index).value_or(0);
  }
  if (!isRational(field.type) || field.count != range.size() || !(range[0] > 0) ||
      !(range[1] >= range[0]))
    return {};
  return range;
}

std::optional<model::Value> lensInfoValue(const TiffField& field) {
  const auto range = lensRange(field);
  if (!range) return std::nullopt;
  return model::Value(model::Array(range->begin(), range->end()));
}

std::string rangeText(double from, double to) {
  const std::string text = model::fixedText(from, 1);
  return from == to ? text : text + "-" + model::fixedText(to, 1);
}

// "24.0-120.0 mm f/4.0", as newer cameras write it into Exif.
std::optional<model::Value> lensModelValue(const TiffField& field) {
  const auto range = lensRange(field);
  if (!range || !((*range)[2] > 0) || !((*range)[3] > 0)) return std::nullopt;
  const auto& [shortest, longest, widest, widestAtLongest] = *range;
  return model::Value(rangeText(shortest, longest) + " mm f/" + rangeText(widest, widestAtLongest));
}

std::optional<model::Value> imageNumberValue(const TiffField& field) {
  constexpr std::int64_t unknownCount = 4294965247;
  const std::int64_t count = field.integer(0).value_or(0);
  if (count <= 0 || count == unknownCount) return std::nullopt;
  return model::Value(count);
}

constexpr TagRow rows[] = {
    {0x0012, "FlashCompensation", flashCompensationValue},
    {serialNumber, "SerialNumber", trimmedText},
    {lens, "LensInfo", lensInfoValue},
    {0x00A0, "SerialNumber", trimmedText},
    {shutterCount, "ImageNumber", imageNumberValue},
};
static_assert(tagsAscend(rows));

constexpr TagRow lensModelRow[] = {{lens, "LensModel", lensModelValue}};

enum class Cipher : std::uint8_t { none, camera };

struct LensDataRow {
  std::string_view version;  // the block's first bytes
  std::uint8_t idOffset;
  Cipher cipher;
};

constexpr LensDataRow lensDataRows[] = {
    {"0100", 6, Cipher::none},    {"0101", 11, Cipher::none},   {"0201", 11, Cipher::camera},
    {"0202", 11, Cipher::camera}, {"0203", 11, Cipher::camera}, {"0204", 12, Cipher::camera},
    {"0800", 13, Cipher::camera}, {"0801", 13, Cipher::camera}, {"0802", 13, Cipher::camera},
};

constexpr std::size_t lensDataSize = 16;  // bytes up to the shortest focal length, at most
using LensData = std::array<std::uint8_t, lensDataSize>;

class LensReader {
 public:
  LensReader(TiffStructure& structure, const Ifd& ifd, const model::Dictionary& properties)
      : _structure(structure), _ifd(ifd), _properties(properties) {}

  // None where the camera does not tell it, or it does not fit to the lens that it names.
  std::optional<std::int64_t> id() {
    const auto field = fieldOf(lensData);
    if (!field) return std::nullopt;
    const auto row = std::ranges::find_if(
        lensDataRows, [&](const LensDataRow& one) { return field->bytes.startsWith(one.version); });
    if (row == std::end(lensDataRows)) return std::nullopt;
    const auto start = field->bytes.sub(0, row->idOffset + std::size_t{3});
    if (!start) return std::nullopt;
    LensData bytes{};
    std::ranges::copy(start->bytes(), bytes.begin());
    if (row->cipher == Cipher::camera && !decode(bytes)) return std::nullopt;
    const std::uint8_t id = bytes[row->idOffset];
    const bool isSame = isShortestFocalLength(bytes[row->idOffset + std::size_t{2}]);
    return id != 0 && isSame ? std::optional<std::int64_t>(id) : std::nullopt;
  }

 private:
  std::optional<TiffField> fieldOf(std::uint16_t tag) {
    const IfdEntry* entry = _ifd.find(tag);
    return entry ? _structure.field(*entry) : std::nullopt;
  }

  // The cipher leaves the version readable.
  bool decode(LensData& bytes) {
    const auto serial = serialKey();
    const auto field = fieldOf(shutterCount);
    const auto count = field ? field->integer(0) : std::nullopt;
    if (!serial || !count) return false;
    decodeNikon(std::span(bytes).subspan(4), *serial, static_cast<std::uint32_t>(*count));
    return true;
  }

  // The low byte of a serial number; a constant where that is no number.
  std::optional<std::uint8_t> serialKey() {
    const auto field = fieldOf(serialNumber);
    if (!field) return std::nullopt;
    std::string_view text = field->text();
    text = text.substr(0, text.find(' '));
    if (text.empty()) return std::nullopt;
    if (text.find_first_not_of("0123456789") != std::string_view::npos) {
      return sectionText(_properties, "{TIFF}", "Model").ends_with("D50") ? 0x22 : 0x60;
    }
    std::uint8_t key = 0;
    for (const char digit : text) key = static_cast<std::uint8_t>(key * 10 + (digit - '0'));
    return key;
  }

  // Whether the code of a focal length, 24 steps for each doubling of 5 mm, is that of the lens
  // which the note tells in clear: a wrong key gives another.
  bool isShortestFocalLength(std::uint8_t code) {
    const auto field = fieldOf(lens);
    const auto range = field ? lensRange(*field) : std::nullopt;
    return !range || std::abs(5 * std::exp2(code / 24.0) / range->front() - 1) < 0.1;
  }

  TiffStructure& _structure;
  const Ifd& _ifd;
  const model::Dictionary& _properties;
};

// "Ver.1.01"; of a file that a program has saved again the software is that program.
std::string_view firmware(const model::Dictionary& properties) {
  const std::string_view software = sectionText(properties, "{TIFF}", "Software");
  if (!software.starts_with("Ver.")) return {};
  return software.substr(0, software.find_last_not_of(' ') + 1);
}

}  // namespace

void readNikonMakerNote(io::ByteView note, model::Dictionary& properties) {
  if (!note.startsWith(signature)) return;
  auto structure = TiffStructure::open(note.from(structureOffset));
  const auto ifd = structure ? structure->readIfd(structure->firstIfd()) : std::nullopt;
  if (!ifd) return;
  readTags(*structure, *ifd, rows, "{ExifAux}", properties);
  readTags(*structure, *ifd, lensModelRow, "{ExifAux}", properties);
  if (const auto id = LensReader(*structure, *ifd, properties).id()) {
    section(properties, "{ExifAux}").insert_or_assign("LensID", *id);
  }
  if (const std::string_view version = firmware(properties); !version.empty()) {
    section(properties, "{ExifAux}").insert_or_assign("Firmware", version);
  }
}

}  // namespace media::image
