// SPDX-License-Identifier: MIT
//
// What the readers of one movie share: its bytes, and how much of them may still be walked.
#pragma once

#include <algorithm>

#include "io/iso_box.h"
#include "io/source_reader.h"
#include "media/movie/boxes/limits.h"

namespace media::movie {

// How much the readers may still take out of a movie's header, or out of its fragments.
struct Budget {
  int boxes = limits.boxes;
  std::uint64_t descriptionBytes = limits.descriptionBytes;
  std::uint64_t tableBytes = limits.tableBytes;
  std::uint64_t metadataBytes = limits.metadataBytes;
};

// A part of a movie ("moov" or one "moof") that is being walked. Both are borrowed.
struct MovieWalk {
  io::SourceReader& reader;
  Budget& budget;

  io::ByteRange all() const { return {0, reader.size()}; }
};

// The first bytes of a box's payload, at most `length`. Borrowed: valid until the next read.
inline io::ByteView headOfBox(MovieWalk& walk, const io::IsoBox& box, std::uint64_t length) {
  return walk.reader.upTo(box.payload.begin, std::min(box.payload.size(), length));
}

// Calls visit(box) for every child in the range, until there are no more or the budget is used up.
template <typename Visit>
void forEachBox(MovieWalk& walk, io::ByteRange range, Visit visit) {
  io::IsoBoxWalk boxes(walk.reader, range);
  while (walk.budget.boxes > 0) {
    --walk.budget.boxes;
    const auto box = boxes.next();
    if (!box) return;
    visit(*box);
  }
}

// Calls visit(entry) with each of up to `count` entries of `entrySize` bytes in the range, through
// windows. An entry is valid during its call only. Whether all of them were there to be visited.
template <typename Visit>
bool forEachEntry(MovieWalk& walk, io::ByteRange range, std::uint64_t entrySize,
                  std::uint64_t count, Visit visit) {
  constexpr std::uint64_t windowSize = 64 << 10;  // bytes
  std::uint64_t left = std::min(count, range.size() / entrySize);
  const bool isWhole = left == count;
  while (left > 0) {
    const std::uint64_t entries = std::min(left, windowSize / entrySize);
    const std::uint64_t length = entries * entrySize;
    const auto window = walk.reader.view(range.begin, length);
    if (!window || walk.budget.tableBytes < length) return false;
    for (std::uint64_t offset = 0; offset < length; offset += entrySize)
      visit(*window->sub(offset, entrySize));
    walk.budget.tableBytes -= length;
    range.begin += length;
    left -= entries;
  }
  return isWhole;
}

}  // namespace media::movie
