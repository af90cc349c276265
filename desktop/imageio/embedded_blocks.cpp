// SPDX-License-Identifier: MIT
#include "desktop/imageio/embedded_blocks.h"

#include <string_view>

#include "desktop/imageio/icc_profile.h"
#include "desktop/imageio/metadata_blocks.h"
#include "desktop/imageio/photoshop_resources.h"

namespace desktop::imageio {

namespace {

constexpr std::string_view exifPrefix("Exif\0\0", 6);

}  // namespace

ByteView withoutExifPrefix(ByteView block) {
  return block.startsWith(exifPrefix) ? block.from(exifPrefix.size()) : block;
}

void readEmbeddedBlocks(SourceReader& file, EmbeddedBlocks& blocks, model::Dictionary& properties) {
  if (const auto exif = blocks.exif.all(file)) readExifBlock(withoutExifPrefix(*exif), properties);
  readPhotoshopResources(blocks.photoshop.reader(file), properties);
  if (const auto xmp = blocks.xmp.all(file)) readXmpPacket(*xmp, properties);
  if (auto name = iccProfileName(blocks.profile.reader(file))) {
    setIfAbsent(properties, "ProfileName", *std::move(name));
  }
}

}  // namespace desktop::imageio
