// SPDX-License-Identifier: MIT
#include "tests/rooms/source_tree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace rooms {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(SourceTree, LeavesOutWhatIsHiddenOrBuilt) {
  const support::TemporaryFolder folder;
  folder.write("room/a.h", "text");
  folder.write(".git/b.h", "");
  folder.write("build/debug/c.h", "");
  EXPECT_THAT(readSourceTree(folder.path()), ElementsAre(Pair("room/a.h", "text")));
}

TEST(SourceTree, SplitsPaths) {
  EXPECT_EQ(folderOf("a/b/c.h"), "a/b");
  EXPECT_EQ(folderOf("c.h"), "");
  EXPECT_EQ(nameOf("a/b/c.h"), "c.h");
  EXPECT_EQ(unitOf("a/b/c.h"), unitOf("a/b/c.cpp"));
  EXPECT_TRUE(liesIn("a/b/c.h", "a/b"));
  EXPECT_FALSE(liesIn("a/bc.h", "a/b"));
}

TEST(SourceTree, FindsIncludesInQuotes) {
  EXPECT_THAT(includesOf("#include <map>\n\n#include \"a/b.h\"\n// #include \"c.h\"\n"),
              ElementsAre("a/b.h"));
}

}  // namespace
}  // namespace rooms
