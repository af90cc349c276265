// SPDX-License-Identifier: MIT
#include "desktop/library/folder_tree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "tests/support/library_folder.h"

namespace desktop::library {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

// Writes down all that it is told: "+a.jpg", "-a.jpg", "~a.jpg" for items, "open"/"close" for
// folders, "!path: reason" and "ok path" for problems, "shared" and "private".
class Recorder : public FolderObserver {
 public:
  explicit Recorder(std::string root) : _root(std::move(root)) {}

  std::vector<std::string> take() { return std::exchange(_events, {}); }
  int filesUntilStop = -1;  // unlimited

 private:
  std::string shortened(const std::string& path) const {
    return path == _root ? "." : path.substr(_root.size() + 1);
  }

  void itemChanged(const ItemPointer& before, const ItemPointer& after) override {
    if (before && after) {
      EXPECT_EQ(before->path, after->path);
    }
    const std::string mark = !before ? "+" : after ? "~" : "-";
    _events.push_back(mark + shortened((after ? after : before)->path));
  }
  void problemChanged(const std::string& path, const std::optional<std::string>& reason) override {
    _events.push_back(reason ? "!" + shortened(path) + ": " + *reason : "ok " + shortened(path));
  }
  void folderOpened(const std::string& path) override {
    _events.push_back("open " + shortened(path));
  }
  void folderClosed(const std::string& path) override {
    _events.push_back("close " + shortened(path));
  }
  void sharingChanged(const std::string& path, bool isShared) override {
    _events.push_back((isShared ? "shared " : "private ") + shortened(path));
  }
  bool isStopped() const override {
    return filesUntilStop >= 0 && static_cast<int>(_events.size()) >= filesUntilStop;
  }

  std::string _root;
  std::vector<std::string> _events;
};

class FolderTreeTest : public testing::Test {
 protected:
  std::vector<std::string> read(std::string_view folder) {
    _tree.read(folder.empty() ? _folder.path() : _folder.file(folder));
    return _recorder.take();
  }
  std::vector<std::string> readAll() {
    _tree.readAll();
    return _recorder.take();
  }

