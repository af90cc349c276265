// SPDX-License-Identifier: MIT
//
// The rules of rooms, kept by this checkout.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/rooms/room_checks.h"
#include "tests/support/temporary_folder.h"

namespace rooms {
namespace {

Offences allOffences() {
  const SourceTree tree = readSourceTree(SOURCE_FOLDER);
  Offences all;
  for (const Offences& offences :
       {forbiddenIncludes(tree, parseRooms(support::contentsOf(ROOM_RULES))), circlesOfFiles(tree),
        namesOfProduct(tree, PRODUCT_NAME), filesWithoutWords(tree), fullFolders(tree),
        longSourcesWithoutWords(tree)})
    all.insert(all.end(), offences.begin(), offences.end());
  return all;
}

TEST(Rooms, KeepTheRules) {
  std::string text;
  for (const std::string& offence : allOffences()) text += offence + "\n";
  EXPECT_EQ(text, "");
}

TEST(Rooms, AreReadFromTheBuildAndTheCheckout) {
  const std::vector<Room> rooms = parseRooms(support::contentsOf(ROOM_RULES));
  const SourceTree tree = readSourceTree(SOURCE_FOLDER);
  EXPECT_TRUE(tree.contains("tests/rooms/checkout_test.cpp"));
  const Room* room = roomOf(rooms, "desktop/uikit/views/ui_view.h");
  ASSERT_NE(room, nullptr);
  EXPECT_EQ(room->name, "desktop_uikit");
  EXPECT_THAT(room->mayInclude, testing::Contains("bridge"));
}

}  // namespace
}  // namespace rooms
