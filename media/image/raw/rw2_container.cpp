// SPDX-License-Identifier: MIT
#include "media/image/raw/rw2_container.h"

#include <string_view>

#include "media/image/blocks/density.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/raw/raw_facts.h"
#include "media/image/tiff/tiff_sections.h"

namespace media::image {

namespace {

// Tags of the first IFD.
constexpr std::uint16_t sensorTop = 0x0004;
constexpr std::uint16_t sensorLeft = 0x0005;
constexpr std::uint16_t sensorBottom = 0x0006;
constexpr std::uint16_t sensorRight = 0x0007;
constexpr std::uint16_t rw2Bits = 0x000A;
constexpr std::uint16_t speedTag = 0x0017;
constexpr std::uint16_t innerJpegTag = 0x002E;

// Below 0x0128 only these mean what they do in TIFF: Make, Model, Orientation.
constexpr bool isTagOfTiff(std::uint16_t tag) {
  constexpr std::uint16_t firstOfTiff = 0x0128;
  return tag == 0x010F || tag == 0x0110 || tag == 0x0112 || tag >= firstOfTiff;
}

PixelSize sensorSize(TiffStructure& structure, const Ifd& ifd) {
  const auto border = [&](std::uint16_t tag) { return integerOf(structure, ifd, tag).value_or(0); };
  return {border(sensorRight) - border(sensorLeft), border(sensorBottom) - border(sensorTop)};
}

// The Exif IFD has it as well, but older cameras have none outside the JPEG. 65535 stands for what
// does not fit.
void setSpeed(std::int64_t value, model::Dictionary& properties) {
  constexpr std::int64_t largest = 65534;
  if (value <= 0 || value > largest) return;
  setIfAbsent(section(properties, "{Exif}"), "ISOSpeedRatings", model::Array{value});
}

}  // namespace

bool isRw2File(io::ByteView head) {
  return head.startsWith(std::string_view("IIU\0", 4));
}

std::optional<model::Error> readRw2File(io::SourceReader& file, model::Dictionary& properties) {
  auto structure = TiffStructure::open(file);
  auto first = structure ? structure->readIfd(structure->firstIfd()) : std::nullopt;
  if (!first) return model::Error{"truncated RW2"};
  const PixelSize size = sensorSize(*structure, *first);
  if (size.isEmpty()) return model::Error{"damaged RW2"};
  const std::int64_t depth = integerOf(*structure, *first, rw2Bits).value_or(0);
  const std::int64_t ownSpeed = integerOf(*structure, *first, speedTag).value_or(0);
  const IfdEntry* entry = first->find(innerJpegTag);
  const io::ByteRange jpeg =
      entry ? io::ByteRange{entry->offset, entry->offset + entry->count} : io::ByteRange();
  std::erase_if(first->entries, [](const IfdEntry& each) { return !isTagOfTiff(each.tag); });
  readTiffSections(*structure, *first, properties);
  readInnerJpeg(file, jpeg, properties);
  setSpeed(ownSpeed, properties);
  setRawPixels(size, depth, properties);
  setDensityFromTiff(properties);
  return std::nullopt;
}

}  // namespace media::image
