// SPDX-License-Identifier: MIT
#include "media/image/heif/heif_orientation.h"

#include "media/image/heif/heif_transform.h"

namespace media::image {

namespace {

std::uint8_t codeOf(io::SourceReader& file, const io::IsoBox& property) {
  return property.payload.size() == 0 ? 0 : file.upTo(property.payload.begin, 1).u8(0).value_or(0);
}

}  // namespace

std::optional<std::int64_t> heifOrientation(HeifMeta& meta, io::SourceReader& file,
                                            std::uint32_t item) {
  using Mirroring = HeifTransform::Mirroring;
  HeifTransform transform;
  bool isTransformed = false;
  for (const io::IsoBox& property : meta.propertiesOf(item)) {
    const bool isTurn = property.is("irot");
    if (!isTurn && !property.is("imir")) continue;
    isTransformed = true;
    const std::uint8_t code = codeOf(file, property);
    if (isTurn) {
      transform.rotate(code & 3);
    } else {
      transform.mirror(code & 1 ? Mirroring::leftToRight : Mirroring::topToBottom);
    }
  }
  return isTransformed ? std::optional(transform.orientation()) : std::nullopt;
}

}  // namespace media::image
