// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/raw_decoder.h"

#include <algorithm>
#include <vector>

#include "desktop/pictures/decoders/jpeg_decoder.h"
#include "desktop/pictures/decoders/jpeg_stream.h"
#include "desktop/pictures/decoders/qt_decoder.h"
#include "desktop/pictures/pixels/orientation.h"
#include "media/image/ifd/tiff_ifd.h"
#include "media/image/raw/raf_container.h"
#include "media/movie/boxes/range_source.h"

namespace desktop::pictures {

namespace {

using media::image::Ifd;
using media::image::TiffStructure;

// Tags: TIFF 6.0, TIFF/EP.
constexpr std::uint16_t orientationTag = 0x0112;
constexpr std::uint16_t stripOffsets = 0x0111;
constexpr std::uint16_t stripByteCounts = 0x0117;
constexpr std::uint16_t subIfds = 0x014A;
constexpr std::uint16_t jpegOffset = 0x0201;
constexpr std::uint16_t jpegLength = 0x0202;
constexpr std::uint16_t innerJpegOfRw2 = 0x002E;

struct Preview {
  io::ByteRange range;  // of a JPEG file inside the file
  PixelSize size;
};

std::vector<std::uint64_t> numbersOf(TiffStructure& structure, const Ifd& ifd, std::uint16_t tag) {
  const media::image::IfdEntry* entry = ifd.find(tag);
  const auto field = entry ? structure.field(*entry) : std::nullopt;
  std::vector<std::uint64_t> numbers;
  for (std::size_t index = 0; field && index < field->count; ++index) {
    const std::int64_t number = field->integer(index).value_or(0);
    numbers.push_back(number > 0 ? static_cast<std::uint64_t>(number) : 0);
  }
  return numbers;
}

// Takes a run of the file where it is a JPEG that libjpeg knows; sensor data may be JPEG of a kind
// that it does not.
void takePreview(io::ByteSource& file, std::uint64_t offset, std::uint64_t length,
                 std::vector<Preview>& previews) {
  if (offset > file.size() || length > file.size() - offset) return;
  const io::ByteRange range{offset, offset + length};
  media::movie::RangeSource source(file, range);
  JpegStream stream(source);
  if (stream.readHeader()) previews.push_back({range, stream.size()});
}

void takePreviews(io::ByteSource& file, TiffStructure& structure, const Ifd& ifd,
                  std::vector<Preview>& previews) {
  constexpr std::pair<std::uint16_t, std::uint16_t> runs[] = {{jpegOffset, jpegLength},
                                                              {stripOffsets, stripByteCounts}};
  for (const auto& [offsetTag, lengthTag] : runs) {
    const auto offsets = numbersOf(structure, ifd, offsetTag);
    const auto lengths = numbersOf(structure, ifd, lengthTag);
    if (offsets.size() == 1 && lengths.size() == 1)
      takePreview(file, offsets[0], lengths[0], previews);
  }
  const media::image::IfdEntry* inner = ifd.find(innerJpegOfRw2);
  if (inner != nullptr) takePreview(file, inner->offset, inner->count, previews);
}

// Those of the first IFD and of the ones below it.
std::vector<Preview> previewsOf(io::ByteSource& file, TiffStructure& structure, const Ifd& first) {
  std::vector<Preview> previews;
  takePreviews(file, structure, first, previews);
  for (const std::uint64_t offset : numbersOf(structure, first, subIfds)) {
    const auto ifd = structure.readIfd(offset);
    if (ifd) takePreviews(file, structure, *ifd, previews);
  }
  std::ranges::sort(previews, {}, [](const Preview& preview) { return preview.size.width; });
  return previews;
}

}  // namespace

model::Result<Picture> decodeRaw(io::ByteSource& source, const Request& request) {
  io::SourceReader reader(source);
  auto structure = TiffStructure::open(reader);
  const auto first = structure ? structure->readIfd(structure->firstIfd()) : std::nullopt;
  if (!first) return model::Error{"truncated TIFF"};
  const std::vector<Preview> previews = previewsOf(source, *structure, *first);
  if (previews.empty()) return decodeWithQt("tiff", source, request);
  const auto numbers = numbersOf(*structure, *first, orientationTag);
  const Orientation orientation(numbers.empty() ? 1 : static_cast<std::int64_t>(numbers[0]));
  const PixelSize largest = previews.back().size;
  const PixelSize target = orientation.turned(targetSize(orientation.turned(largest), request));
  const auto best = std::ranges::find_if(previews, [&](const Preview& preview) {
    return covers(preview.size, target) && hasSameAspect(preview.size, largest);
  });
  media::movie::RangeSource jpeg(source, best->range);
  return decodeJpeg(jpeg, request, orientation);
}

model::Result<Picture> decodeRaf(io::ByteSource& source, const Request& request) {
  io::SourceReader reader(source);
  const io::ByteRange range = media::image::innerJpegOfRaf(reader);
  if (range.begin > range.end || range.end > source.size()) return model::Error{"truncated RAF"};
  media::movie::RangeSource jpeg(source, range);
  return decodeJpeg(jpeg, request);
}

}  // namespace desktop::pictures
