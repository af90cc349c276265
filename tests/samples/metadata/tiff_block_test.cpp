// SPDX-License-Identifier: MIT
#include "samples/metadata/tiff_block.h"

#include <gtest/gtest.h>

namespace samples {
namespace {

TEST(TiffBlock, IsWrittenInEitherByteOrder) {
  Directory directory;
  directory.addShort(0x0112, {6});
  EXPECT_EQ(tiffBlock(ByteOrder::big, {directory}),
            (Bytes{'M', 'M', 0, 42, 0, 0, 0, 8, 0, 1, 1, 0x12, 0,
                   3,   0,   0, 0,  1, 0, 6, 0, 0, 0, 0, 0,    0}));
  EXPECT_EQ(tiffBlock(ByteOrder::little, {directory}),
            (Bytes{'I', 'I', 42, 0, 8, 0, 0, 0, 1, 0, 0x12, 1, 3,
                   0,   1,   0,  0, 0, 6, 0, 0, 0, 0, 0,    0, 0}));
}

TEST(TiffBlock, SortsTagsAndMovesLongValuesBehindTheTable) {
  Directory directory;
  directory.addRational(0x011A, {{72, 1}});
  directory.addText(0x010F, "Me");
  const Bytes block = tiffBlock(ByteOrder::big, {directory});
  EXPECT_EQ(Bytes(block.begin() + 10, block.begin() + 22),
            (Bytes{1, 0x0F, 0, 2, 0, 0, 0, 3, 'M', 'e', 0, 0}));
  EXPECT_EQ(Bytes(block.begin() + 22, block.begin() + 34),
            (Bytes{1, 0x1A, 0, 5, 0, 0, 0, 1, 0, 0, 0, 38}));
  EXPECT_EQ(Bytes(block.begin() + 38, block.begin() + 46), (Bytes{0, 0, 0, 72, 0, 0, 0, 1}));
}

TEST(TiffBlock, LinksDirectoriesAndAttachments) {
  Directory inner;
  inner.addShort(1, {9});
  Directory first;
  first.addDirectory(0x8769, inner);
  Directory second;
  second.addAttachment(0x0201, 0x0202, {0xFF, 0xD8, 0xFF});
  const Bytes block = tiffBlock(ByteOrder::big, {first, second});
  EXPECT_EQ(block[21], 26);  // the inner directory follows the table
  EXPECT_EQ(block[27], 1);
  EXPECT_EQ(block[25], 44);  // the second directory follows that
  EXPECT_EQ(block[44 + 13], 74);
  EXPECT_EQ(Bytes(block.begin() + 74, block.begin() + 77), (Bytes{0xFF, 0xD8, 0xFF}));
}

TEST(TiffBlock, ApproximatesNumbersByTheSimplestFraction) {
  struct {
    double value;
    std::int64_t numerator, denominator;
  } const cases[] = {{1.8, 9, 5},   {-0.5, -1, 2},   {0, 0, 1},
                     {4.25, 17, 4}, {1.0 / 3, 1, 3}, {2244, 2244, 1}};
  for (const auto& each : cases) {
    const Rational fraction = approximated(each.value);
    EXPECT_EQ(fraction.numerator, each.numerator) << each.value;
    EXPECT_EQ(fraction.denominator, each.denominator) << each.value;
  }
}

}  // namespace
}  // namespace samples
