// SPDX-License-Identifier: MIT
//
// The fixed fields of a video sample entry (QuickTime File Format, "Video Sample Description"; an
// ISO entry has zeros where QuickTime has vendor and qualities), and the boxes behind them.
#include "media/movie/tracks/video_description.h"

#include <algorithm>
#include <string>

#include "media/movie/boxes/four_char_text.h"
#include "media/movie/boxes/mac_roman.h"
#include "media/movie/tracks/colour_tags.h"
#include "media/movie/tracks/picture_boxes.h"
#include "media/movie/tracks/video_usability.h"

namespace media::movie {

namespace {

using model::Dictionary;
using model::fourCharCode;
using model::Value;

using io::ByteOrder::big;

// The compressor's name: a Pascal string in 32 bytes. Some writers leave the length out.
std::string compressorName(const SampleEntry& entry) {
  constexpr std::size_t fieldSize = 32;
  const auto field = entry.box.whole.sub(50, fieldSize);
  if (!field) return {};
  const std::size_t length = field->u8(0).value_or(0);
  std::string_view text = field->text();
  text = length < fieldSize ? text.substr(1, length) : text;
  text = text.substr(0, text.find('\0'));
  return utf8OrMacRoman(text);
}

std::string formatName(const SampleEntry& entry) {
  const std::string name = compressorName(entry);
  return name.empty() ? "'" + fourCharText(entry.box.type) + "'" : name;
}

void setFixedFields(Dictionary& extensions, const SampleEntry& entry) {
  const io::ByteView bytes = entry.box.whole;
  extensions["FormatName"] = formatName(entry);
  extensions["Depth"] = bytes.u16(82, big).value_or(0);
  extensions["Version"] = bytes.u16(16, big).value_or(0);
  extensions["RevisionLevel"] = bytes.u16(18, big).value_or(0);
  extensions["TemporalQuality"] = bytes.u32(24, big).value_or(0);
  extensions["SpatialQuality"] = bytes.u32(28, big).value_or(0);
  extensions["CVFieldCount"] = 1;
  const std::uint32_t vendor = bytes.u32(20, big).value_or(0);
  if (vendor != 0) extensions["Vendor"] = fourCharText(vendor);
}

// Where the boxes begin: behind the fixed fields, and behind a colour table where one stands here.
io::ByteView boxesOf(const SampleEntry& entry) {
  constexpr std::uint64_t fixedSize = 86;
  const io::ByteView bytes = entry.box.whole;
  const std::uint16_t depth = bytes.u16(82, big).value_or(0);
  const std::uint16_t colourTable = bytes.u16(84, big).value_or(0xFFFF);
  const bool isIndexed = depth != 0 && (depth & 0x1F) <= 8;
  if (entry.format != FileFormat::quickTime || colourTable != 0 || !isIndexed)
    return bytes.from(fixedSize);
  const std::uint64_t lastIndex = bytes.u16(fixedSize + 6, big).value_or(0);
  return bytes.from(fixedSize + 8 + (lastIndex + 1) * 8);
}

// Boxes without a meaning of their own, by their type; several of one type as an array.
void addAtom(Dictionary& atoms, const BoxView& box) {
  const auto bytes = box.payload.bytes();
  Value data = model::Data(bytes.begin(), bytes.end());
  const auto [place, isNew] = atoms.try_emplace(fourCharText(box.type), data);
  if (isNew) return;
  if (place->second.asArray() == nullptr) place->second = model::Array{place->second};
  place->second.asArray()->push_back(std::move(data));
}

bool hasUsability(model::FourCharCode atom) {
  return atom == fourCharCode("avcC") || atom == fourCharCode("hvcC");
}

// What the coded stream says; a "colr" box, read later, wins over it.
void setUsability(Dictionary& extensions, const BoxView& box) {
  const bool isHevc = box.type == fourCharCode("hvcC");
  const VideoUsability usability =
      isHevc ? usabilityOfHevcConfiguration(box.payload) : usabilityOfAvcConfiguration(box.payload);
  extensions["FullRangeVideo"] = usability.isFullRange;
  setChromaLocation(extensions, usability.chromaTopField, usability.chromaBottomField);
  if (usability.colour) setColourTags(extensions, *usability.colour);
  constexpr std::uint64_t lumaDepthOffset = 17;
  const auto depth = box.payload.u8(lumaDepthOffset);
  if (isHevc && depth) extensions["BitsPerComponent"] = 8 + (*depth & 7);
}

void setBoxes(Dictionary& extensions, const SampleEntry& entry) {
  Dictionary atoms;
  std::optional<io::ByteView> colour;
  BoxViewWalk walk(boxesOf(entry));
  while (const auto box = walk.next()) {
    if (box->type == fourCharCode("colr") && isColourBox(box->payload)) {
      if (!colour) colour = box->payload;
    } else if (!setPictureBox(extensions, *box)) {
      addAtom(atoms, *box);
    }
    if (hasUsability(box->type)) setUsability(extensions, *box);
  }
  if (colour) setColourBox(extensions, *colour);
  if (!atoms.empty()) extensions["SampleDescriptionExtensionAtoms"] = std::move(atoms);
}

// A number of a dictionary in the extensions; none where it is missing.
std::optional<double> number(const Dictionary& extensions, const char* section, const char* key) {
  const Value* outer = find(extensions, section);
  if (outer == nullptr || outer->asDictionary() == nullptr) return std::nullopt;
  const Value* value = find(*outer->asDictionary(), key);
  if (value == nullptr) return std::nullopt;
  if (const auto* integer = value->asInteger()) return static_cast<double>(*integer);
  if (const auto* real = value->asReal()) return *real;
  return std::nullopt;
}

}  // namespace

model::FormatDescription videoDescription(const SampleEntry& entry) {
  model::FormatDescription description;
  description.mediaType = entry.mediaType;
  description.mediaSubType = entry.box.type;
  description.width = entry.box.whole.u16(32, big).value_or(0);
  description.height = entry.box.whole.u16(34, big).value_or(0);
  setFixedFields(description.extensions, entry);
  setBoxes(description.extensions, entry);
  setVerbatimEntry(description.extensions, entry);
  return description;
}

model::Size presentationSize(const model::FormatDescription& description) {
  const Dictionary& extensions = description.extensions;
  model::Size size;
  size.width = number(extensions, "CVCleanAperture", "Width").value_or(description.width);
  size.height = number(extensions, "CVCleanAperture", "Height").value_or(description.height);
  const double across = number(extensions, "CVPixelAspectRatio", "HorizontalSpacing").value_or(1);
  const double down = number(extensions, "CVPixelAspectRatio", "VerticalSpacing").value_or(1);
  if (across > 0 && down > 0) size.width *= across / down;
  return size;
}

}  // namespace media::movie
