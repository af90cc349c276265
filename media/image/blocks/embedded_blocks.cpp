// SPDX-License-Identifier: MIT
#include "media/image/blocks/embedded_blocks.h"

#include <string_view>

#include "media/image/blocks/icc_profile.h"
#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/blocks/photoshop_resources.h"
#include "media/image/blocks/shortfall.h"

namespace media::image {

namespace {

constexpr std::string_view exifPrefix("Exif\0\0", 6);

}  // namespace

std::optional<io::ByteView> wholeBlock(io::SourceReader& file, SplicedRanges& block,
                                       model::Dictionary& properties) {
  if (block.size() > limits.embeddedBytes) noteShortfall(properties, droppedMetadata);
  return block.all(file);
}

io::ByteView withoutExifPrefix(io::ByteView block) {
  return block.startsWith(exifPrefix) ? block.from(exifPrefix.size()) : block;
}

void readEmbeddedBlocks(io::SourceReader& file, EmbeddedBlocks& blocks,
                        model::Dictionary& properties) {
  if (const auto exif = wholeBlock(file, blocks.exif, properties)) {
    readExifBlock(withoutExifPrefix(*exif), properties);
  }
  readPhotoshopResources(blocks.photoshop.reader(file), properties);
  if (const auto xmp = wholeBlock(file, blocks.xmp, properties)) {
    readXmpPacket(*xmp, properties);
  }
  if (auto name = iccProfileName(blocks.profile.reader(file))) {
    setIfAbsent(properties, "ProfileName", *std::move(name));
  }
}

}  // namespace media::image
