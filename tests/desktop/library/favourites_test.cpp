// SPDX-License-Identifier: MIT
#include "desktop/library/favourites.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/temporary_folder.h"

namespace desktop::library {
namespace {

class FavouritesTest : public testing::Test {
 protected:
  support::TemporaryFolder folder;
  std::string file = folder.file("data/favourites");
};

TEST_F(FavouritesTest, AreKeptFromRunToRun) {
  EXPECT_FALSE(Favourites(file).contains("A"));
  EXPECT_TRUE(Favourites(file).set("A", true));
  EXPECT_TRUE(Favourites(file).set("B", true));
  EXPECT_TRUE(Favourites(file).contains("A"));
  EXPECT_TRUE(Favourites(file).set("A", false));
  EXPECT_FALSE(Favourites(file).contains("A"));
  EXPECT_TRUE(Favourites(file).contains("B"));
}

TEST_F(FavouritesTest, KeepWhatAnotherProcessWrote) {
  Favourites mine(file);
  Favourites another(file);
  EXPECT_TRUE(another.set("theirs", true));
  EXPECT_TRUE(mine.set("mine", true));
  EXPECT_TRUE(Favourites(file).contains("theirs"));
  EXPECT_TRUE(Favourites(file).contains("mine"));
}

TEST_F(FavouritesTest, TellWhyTheyCannotBeKept) {
  folder.write("data", "a file where the folder should be");
  Favourites favourites(file);
  const auto result = favourites.set("A", true);
  ASSERT_FALSE(result);
  EXPECT_EQ(result.error().reason, "Not a directory");
  EXPECT_FALSE(favourites.contains("A"));
}

}  // namespace
}  // namespace desktop::library
