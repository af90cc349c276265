// SPDX-License-Identifier: MIT
#include "media/image/blocks/spliced_ranges.h"

#include <gtest/gtest.h>

#include "media/image/blocks/limits.h"
#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

// "abc", "DE" and "fghi" out of a file.
struct Pieces {
  Pieces() : source(bytesOf("..abc...DE.fghi.")), file(source) {
    ranges.append({2, 5});
    ranges.append({8, 10});
    ranges.append({11, 15});
  }

  std::string text(std::uint64_t offset, std::uint64_t length) {
    const auto bytes = ranges.view(file, offset, length);
    return bytes ? std::string(bytes->text()) : "none";
  }

  io::MemorySource source;
  io::SourceReader file;
  SplicedRanges ranges;
};

TEST(SplicedRanges, viewsMaySpanPieces) {
  Pieces pieces;
  const std::string whole = "abcDEfghi";
  EXPECT_EQ(pieces.ranges.size(), whole.size());
  for (std::size_t offset = 0; offset <= whole.size(); ++offset) {
    for (std::size_t length = 0; offset + length <= whole.size(); ++length) {
      EXPECT_EQ(pieces.text(offset, length), whole.substr(offset, length)) << offset << length;
    }
  }
  EXPECT_EQ(pieces.ranges.all(pieces.file)->text(), whole);
}

TEST(SplicedRanges, whatLiesOutsideIsNone) {
  Pieces pieces;
  EXPECT_EQ(pieces.text(0, 10), "none");
  EXPECT_EQ(pieces.text(10, 0), "none");
  EXPECT_EQ(pieces.text(9, 1), "none");
  EXPECT_EQ(pieces.text(~0ULL, 2), "none");
}

TEST(SplicedRanges, theFrontMayBeLeftOut) {
  Pieces pieces;
  const std::string whole = "abcDEfghi";
  for (std::size_t offset = 0; offset < 12; ++offset) {
    SplicedRanges rest = pieces.ranges.from(offset);
    EXPECT_EQ(rest.all(pieces.file)->text(), offset < whole.size() ? whole.substr(offset) : "");
  }
}

TEST(SplicedRanges, emptyAndReversedPiecesAreNone) {
  SplicedRanges ranges;
  ranges.append({5, 5});
  ranges.append({9, 3});
  EXPECT_TRUE(ranges.isEmpty());
}

TEST(SplicedRanges, piecesBehindTheFileAreNone) {
  Pieces pieces;
  pieces.ranges.append({15, 1000});
  EXPECT_EQ(pieces.text(0, 3), "abc");
  EXPECT_EQ(pieces.text(8, 5), "none");
}

TEST(SplicedRanges, allOfMoreThanTheLimitIsNone) {
  Pieces pieces;
  pieces.ranges.append({0, limits.embeddedBytes});
  EXPECT_FALSE(pieces.ranges.all(pieces.file));
}

}  // namespace
}  // namespace media::image
