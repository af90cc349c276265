// SPDX-License-Identifier: MIT
//
// The marker segments of a JPEG before its first scan. ITU-T T.81, B.1.1.
#pragma once

#include <cstdint>
#include <optional>

#include "io/iso_box.h"
#include "io/source_reader.h"

namespace media::image {

struct JpegSegment {
  std::uint8_t marker = 0;  // the byte behind 0xFF
  io::ByteRange payload;    // behind the length, in the file; cut where the JPEG ends
  bool isCut = false;
};

// Walks the segments in order. It jumps from header to header; stray bytes and fill bytes between
// segments are passed over.
class JpegSegmentWalk {
 public:
  // How a walk ended.
  enum class End { none, scan, endOfImage, truncated, damaged };

  // The segments of the JPEG in a range of the file. REQUIRES: the file outlives the walk; the
  // range lies in it and starts with the SOI marker.
  JpegSegmentWalk(io::SourceReader& file, io::ByteRange jpeg)
      : _file(file), _offset(jpeg.begin + 2), _jpegEnd(jpeg.end) {}

  // The next segment; none at the first scan, and at the end of the image or of what can be read.
  std::optional<JpegSegment> next();
  End end() const { return _end; }

 private:
  std::optional<std::uint8_t> nextMarker();
  std::optional<JpegSegment> ends(End end);

  io::SourceReader& _file;
  std::uint64_t _offset;
  std::uint64_t _jpegEnd;
  std::size_t _count = 0;
  End _end = End::none;
};

}  // namespace media::image