  LibraryFolder _folder;
  Recorder _recorder{_folder.path()};
  FolderTree _tree{_folder.path(), _recorder};
};

TEST_F(FolderTreeTest, findsPhotosInAllFolders) {
  _folder.photo("b.jpg");
  _folder.photo("a/deep/c.JPG");
  _folder.write("a/notes.txt", "not a photo");
  _folder.photo("nameless");
  _folder.photo(".hidden.jpg");
  _folder.photo(".hidden/d.jpg");
  EXPECT_THAT(readAll(), ElementsAre("open .", "+b.jpg", "+nameless", "open a", "open a/deep",
                                     "+a/deep/c.JPG"));
  EXPECT_THAT(readAll(), IsEmpty());
}

TEST_F(FolderTreeTest, tellsDifferencesOnly) {
  _folder.photo("a.jpg");
  _folder.photo("b.jpg");
  _folder.photo("c.jpg");
  readAll();
  fs::remove(_folder.file("a.jpg"));
  fs::resize_file(_folder.file("b.jpg"), 3);
  _folder.photo("d.jpg");
  EXPECT_THAT(read(""), ElementsAre("-a.jpg", "~b.jpg", "+d.jpg"));
  EXPECT_THAT(read(""), IsEmpty());
}

TEST_F(FolderTreeTest, aFileOfTheSameSizeAndDateButAnotherIsUpdated) {
  _folder.photo("a.jpg");
  readAll();
  _folder.photo("b.jpg");
  fs::rename(_folder.file("b.jpg"), _folder.file("a.jpg"));
  EXPECT_THAT(readAll(), ElementsAre("~a.jpg"));
}

TEST_F(FolderTreeTest, filesAndFoldersReplaceOneAnother) {
  _folder.photo("a.jpg");
  _folder.photo("b.jpg/c.jpg");
  readAll();
  fs::remove(_folder.file("a.jpg"));
  _folder.photo("a.jpg/d.jpg");
  fs::remove_all(_folder.file("b.jpg"));
  _folder.photo("b.jpg");
  EXPECT_THAT(read(""), UnorderedElementsAre("-a.jpg", "open a.jpg", "+a.jpg/d.jpg", "+b.jpg",
                                             "-b.jpg/c.jpg", "close b.jpg"));
}

TEST_F(FolderTreeTest, aFolderGoesWithAllThatIsInIt) {
  _folder.photo("a/b/c/d.jpg");
  _folder.photo("a/e.jpg");
  readAll();
  fs::remove_all(_folder.file("a"));
  EXPECT_THAT(read(""), UnorderedElementsAre("-a/e.jpg", "close a", "close a/b", "-a/b/c/d.jpg",
                                             "close a/b/c"));
  EXPECT_THAT(read("a"), IsEmpty());
}

TEST_F(FolderTreeTest, anotherFolderBehindANameIsReadAnew) {
  _folder.photo("a/b.jpg");
  _folder.photo("x/c.jpg");
  readAll();
  fs::rename(_folder.file("a"), _folder.file("z"));
  fs::rename(_folder.file("x"), _folder.file("a"));
  EXPECT_THAT(read(""), UnorderedElementsAre("-a/b.jpg", "close a", "-x/c.jpg", "close x", "open a",
                                             "+a/c.jpg", "open z", "+z/b.jpg"));
}

TEST_F(FolderTreeTest, linksInALoopEndNowhere) {
  _folder.photo("a/b.jpg");
  fs::create_directory_symlink("..", _folder.file("a/up"));
  fs::create_directory_symlink(_folder.path(), _folder.file("self"));
  fs::create_symlink("circle.jpg", _folder.file("circle.jpg"));
  fs::create_symlink("nothing.jpg", _folder.file("dangling.jpg"));
  fs::create_symlink("nothing.txt", _folder.file("dangling.txt"));
  EXPECT_THAT(readAll(),
              ElementsAre("open .", "!circle.jpg: Too many levels of symbolic links",
                          "!dangling.jpg: No such file or directory", "open a", "+a/b.jpg"));
}

TEST_F(FolderTreeTest, aLinkToAFileOfTheLibraryIsThatFile) {
  _folder.photo("a/b.jpg");
  _folder.photo(".store/c.jpg");
  const support::TemporaryFolder elsewhere;
  const std::string photo = elsewhere.write("d.jpg", std::string_view("x"));
  fs::create_symlink("a/b.jpg", _folder.file("b.jpg"));
  fs::create_symlink("../b.jpg", _folder.file("a/twice.jpg"));
  fs::create_symlink(".store/c.jpg", _folder.file("c.jpg"));
  fs::create_symlink(photo, _folder.file("d.jpg"));
  EXPECT_THAT(readAll(), ElementsAre("open .", "+c.jpg", "+d.jpg", "open a", "+a/b.jpg"));
  EXPECT_THAT(readAll(), IsEmpty());
  fs::remove(_folder.file("b.jpg"));
  fs::copy_file(photo, _folder.file("b.jpg"));
  EXPECT_THAT(readAll(), ElementsAre("+b.jpg"));
}

TEST_F(FolderTreeTest, whatIsNoFileIsAProblemIfItLooksLikeAPhoto) {
  ASSERT_EQ(::mkfifo(_folder.file("pipe.jpg").c_str(), 0600), 0);
  ASSERT_EQ(::mkfifo(_folder.file("pipe").c_str(), 0600), 0);
  EXPECT_THAT(readAll(), ElementsAre("open .", "!pipe.jpg: not a regular file"));
  EXPECT_THAT(readAll(), IsEmpty());
  fs::remove(_folder.file("pipe.jpg"));
  EXPECT_THAT(readAll(), ElementsAre("ok pipe.jpg"));
}

TEST_F(FolderTreeTest, anUnreadableFolderIsToldAndTriedAgain) {
  _folder.photo("a/b.jpg");
  fs::permissions(_folder.path(), fs::perms::all);
  fs::permissions(_folder.file("a"), fs::perms::none);
  {
    const StrangersRights rights;
    EXPECT_THAT(readAll(), ElementsAre("open .", "open a", "!a: Permission denied"));
  }
  fs::permissions(_folder.file("a"), fs::perms::all);
  EXPECT_THAT(read(""), ElementsAre("open a", "ok a", "+a/b.jpg"));
}

TEST_F(FolderTreeTest, theFolderItselfMayGoAndComeBack) {
  const std::string root = _folder.file("library");
  _folder.photo("library/a/b.jpg");
  _folder.photo("library/c.jpg");
  Recorder recorder(root);
  FolderTree tree(root, recorder);
  tree.readAll();
  recorder.take();
  fs::rename(root, _folder.file("elsewhere"));
  tree.readAll();
  EXPECT_THAT(recorder.take(),
              ElementsAre("!.: No such file or directory", "-c.jpg", "-a/b.jpg", "close a"));
  fs::rename(_folder.file("elsewhere"), root);
  tree.readAll();
  EXPECT_THAT(recorder.take(), ElementsAre("open .", "ok .", "+c.jpg", "open a", "+a/b.jpg"));
}

TEST_F(FolderTreeTest, sharingIsToldWhenItBeginsAndEnds) {
  _folder.write("a/.shared", "");
  EXPECT_THAT(readAll(), ElementsAre("open .", "open a", "shared a"));
  fs::remove(_folder.file("a/.shared"));
  EXPECT_THAT(read("a"), ElementsAre("private a"));
  _folder.write("a/.shared", "");
  EXPECT_THAT(read("a"), ElementsAre("shared a"));
  fs::remove_all(_folder.file("a"));
  EXPECT_THAT(read(""), ElementsAre("private a", "close a"));
}

TEST_F(FolderTreeTest, manyBrokenFilesAreItemsLikeOthers) {
  for (int number = 0; number < 1000; ++number) {
    _folder.broken("broken" + std::to_string(number) + ".jpg");
  }
  _folder.write("empty.jpg", "");
  EXPECT_EQ(readAll().size(), 1002U);
}

TEST_F(FolderTreeTest, foldersMayNestDeeply) {
  std::string name;
  for (int depth = 0; depth < 500; ++depth) name += "d/";
  _folder.photo(name + "x.jpg");
  const auto events = readAll();
  ASSERT_EQ(events.size(), 502U);
  EXPECT_EQ(events.back(), "+" + name + "x.jpg");
}

TEST_F(FolderTreeTest, namesThatAreNoTextAreKept) {
  _folder.photo("\xFF\xFE.jpg");
  _folder.photo("\xE9t\xE9/a.jpg");
  EXPECT_THAT(readAll(),
              ElementsAre("open .", "+\xFF\xFE.jpg", "open \xE9t\xE9", "+\xE9t\xE9/a.jpg"));
}

TEST_F(FolderTreeTest, stopsWithinAFolder) {
  for (int number = 0; number < 100; ++number) {
    _folder.broken("a/" + std::to_string(number) + ".jpg");
  }
  _recorder.filesUntilStop = 10;
  EXPECT_EQ(readAll().size(), 10U);
}

}  // namespace
}  // namespace desktop::library
