// SPDX-License-Identifier: MIT
//
// Photoshop's image resources. Of those in other files only the IPTC datasets are read; thumbnails
// and paths are passed over. Adobe Photoshop File Formats Specification, "Image Resource Blocks".
#pragma once

#include <cstdint>
#include <functional>

#include "media/image/blocks/spliced_ranges.h"
#include "model/value.h"

namespace media::image {

struct PhotoshopResource {
  std::uint16_t number = 0;
  std::uint64_t offset = 0;  // of its bytes
  std::uint64_t size = 0;
  std::uint64_t end() const { return offset + size + size % 2; }
};

// Calls for every resource in order, up to the limit.
void forEachPhotoshopResource(const BlockReader& resources,
                              const std::function<void(const PhotoshopResource&)>& take);

// As readPhotoshopResources(ByteView, ...) of metadata_blocks.h, for resources read on demand.
void readPhotoshopResources(const BlockReader& resources, model::Dictionary& properties);

}  // namespace media::image
