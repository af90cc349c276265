// SPDX-License-Identifier: MIT
#include "desktop/library/library_item.h"

#include <gtest/gtest.h>

#include <set>

namespace desktop::library {
namespace {

TEST(LibraryItemTest, aPathHasANameForGood) {
  EXPECT_EQ(itemUuid("/home/me/a.jpg"), itemUuid(std::string("/home/me/") + "a.jpg"));
  // Written down so that a later version keeps it.
  EXPECT_EQ(itemUuid("/var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG"),
            "72E12DFB-517C-8755-AB0B-28160F028CEC");
}

TEST(LibraryItemTest, namesOfPathsLookLikeUuidsAndDiffer) {
  std::set<std::string> seen;
  for (int number = 0; number < 10'000; ++number) {
    const std::string uuid = itemUuid("/p/" + std::to_string(number) + ".jpg");
    ASSERT_EQ(uuid.size(), 36U);
    EXPECT_EQ(uuid[8], '-');
    EXPECT_EQ(uuid[13], '-');
    EXPECT_EQ(uuid[14], '8');
    EXPECT_EQ(uuid[18], '-');
    EXPECT_NE(std::string_view("89AB").find(uuid[19]), std::string_view::npos) << uuid;
    EXPECT_EQ(uuid[23], '-');
    EXPECT_TRUE(seen.insert(uuid).second) << number;
  }
}

TEST(LibraryItemTest, tellsItsNameAndFolder) {
  const LibraryItem item{.path = "/p/q/\xFF.jpg"};
  EXPECT_EQ(item.name(), "\xFF.jpg");
  EXPECT_EQ(item.shownName(), "\uFFFD.jpg");
  EXPECT_EQ(item.folder(), "/p/q");
  const LibraryItem atTop{.path = "/a.jpg"};
  EXPECT_EQ(atTop.folder(), "/");
}

TEST(LibraryItemTest, olderComesFirstThenThePathDecides) {
  const auto item = [](const char* path, double date) {
    return std::make_shared<const LibraryItem>(
        LibraryItem{.path = path, .modificationDate = {date}});
  };
  EXPECT_TRUE(comesBefore(item("/b", 1), item("/a", 2)));
  EXPECT_FALSE(comesBefore(item("/a", 2), item("/b", 1)));
  EXPECT_TRUE(comesBefore(item("/a", 1), item("/b", 1)));
  EXPECT_FALSE(comesBefore(item("/a", 1), item("/a", 1)));
}

}  // namespace
}  // namespace desktop::library
