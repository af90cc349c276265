// SPDX-License-Identifier: MIT
#include "device/emulated/dwarf_frames.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "device/loading/byte_cursor.h"

namespace device::emulated {
namespace {

using loading::ByteCursor;

using testing::ElementsAre;
using testing::ElementsAreArray;

constexpr std::uint64_t imageAddress = 0x10'0000;
constexpr std::uint64_t personality = 0x7777;

// An entry as it lies between its length and the next one.
std::vector<std::vector<std::uint8_t>> entriesOf(const std::vector<std::uint8_t>& frames) {
  std::vector<std::vector<std::uint8_t>> entries;
  ByteCursor cursor{io::ByteView(frames)};
  while (const std::uint32_t length = cursor.u32()) {
    std::vector<std::uint8_t> entry;
    while (entry.size() < length && !cursor.ranOut()) entry.push_back(cursor.u8());
    entries.push_back(entry);
  }
  EXPECT_TRUE(cursor.isAtEnd());
  EXPECT_FALSE(cursor.ranOut());
  return entries;
}

std::vector<std::vector<std::uint8_t>> entriesOf(const CompactUnwind& unwind) {
  const std::vector<std::uint64_t> personalities(unwind.personalities.size(), personality);
  const auto frames = dwarfFrames(unwind, imageAddress, personalities);
  return frames ? entriesOf(*frames) : std::vector<std::vector<std::uint8_t>>();
}

std::string refusal(const CompactUnwind& unwind) {
  const auto frames = dwarfFrames(unwind, imageAddress, {});
  return frames ? "" : frames.error().reason;
}

TEST(DwarfFrames, BeginWithWhatIsAlikeInAll) {
  const auto entries = entriesOf(CompactUnwind{.personalities = {1}, .functions = {}});
  ASSERT_EQ(entries.size(), 2U);
  EXPECT_THAT(entries[0], ElementsAre(0, 0, 0, 0, 1, 'z', 'R', 0, 1, 0x78, 30, 1, 0,  //
                                      0x0C, 31, 0, 0, 0, 0, 0));
  EXPECT_THAT(entries[1], ElementsAre(0, 0, 0, 0, 1, 'z', 'P', 'L', 'R', 0, 1, 0x78, 30, 11,  //
                                      0, 0x77, 0x77, 0, 0, 0, 0, 0, 0, 0, 0,                  //
                                      0x0C, 31, 0));
}

TEST(DwarfFrames, SayWhereAFunctionsRegistersAre) {
  const auto entries =
      entriesOf(CompactUnwind{.personalities = {}, .functions = {{0x40, 0x60, 0x0400'0103, 0}}});
  ASSERT_EQ(entries.size(), 2U);
  const std::vector<std::uint8_t> expected = {
      28,   0,  0,    0,                       // back to the common entry
      0x40, 0,  0x10, 0,    0,    0, 0,    0,  // where it begins
      0x20, 0,  0,    0,    0,    0, 0,    0,  // how long it is
      0,                                       // no further data
      0x0C, 29, 16,                            // the caller's frame: x29 + 16
      0x9E, 1,  0x9D, 2,                       // x30 and x29 below it
      0x93, 3,  0x94, 4,    0x95, 5, 0x96, 6,  // x19 to x22
      0x05, 72, 7,    0x05, 73,   8,           // d8 and d9
  };
  ASSERT_GE(entries[1].size(), expected.size());
  EXPECT_THAT(
      std::vector(entries[1].begin(), entries[1].begin() + static_cast<long>(expected.size())),
      ElementsAreArray(expected));
  EXPECT_EQ((entries[1].size() + 4) % 8, 0U);
}

TEST(DwarfFrames, NameTheHandlersOfAFunctionThatHasThem) {
  const auto entries = entriesOf(
      CompactUnwind{.personalities = {1},
                    .functions = {{0x40, 0x60, 0x5400'0000, 0x500}, {0x60, 0x80, 0x1400'0000, 0}}});
  ASSERT_EQ(entries.size(), 4U);
  EXPECT_THAT(std::vector(entries[2].begin() + 20, entries[2].begin() + 29),
              ElementsAre(8, 0x00, 0x05, 0x10, 0, 0, 0, 0, 0));
  EXPECT_THAT(std::vector(entries[3].begin() + 20, entries[3].begin() + 29),
              ElementsAre(8, 0, 0, 0, 0, 0, 0, 0, 0));
}

TEST(DwarfFrames, LeaveOutWhatCallsNothing) {
  EXPECT_EQ(
      entriesOf(CompactUnwind{.personalities = {},
                              .functions = {{0x40, 0x60, 0x0200'1000, 0}, {0x60, 0x70, 0, 0}}})
          .size(),
      1U);
}

TEST(DwarfFrames, WhatIsNotDescribedHereIsRefused) {
  EXPECT_EQ(refusal({.personalities = {}, .functions = {{0, 1, 0x0300'0000, 0}}}),
            "a function's frame is described elsewhere");
  EXPECT_EQ(refusal({.personalities = {}, .functions = {{0, 1, 0x1400'0000, 0}}}),
            "a function names no personality");
}

}  // namespace
}  // namespace device::emulated
