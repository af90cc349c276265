// SPDX-License-Identifier: MIT
#include "media/image/jpeg/jpeg_segments.h"

#include <algorithm>

#include "media/image/blocks/limits.h"

namespace media::image {

namespace {

constexpr std::uint8_t startOfScan = 0xDA;
constexpr std::uint8_t endOfImage = 0xD9;

// Markers that stand alone: TEM, RST0 to RST7, SOI.
bool hasNoPayload(std::uint8_t marker) {
  return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

// How many bytes are looked through for the next marker at a time.
constexpr std::uint64_t stride = 64;

}  // namespace

std::optional<JpegSegment> JpegSegmentWalk::ends(End end) {
  _end = end;
  return std::nullopt;
}

// The next byte behind 0xFF that is neither fill (0xFF) nor stuffing (0).
std::optional<std::uint8_t> JpegSegmentWalk::nextMarker() {
  const std::uint64_t last = std::min(_jpegEnd, _offset + limits.jpegStrayBytes);
  while (_offset + 1 < last) {
    const io::ByteView bytes = _file.upTo(_offset, stride, io::SourceReader::ReadAhead::none);
    if (bytes.size() < 2) return std::nullopt;
    for (std::size_t index = 0; index + 1 < bytes.size(); ++index) {
      const std::uint8_t code = bytes.bytes()[index + 1];
      if (bytes.bytes()[index] != 0xFF || code == 0xFF || code == 0) continue;
      _offset += index + 2;
      return code;
    }
    _offset += bytes.size() - 1;
  }
  return std::nullopt;
}

std::optional<JpegSegment> JpegSegmentWalk::next() {
  for (; _count < limits.jpegSegments; ++_count) {
    const auto marker = nextMarker();
    if (!marker) return ends(_offset + 1 < _jpegEnd ? End::damaged : End::truncated);
    if (*marker == startOfScan) return ends(End::scan);
    if (*marker == endOfImage) return ends(End::endOfImage);
    if (hasNoPayload(*marker)) continue;
    const auto bytes = _offset + 2 <= _jpegEnd
                           ? _file.view(_offset, 2, io::SourceReader::ReadAhead::none)
                           : std::nullopt;
    if (!bytes) return ends(End::truncated);
    const std::uint64_t length = bytes->u16(0, io::ByteOrder::big).value_or(0);
    if (length < 2) continue;  // no segment has such a length: look for the next marker
    JpegSegment segment{*marker, {_offset + 2, _offset + length}};
    segment.isCut = segment.payload.end > _jpegEnd;
    segment.payload.end = std::min(segment.payload.end, _jpegEnd);
    _offset = segment.payload.end;
    ++_count;
    return segment;
  }
  return ends(End::damaged);
}

}  // namespace media::image
