// SPDX-License-Identifier: MIT
#include "media/image/blocks/photoshop_resources.h"

#include <algorithm>
#include <string_view>

#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/blocks/shortfall.h"

namespace media::image {

namespace {

constexpr std::uint16_t iptcResource = 0x0404;

// "8BIM" (or a signature of other Adobe programs), number, a name with its length in front that is
// padded to an even size, the size, the bytes.
std::optional<PhotoshopResource> resourceAt(const BlockReader& resources, std::uint64_t offset) {
  const auto start = resources(offset, 7);
  if (!start) return std::nullopt;
  constexpr std::string_view signatures[] = {"8BIM", "PHUT", "DCSR", "AgHg", "MeSa"};
  const auto isStart = [&](std::string_view signature) { return start->startsWith(signature); };
  if (std::ranges::none_of(signatures, isStart)) return std::nullopt;
  PhotoshopResource resource;
  resource.number = start->u16(4, io::ByteOrder::big).value_or(0);
  const std::uint64_t nameLength = start->u8(6).value_or(0);
  const std::uint64_t nameSize = (nameLength + 2) / 2 * 2;  // with its length byte and padding
  const auto size = resources(offset + 6 + nameSize, 4);
  if (!size) return std::nullopt;
  resource.offset = offset + 6 + nameSize + 4;
  resource.size = size->u32(0, io::ByteOrder::big).value_or(0);
  return resource;
}

void readIptc(const BlockReader& resources, const PhotoshopResource& resource,
              model::Dictionary& properties) {
  if (resource.size > limits.embeddedBytes) {
    const bool isThere = resources(resource.offset + resource.size - 1, 1).has_value();
    if (isThere) noteShortfall(properties, droppedMetadata);
  } else if (const auto bytes = resources(resource.offset, resource.size)) {
    readIptcBlock(*bytes, properties);
  }
}

}  // namespace

void forEachPhotoshopResource(const BlockReader& resources,
                              const std::function<void(const PhotoshopResource&)>& take) {
  std::uint64_t offset = 0;
  for (std::size_t count = 0; count < limits.photoshopResources; ++count) {
    const auto resource = resourceAt(resources, offset);
    if (!resource) return;
    take(*resource);
    offset = resource->end();
  }
}

void readPhotoshopResources(const BlockReader& resources, model::Dictionary& properties) {
  forEachPhotoshopResource(resources, [&](const PhotoshopResource& resource) {
    if (resource.number == iptcResource) readIptc(resources, resource, properties);
  });
}

void readPhotoshopResources(io::ByteView resources, model::Dictionary& properties) {
  readPhotoshopResources(
      [resources](std::uint64_t offset, std::uint64_t length) {
        return resources.sub(offset, length);
      },
      properties);
}

}  // namespace media::image
