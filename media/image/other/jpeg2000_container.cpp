// SPDX-License-Identifier: MIT
//
// A JP2 file is made of boxes: one holds the boxes that describe the picture, metadata lie in boxes
// that are told by identifiers, and the codestream is jumped over. Blocks of metadata are read when
// the walk is over, in the order in which they count.
#include "media/image/other/jpeg2000_container.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "io/iso_box.h"
#include "media/image/blocks/density.h"
#include "media/image/blocks/embedded_blocks.h"
#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"

namespace media::image {

namespace {

using BoxUuid = std::array<std::uint8_t, 16>;

constexpr std::string_view signatureBox("\0\0\0\x0CjP  \r\n\x87\n", 12);
constexpr std::string_view codestreamStart = "\xFF\x4F\xFF\x51";

// "JpgTiffExif->JP2", and another that programs write for the same.
constexpr BoxUuid exifUuids[] = {{0x4A, 0x70, 0x67, 0x54, 0x69, 0x66, 0x66, 0x45, 0x78, 0x69, 0x66,
                                  0x2D, 0x3E, 0x4A, 0x50, 0x32},
                                 {0x05, 0x37, 0xCD, 0xAB, 0x9D, 0x0C, 0x44, 0x31, 0xA7, 0x2A, 0xFA,
                                  0x56, 0x1F, 0x2A, 0x11, 0x3E}};
constexpr BoxUuid packetUuid = {0xBE, 0x7A, 0xCF, 0xCB, 0x97, 0xA9, 0x42, 0xE8,
                                0x9C, 0x71, 0x99, 0x94, 0x91, 0xE3, 0xAF, 0xAC};
constexpr BoxUuid iptcUuid = {0x33, 0xC7, 0xA4, 0xD2, 0xB8, 0x1D, 0x47, 0x23,
                              0xA0, 0xBA, 0xF1, 0xA3, 0xE0, 0x97, 0xAD, 0x38};

struct CodedSpace {
  std::uint32_t code;
  std::string_view colorModel;
};

constexpr CodedSpace codedSpaces[] = {
    {12, "CMYK"}, {14, "Lab"}, {16, "RGB"}, {17, "Gray"}, {18, "RGB"}};
constexpr std::uint32_t srgbSpace = 16;

// The space of an ICC profile, in its header.
constexpr std::pair<std::string_view, std::string_view> profileSpaces[] = {
    {"GRAY", "Gray"}, {"CMYK", "CMYK"}, {"Lab ", "Lab"}, {"RGB ", "RGB"}};

std::string_view modelOfComponents(int count) {
  return count < 3 ? "Gray" : "RGB";
}

// The size marker of a codestream: the picture is what lies behind its offset on the grid.
std::optional<model::Error> readCodestream(io::SourceReader& file, model::Dictionary& properties) {
  const auto size = file.view(0, 43);
  if (!size) return model::Error{"truncated JPEG 2000"};
  const auto number = [&](std::uint64_t offset) {
    return std::int64_t{*size->u32(offset, io::ByteOrder::big)};
  };
  const std::int64_t width = number(8) - number(16);
  const std::int64_t height = number(12) - number(20);
  if (width <= 0 || height <= 0) return model::Error{"damaged JPEG 2000"};
  properties.insert_or_assign("PixelWidth", width);
  properties.insert_or_assign("PixelHeight", height);
  properties.insert_or_assign("Depth", (*size->u8(42) & 0x7F) + 1);
  properties.insert_or_assign("ColorModel", modelOfComponents(*size->u16(40, io::ByteOrder::big)));
  return std::nullopt;
}

class Jp2Reader {
 public:
  Jp2Reader(io::SourceReader& file, model::Dictionary& properties)
      : _file(file), _properties(properties) {}

  std::optional<model::Error> read() {
    const bool isWhole = walk({0, _file.size()}, &Jp2Reader::take);
    if (!_properties.contains("PixelWidth")) {
      return model::Error{isWhole ? "damaged JPEG 2000" : "truncated JPEG 2000"};
    }
    readIptc();
    readEmbeddedBlocks(_file, _blocks, _properties);
    setDensityFromTiff(_properties);
    return std::nullopt;
  }

 private:
  using Take = void (Jp2Reader::*)(const io::IsoBox&);

  // Whether no box is cut.
  bool walk(io::ByteRange range, Take takeBox) {
    io::IsoBoxWalk boxes(_file, range, io::SourceReader::ReadAhead::none);
    bool isWhole = true;
    for (std::size_t count = 0; count < limits.jp2Boxes; ++count) {
      const auto box = boxes.next();
      if (!box) return isWhole;
      isWhole = isWhole && !box->isCut;
      (this->*takeBox)(*box);
    }
    return isWhole;
  }

  void take(const io::IsoBox& box) {
    if (box.is("jp2h")) walk(box.payload, &Jp2Reader::takeHeader);
    if (!box.is("uuid") || box.isCut) return;
    const bool isExif = std::ranges::find(exifUuids, box.uuid) != std::end(exifUuids);
    if (isExif && _blocks.exif.isEmpty()) _blocks.exif.append(box.payload);
    if (box.uuid == packetUuid && _blocks.xmp.isEmpty()) _blocks.xmp.append(box.payload);
    if (box.uuid == iptcUuid && _iptc.isEmpty()) _iptc.append(box.payload);
  }

