// SPDX-License-Identifier: MIT
#include "io/byte_view.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>

namespace io {
namespace {

constexpr std::array<std::uint8_t, 9> bytes = {0x01, 0x82, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08, 'x'};
constexpr std::uint64_t farAway = std::numeric_limits<std::uint64_t>::max();

TEST(ByteView, ReadsIntegersOfBothByteOrders) {
  const ByteView view(bytes);
  EXPECT_EQ(view.u8(1), 0x82);
  EXPECT_EQ(view.u16(0, ByteOrder::big), 0x0182);
  EXPECT_EQ(view.u16(0, ByteOrder::little), 0x8201);
  EXPECT_EQ(view.u32(0, ByteOrder::big), 0x01820304U);
  EXPECT_EQ(view.u32(0, ByteOrder::little), 0x04038201U);
  EXPECT_EQ(view.u64(0, ByteOrder::big), 0x0182030405060708U);
  EXPECT_EQ(view.u64(0, ByteOrder::little), 0x0807060504038201U);
  EXPECT_EQ(view.u16(7, ByteOrder::big), 0x0878);
}

TEST(ByteView, HasNoIntegersBehindItsEnd) {
  const ByteView view(bytes);
  EXPECT_TRUE(view.u8(8));
  EXPECT_TRUE(view.u64(1, ByteOrder::big));
  EXPECT_FALSE(view.u8(9));
  EXPECT_FALSE(view.u16(8, ByteOrder::big));
  EXPECT_FALSE(view.u32(6, ByteOrder::big));
  EXPECT_FALSE(view.u64(2, ByteOrder::little));
  for (const std::uint64_t offset : {farAway, farAway - 1, farAway - 7, std::uint64_t{1} << 63}) {
    EXPECT_FALSE(view.u8(offset)) << offset;
    EXPECT_FALSE(view.u16(offset, ByteOrder::big)) << offset;
    EXPECT_FALSE(view.u64(offset, ByteOrder::big)) << offset;
  }
}

TEST(ByteView, ContainsOnlyWhatLiesInside) {
  const ByteView view(bytes);
  EXPECT_TRUE(view.contains(0, 9));
  EXPECT_TRUE(view.contains(9, 0));
  EXPECT_FALSE(view.contains(10, 0));
  EXPECT_FALSE(view.contains(0, 10));
  EXPECT_FALSE(view.contains(farAway, 2));
  EXPECT_FALSE(view.contains(2, farAway));
  EXPECT_FALSE(view.contains(farAway, farAway));
}

TEST(ByteView, GivesParts) {
  const ByteView view(bytes);
  EXPECT_EQ(view.sub(7, 2)->text(), "\x08x");
  EXPECT_TRUE(view.sub(9, 0)->isEmpty());
  EXPECT_FALSE(view.sub(8, 2));
  EXPECT_FALSE(view.sub(farAway, 1));
  EXPECT_EQ(view.from(8).text(), "x");
  EXPECT_EQ(view.from(0).size(), 9U);
  EXPECT_TRUE(view.from(9).isEmpty());
  EXPECT_TRUE(view.from(farAway).isEmpty());
}

TEST(ByteView, ReadsItsBytesAsText) {
  const ByteView view(bytes);
  EXPECT_TRUE(view.startsWith("\x01\x82"));
  EXPECT_FALSE(view.startsWith("x"));
  EXPECT_TRUE(view.startsWith(""));
  EXPECT_FALSE(view.sub(8, 1)->startsWith("xy"));
}

TEST(ByteView, IsEmptyByDefault) {
  const ByteView view;
  EXPECT_TRUE(view.isEmpty());
  EXPECT_EQ(view.size(), 0U);
  EXPECT_EQ(view.text(), "");
  EXPECT_FALSE(view.u8(0));
  EXPECT_TRUE(view.from(0).isEmpty());
}

}  // namespace
}  // namespace io
