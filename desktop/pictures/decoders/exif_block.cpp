// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/exif_block.h"

#include "media/image/ifd/tiff_ifd.h"

namespace desktop::pictures {

namespace {

using media::image::Ifd;
using media::image::TiffStructure;

constexpr std::uint16_t orientationTag = 0x0112;
constexpr std::uint16_t thumbnailOffset = 0x0201;  // JPEGInterchangeFormat
constexpr std::uint16_t thumbnailLength = 0x0202;

std::uint64_t numberOf(TiffStructure& structure, const Ifd& ifd, std::uint16_t tag) {
  const media::image::IfdEntry* entry = ifd.find(tag);
  const auto field = entry ? structure.field(*entry) : std::nullopt;
  const std::int64_t number = field ? field->integer(0).value_or(0) : 0;
  return number > 0 ? static_cast<std::uint64_t>(number) : 0;
}

// The offset of the IFD that follows the one at `offset`. TIFF 6.0, section 2.
std::uint64_t nextIfd(io::ByteView block, std::uint64_t offset, io::ByteOrder order) {
  const std::uint64_t count = block.u16(offset, order).value_or(0);
  return block.u32(offset + 2 + count * 12, order).value_or(0);
}

}  // namespace

ExifBlock readExifBlock(io::ByteView block) {
  ExifBlock result;
  auto structure = TiffStructure::open(block);
  const auto first = structure ? structure->readIfd(structure->firstIfd()) : std::nullopt;
  if (!first) return result;
  result.orientation =
      Orientation(static_cast<std::int64_t>(numberOf(*structure, *first, orientationTag)));
  const auto second = structure->readIfd(nextIfd(block, structure->firstIfd(), structure->order()));
  if (!second) return result;
  const auto bytes = block.sub(numberOf(*structure, *second, thumbnailOffset),
                               numberOf(*structure, *second, thumbnailLength));
  if (bytes) result.thumbnail.assign(bytes->bytes().begin(), bytes->bytes().end());
  return result;
}

}  // namespace desktop::pictures
