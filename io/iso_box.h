// SPDX-License-Identifier: MIT
//
// Boxes of ISO base media files (HEIF, MOV, MP4): a bounded walk over the children of a range.
// ISO/IEC 14496-12, 4.2.
#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "io/source_reader.h"
#include "model/media_asset.h"

namespace io {

// A run of bytes of the source: [begin, end).
struct ByteRange {
  std::uint64_t begin = 0;
  std::uint64_t end = 0;
  std::uint64_t size() const { return end - begin; }
};

// One box.
struct IsoBox {
  model::FourCharCode type = 0;
  std::uint64_t offset = 0;             // of its header, in the source
  ByteRange payload;                    // behind the header (and the user type), in the source
  bool isCut = false;                   // claims more bytes than its parent has; payload is cut
  std::array<std::uint8_t, 16> uuid{};  // the user type of a "uuid" box

  // box.is("ftyp")
  bool is(const char (&text)[5]) const { return type == model::fourCharCode(text); }
};

// Walks the boxes that lie one after the other in a range, which may be a whole file.
//
//   IsoBoxWalk walk(reader, box.payload);
//   while (const auto child = walk.next()) use(*child);
//
// It reads headers only. Size 0 reaches to the end of the range, size 1 has a 64-bit size. The walk
// ends at the end of the range, at a box smaller than its own header, where bytes cannot be read,
// and after largestCount boxes. Nothing recurses: how deep boxes nest is up to the caller.
class IsoBoxWalk {
 public:
  static constexpr int largestCount = 16384;

  // Boxes that lie side by side without much between them are best read ahead; the top level of a
  // file, with its coded samples, is not. REQUIRES: the reader outlives the walk.
  IsoBoxWalk(SourceReader& reader, ByteRange range,
             SourceReader::ReadAhead ahead = SourceReader::ReadAhead::window);

  // The next box, or none at the end.
  std::optional<IsoBox> next();

 private:
  SourceReader& _reader;
  ByteRange _rest;
  SourceReader::ReadAhead _ahead;
  int _count = 0;
};

// The first child of that type in the range, if any.
std::optional<IsoBox> findBox(SourceReader& reader, ByteRange range, model::FourCharCode type,
                              SourceReader::ReadAhead ahead = SourceReader::ReadAhead::window);

// The payload behind the version and flags of a full box; empty where it is too short for them.
ByteRange fullBoxBody(const IsoBox& box);

// The payload of a box; none where it is longer than `longest` bytes, cut, or unreadable. Borrowed
// from the reader: valid until its next read.
std::optional<ByteView> boxBytes(SourceReader& reader, const IsoBox& box, std::uint64_t longest);

}  // namespace io
