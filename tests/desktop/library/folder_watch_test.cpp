// SPDX-License-Identifier: MIT
#include "desktop/library/folder_watch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/temporary_folder.h"

namespace desktop::library {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

class FolderWatchTest : public testing::Test {
 protected:
  std::string makeFolder(std::string_view name) const {
    fs::create_directory(_folder.file(name));
    return _folder.file(name);
  }

  support::TemporaryFolder _folder;
  FolderWatch _watch{100};
};

TEST_F(FolderWatchTest, tellsWhichFolderChanged) {
  const std::string a = makeFolder("a");
  const std::string b = makeFolder("b");
  ASSERT_EQ(_watch.add(a), WatchOutcome::watching);
  ASSERT_EQ(_watch.add(b), WatchOutcome::watching);
  EXPECT_THAT(_watch.takeChanged(), Optional(IsEmpty()));
  _folder.write("a/x", "x");
  EXPECT_THAT(_watch.takeChanged(), Optional(ElementsAre(a)));
  EXPECT_THAT(_watch.takeChanged(), Optional(IsEmpty()));
  fs::resize_file(_folder.file("a/x"), 0);
  fs::rename(_folder.file("a/x"), _folder.file("b/x"));
  EXPECT_THAT(_watch.takeChanged(), Optional(ElementsAre(a, b)));
  fs::remove(_folder.file("b/x"));
  EXPECT_THAT(_watch.takeChanged(), Optional(ElementsAre(b)));
}

TEST_F(FolderWatchTest, aRemovedFolderIsToldNoMore) {
  const std::string a = makeFolder("a");
  ASSERT_EQ(_watch.add(a), WatchOutcome::watching);
  _watch.remove(a);
  _folder.write("a/x", "x");
  EXPECT_THAT(_watch.takeChanged(), Optional(IsEmpty()));
}

TEST_F(FolderWatchTest, aFolderMadeAnewIsWatchedWhenItIsAddedAgain) {
  const std::string a = makeFolder("a");
  ASSERT_EQ(_watch.add(a), WatchOutcome::watching);
  fs::remove(a);
  makeFolder("a");
  EXPECT_THAT(_watch.takeChanged(), Optional(ElementsAre(a)));
  ASSERT_EQ(_watch.add(a), WatchOutcome::watching);
  ASSERT_EQ(_watch.add(a), WatchOutcome::watching);
  _folder.write("a/x", "x");
  EXPECT_THAT(_watch.takeChanged(), Optional(ElementsAre(a)));
}

TEST_F(FolderWatchTest, aMovedFolderIsToldByItsNewPath) {
  const std::string a = makeFolder("a");
  ASSERT_EQ(_watch.add(a), WatchOutcome::watching);
  const std::string b = _folder.file("b");
  fs::rename(a, b);
  ASSERT_EQ(_watch.add(b), WatchOutcome::watching);
  _watch.remove(a);
  _watch.takeChanged();
  _folder.write("b/x", "x");
  EXPECT_THAT(_watch.takeChanged(), Optional(ElementsAre(b)));
}

TEST_F(FolderWatchTest, saysWhatItCannotWatch) {
  FolderWatch small(1);
  EXPECT_EQ(small.add(makeFolder("a")), WatchOutcome::watching);
  EXPECT_EQ(small.add(makeFolder("b")), WatchOutcome::outOfWatches);
  EXPECT_EQ(small.add(_folder.file("a")), WatchOutcome::watching);
  EXPECT_EQ(_watch.add(_folder.file("none")), WatchOutcome::unreachable);
  EXPECT_EQ(_watch.add(_folder.write("file", "x")), WatchOutcome::unreachable);
}

}  // namespace
}  // namespace desktop::library
