// SPDX-License-Identifier: MIT
#include "tests/rooms/room_rules.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace rooms {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(RoomRules, AreReadByTheirFirstWords) {
  const auto rooms = parseRooms(
      "room low low\n"
      "may-include\n"
      "folders\n"
      "files\n"
      "room high top/high\n"
      "may-include low top/types.h\n"
      "folders base more\n"
      "files a.cpp base/b.cpp\n");
  ASSERT_EQ(rooms.size(), 2u);
  EXPECT_EQ(rooms[0].name, "low");
  EXPECT_THAT(rooms[0].mayInclude, IsEmpty());
  EXPECT_THAT(rooms[0].order, IsEmpty());
  EXPECT_EQ(rooms[1].folder, "top/high");
  EXPECT_THAT(rooms[1].mayInclude, ElementsAre("low", "top/types.h"));
  EXPECT_THAT(rooms[1].order, ElementsAre("base", "more", "."));
  EXPECT_THAT(rooms[1].units, ElementsAre("top/high/a", "top/high/base/b"));
}

TEST(RoomRules, HoldForTheInnermostFolder) {
  const auto rooms = parseRooms("room outer a\nroom inner a/b\nroom other ab\n");
  EXPECT_EQ(roomOf(rooms, "a/x.h")->name, "outer");
  EXPECT_EQ(roomOf(rooms, "a/b/c/x.h")->name, "inner");
  EXPECT_EQ(roomOf(rooms, "ab/x.h")->name, "other");
  EXPECT_EQ(roomOf(rooms, "x.h"), nullptr);
}

TEST(RoomRules, OfTwoLibrariesInAFolderHoldForTheirOwnFiles) {
  const auto rooms = parseRooms("room plain a\nfiles one.cpp\nroom hooks a\nfiles two.cpp\n");
  EXPECT_EQ(roomOf(rooms, "a/one.h")->name, "plain");
  EXPECT_EQ(roomOf(rooms, "a/two.h")->name, "hooks");
  EXPECT_EQ(roomOf(rooms, "a/three.h")->name, "plain");
}

}  // namespace
}  // namespace rooms
