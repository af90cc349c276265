// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/jpeg_decoder.h"

#include <optional>
#include <string_view>
#include <utility>

#include "desktop/pictures/decoders/exif_block.h"
#include "desktop/pictures/decoders/jpeg_stream.h"
#include "desktop/pictures/pixels/colours.h"
#include "desktop/pictures/pixels/limits.h"
#include "desktop/pictures/pixels/row_scaler.h"
#include "media/image/jpeg/jpeg_segments.h"

namespace desktop::pictures {

namespace {

using namespace std::string_view_literals;

ExifBlock exifOf(io::ByteSource& source) {
  constexpr std::uint8_t app1 = 0xE1;
  constexpr auto signature = "Exif\0"sv;  // a padding byte follows
  io::SourceReader file(source);
  media::image::JpegSegmentWalk walk(file, {0, file.size()});
  while (const auto segment = walk.next()) {
    if (segment->marker != app1 || segment->payload.size() > limits.exifBytes) continue;
    const auto bytes = file.view(segment->payload.begin, segment->payload.size());
    if (bytes && bytes->startsWith(signature)) return readExifBlock(bytes->from(6));
  }
  return {};
}

// Decodes what is left of a stream to exactly the target. None where not even one row comes.
std::optional<Picture> scaledTo(PixelSize target, JpegStream& stream) {
  if (!stream.start(target)) return std::nullopt;
  RowScaler scaler(stream.scaledSize(), target);
  auto row = stream.nextRow();
  if (row.empty()) return std::nullopt;
  for (; !row.empty(); row = stream.nextRow()) scaler.addRow(row);
  return scaler.take();
}

std::optional<Picture> thumbnailAs(PixelSize target, PixelSize image,
                                   std::vector<std::uint8_t> thumbnail) {
  if (thumbnail.empty()) return std::nullopt;
  io::MemorySource source(std::move(thumbnail));
  JpegStream stream(source);
  if (!stream.readHeader() || !covers(stream.size(), target)) return std::nullopt;
  if (!hasSameAspect(stream.size(), image)) return std::nullopt;
  return scaledTo(target, stream);
}

}  // namespace

model::Result<Picture> decodeJpeg(io::ByteSource& source, const Request& request,
                                  std::optional<Orientation> orientation) {
  JpegStream stream(source);
  if (!stream.readHeader()) return stream.error();
  ExifBlock exif = exifOf(source);
  const Orientation turn = orientation.value_or(exif.orientation);
  const PixelSize image = stream.size();
  const PixelSize target = turn.turned(targetSize(turn.turned(image), request));
  auto picture = thumbnailAs(target, image, std::move(exif.thumbnail));
  if (!picture) picture = scaledTo(target, stream);
  if (!picture) return stream.error();
  convertToSrgb(stream.profile(), *picture);
  return turn.upright(*std::move(picture));
}

}  // namespace desktop::pictures
