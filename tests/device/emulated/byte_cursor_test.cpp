// SPDX-License-Identifier: MIT
#include "device/loading/byte_cursor.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace device::emulated {
namespace {

using loading::ByteCursor;

using Bytes = std::vector<std::uint8_t>;

TEST(ByteCursor, ReadsNumbersAndTextsInTheirOrder) {
  const Bytes bytes = {1, 2, 3, 4, 0, 0, 0, 'a', 'b', 0, 'c', 0, 'x', 'd'};
  ByteCursor cursor{io::ByteView(bytes)};
  EXPECT_EQ(cursor.u8(), 1);
  EXPECT_EQ(cursor.u16(), 0x0302);
  EXPECT_EQ(cursor.u32(), 4U);
  EXPECT_EQ(cursor.terminatedText(), "ab");
  EXPECT_EQ(cursor.paddedText(3), "c");
  EXPECT_FALSE(cursor.isAtEnd());
  EXPECT_EQ(cursor.u8(), 'd');
  EXPECT_TRUE(cursor.isAtEnd());
  EXPECT_FALSE(cursor.ranOut());
}

TEST(ByteCursor, ReadsNumbersOfSevenBitsAByte) {
  constexpr auto all = std::numeric_limits<std::uint64_t>::max();
  constexpr auto least = std::numeric_limits<std::int64_t>::min();
  const struct {
    Bytes bytes;
    std::uint64_t asUnsigned;
    std::int64_t asSigned;
  } cases[] = {
      {{0x00}, 0, 0},
      {{0x3F}, 63, 63},
      {{0x40}, 64, -64},
      {{0x7F}, 127, -1},
      {{0x80, 0x01}, 128, 128},
      {{0xE5, 0x8E, 0x26}, 624485, 624485},
      {{0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x01}, all, -1},
      {{0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x80, 0x7F}, 1ULL << 63, least},
  };
  for (const auto& [bytes, asUnsigned, asSigned] : cases) {
    ByteCursor first{io::ByteView(bytes)};
    EXPECT_EQ(first.unsignedLeb(), asUnsigned) << asUnsigned;
    EXPECT_TRUE(first.isAtEnd() && !first.ranOut()) << asUnsigned;
    ByteCursor second{io::ByteView(bytes)};
    EXPECT_EQ(second.signedLeb(), asSigned) << asSigned;
  }
}

TEST(ByteCursor, RemembersWhatTheBytesDidNotHave) {
  const Bytes endless(11, 0x80);
  const Bytes open = {0x80};
  const Bytes text = {'a', 'b'};
  const struct {
    const Bytes& bytes;
    void (*read)(ByteCursor& cursor);
  } cases[] = {
      {open, [](ByteCursor& cursor) { EXPECT_EQ(cursor.u16(), 0); }},
      {open, [](ByteCursor& cursor) { EXPECT_EQ(cursor.u64(), 0U); }},
      {open, [](ByteCursor& cursor) { cursor.unsignedLeb(); }},
      {endless, [](ByteCursor& cursor) { EXPECT_EQ(cursor.unsignedLeb(), 0U); }},
      {endless, [](ByteCursor& cursor) { EXPECT_EQ(cursor.signedLeb(), 0); }},
      {text, [](ByteCursor& cursor) { EXPECT_EQ(cursor.terminatedText(), ""); }},
      {text, [](ByteCursor& cursor) { EXPECT_EQ(cursor.paddedText(3), ""); }},
      {text, [](ByteCursor& cursor) { cursor.skip(~std::uint64_t{0}); }},
  };
  for (const auto& [bytes, read] : cases) {
    ByteCursor cursor{io::ByteView(bytes)};
    read(cursor);
    EXPECT_TRUE(cursor.ranOut());
    EXPECT_TRUE(cursor.isAtEnd());
    EXPECT_EQ(cursor.u8(), 0);
  }
}

}  // namespace
}  // namespace device::emulated
