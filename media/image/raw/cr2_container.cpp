// SPDX-License-Identifier: MIT
//
// The first IFD describes a JPEG preview, in some cameras a small one; the picture's size is that
// of the Exif IFD. The sensor's data are a lossless JPEG to which an IFD leads that the header
// names; its frame header says how deep the samples are.
#include "media/image/raw/cr2_container.h"

#include <algorithm>

#include "media/image/blocks/density.h"
#include "media/image/jpeg/jpeg_container.h"
#include "media/image/jpeg/jpeg_segments.h"
#include "media/image/raw/raw_facts.h"
#include "media/image/tiff/tiff_sections.h"

namespace media::image {

namespace {

constexpr std::uint64_t markPlace = 8;
constexpr std::uint64_t sensorIfdPlace = 12;
constexpr std::uint16_t stripOffset = 0x0111;

std::int64_t depthOfJpeg(io::SourceReader& file, std::uint64_t offset) {
  if (!isJpegFile(file.upTo(offset, 3))) return 0;
  JpegSegmentWalk walk(file, {offset, file.size()});
  while (const auto segment = walk.next()) {
    if (isFrameHeader(segment->marker))
      return file.upTo(segment->payload.begin, 1).u8(0).value_or(0);
  }
  return 0;
}

std::int64_t depthOfCr2(io::SourceReader& file, TiffStructure& structure) {
  const auto place = file.upTo(sensorIfdPlace, 4).u32(0, structure.order());
  const auto ifd = place ? structure.readIfd(*place) : std::nullopt;
  const auto offset = ifd ? integerOf(structure, *ifd, stripOffset) : std::nullopt;
  return offset ? depthOfJpeg(file, static_cast<std::uint64_t>(*offset)) : 0;
}

}  // namespace

bool isCr2File(io::ByteView head) {
  return head.from(markPlace).startsWith("CR\2") && TiffStructure::open(head).has_value();
}

std::optional<model::Error> readCr2File(io::SourceReader& file, model::Dictionary& properties) {
  auto structure = TiffStructure::open(file);
  const auto first = structure ? readTiffSections(*structure, properties) : std::nullopt;
  if (!first) return model::Error{"truncated CR2"};
  const PixelSize size = larger(storedSize(*structure, *first), exifSize(properties));
  if (size.isEmpty()) return model::Error{"damaged CR2"};
  setRawPixels(size, depthOfCr2(file, *structure), properties);
  setDensityFromTiff(properties);
  return std::nullopt;
}

}  // namespace media::image
