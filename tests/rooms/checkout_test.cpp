// SPDX-License-Identifier: MIT
//
// The rules of rooms, kept by this checkout. Offences that are still to be mended stand in
// known_offences.txt; the list only shrinks.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

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
  std::ranges::sort(all);
  all.erase(std::unique(all.begin(), all.end()), all.end());
  return all;
}

Offences knownOffences() {
  Offences known = linesOf(support::contentsOf(KNOWN_OFFENCES));
  std::ranges::sort(known);
  return known;
}

std::string linesWithout(const Offences& all, const Offences& others) {
  Offences left;
  std::ranges::set_difference(all, others, std::back_inserter(left));
  std::string text;
  for (const std::string& line : left) text += line + "\n";
  return text;
}

TEST(Rooms, KeepTheRules) {
  const Offences offences = allOffences();
  const Offences known = knownOffences();
  const std::string fresh = linesWithout(offences, known);
  const std::string mended = linesWithout(known, offences);
  EXPECT_TRUE(fresh.empty()) << "These break a rule:\n" << fresh;
  EXPECT_TRUE(mended.empty()) << "These are mended and leave the list:\n" << mended;
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