  void takeHeader(const io::IsoBox& box) {
    constexpr std::uint64_t longest = 1024;
    const io::ByteView bytes = _file.upTo(box.payload.begin, std::min(box.payload.size(), longest));
    if (box.is("ihdr")) takeSize(bytes);
    if (box.is("bpcc")) takeDepth(bytes.u8(0).value_or(0));
    if (box.is("colr")) takeColor(box.payload, bytes);
    if (box.is("cdef")) takeChannels(bytes);
    if (box.is("pclr")) _properties.insert_or_assign("IsIndexed", true);
    if (box.is("res ")) walk(box.payload, &Jp2Reader::takeResolution);
  }

  // Height, width, how many components, the depth of all of them.
  void takeSize(io::ByteView bytes) {
    if (bytes.size() < 11 || _properties.contains("PixelWidth")) return;
    const std::uint32_t height = *bytes.u32(0, io::ByteOrder::big);
    const std::uint32_t width = *bytes.u32(4, io::ByteOrder::big);
    if (width == 0 || height == 0) return;
    _properties.insert_or_assign("PixelWidth", width);
    _properties.insert_or_assign("PixelHeight", height);
    setIfAbsent(_properties, "ColorModel", modelOfComponents(*bytes.u16(8, io::ByteOrder::big)));
    constexpr std::uint8_t differs = 0xFF;  // a box of its own tells the depth of each
    if (*bytes.u8(10) != differs) takeDepth(*bytes.u8(10));
  }

  void takeDepth(std::uint8_t code) { _properties.insert_or_assign("Depth", (code & 0x7F) + 1); }

  // The method, two bytes, then a number or a profile. The first box counts.
  void takeColor(io::ByteRange box, io::ByteView bytes) {
    if (std::exchange(_hasColor, true)) return;
    constexpr std::uint8_t coded = 1;
    const io::ByteView value = bytes.from(3);
    if (bytes.u8(0) == coded) return takeCodedSpace(value.u32(0, io::ByteOrder::big).value_or(0));
    const std::string_view space = value.from(16).text().substr(0, 4);
    const auto* row =
        std::ranges::find(profileSpaces, space, [](auto& each) { return each.first; });
    if (row == std::end(profileSpaces)) return;
    _properties.insert_or_assign("ColorModel", row->second);
    _blocks.profile.append({box.begin + 3, box.end});
  }

  void takeCodedSpace(std::uint32_t code) {
    const auto* row = std::ranges::find(codedSpaces, code, &CodedSpace::code);
    if (row != std::end(codedSpaces)) _properties.insert_or_assign("ColorModel", row->colorModel);
    if (code == srgbSpace) _properties.insert_or_assign("ProfileName", srgbProfileName);
  }

  // How many, then for each channel its number, its kind and what it belongs to.
  void takeChannels(io::ByteView bytes) {
    const std::uint64_t count = bytes.u16(0, io::ByteOrder::big).value_or(0);
    for (std::uint64_t index = 0; index < count; ++index) {
      const auto kind = bytes.u16(2 + index * 6 + 2, io::ByteOrder::big);
      if (!kind) return;
      if (*kind == 1 || *kind == 2) _properties.insert_or_assign("HasAlpha", true);
    }
  }

  // Pixels a metre as two fractions and two powers of ten, the vertical ones first. What it is to
  // be shown at goes before what it was captured at.
  void takeResolution(const io::IsoBox& box) {
    const io::ByteView bytes = _file.upTo(box.payload.begin, 10);
    const bool isForDisplay = box.is("resd");
    if (bytes.size() < 10 || (!isForDisplay && !box.is("resc"))) return;
    if (!isForDisplay && _properties.contains("DPIWidth")) return;
    const auto perMetre = [&](std::uint64_t fraction, std::uint64_t exponent) {
      const double over = *bytes.u16(fraction, io::ByteOrder::big);
      const double under = *bytes.u16(fraction + 2, io::ByteOrder::big);
      const int power = static_cast<std::int8_t>(*bytes.u8(exponent));
      return under > 0 ? over / under * std::pow(10.0, power) : 0;
    };
    const double x = perMetre(4, 9);
    const double y = perMetre(0, 8);
    constexpr double finest = 1e9;
    if (!(x >= 1 && x < finest && y >= 1 && y < finest)) return;
    setDensityFromMetres(static_cast<std::uint32_t>(std::llround(x)),
                         static_cast<std::uint32_t>(std::llround(y)), _properties);
  }

  void readIptc() {
    if (const auto datasets = _iptc.all(_file)) readIptcBlock(*datasets, _properties);
  }

  io::SourceReader& _file;
  model::Dictionary& _properties;
  EmbeddedBlocks _blocks;
  SplicedRanges _iptc;
  bool _hasColor = false;
};

}  // namespace

bool isJpeg2000File(io::ByteView head) {
  return head.startsWith(signatureBox) || head.startsWith(codestreamStart);
}

std::optional<model::Error> readJpeg2000File(io::SourceReader& file,
                                             model::Dictionary& properties) {
  if (file.upTo(0, 4).startsWith(codestreamStart)) return readCodestream(file, properties);
  return Jp2Reader(file, properties).read();
}

}  // namespace media::image
