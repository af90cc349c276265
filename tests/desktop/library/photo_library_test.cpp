// SPDX-License-Identifier: MIT
#include "desktop/library/photo_library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>

#include <filesystem>
#include <thread>

#include "tests/support/library_folder.h"
#include "tests/support/sample_photo.h"

namespace desktop::library {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr WatchLimits quick{.rereadInterval = 20ms, .settleTime = 5ms};

class PhotoLibraryTest : public testing::Test {
 protected:
  void open(const WatchLimits& limits = quick) {
    auto opened = PhotoLibrary::open(_folder.file("library"), _root, limits);
    ASSERT_TRUE(opened) << opened.error().reason;
    _library = *std::move(opened);
    _library->onChange([this](const LibraryChange& change) { _changes.push_back(change); });
  }

  // Delivers as a main loop does, until the condition holds or ten seconds have passed.
  bool waitUntil(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + 10s;
    while (!condition() && std::chrono::steady_clock::now() < end) {
      pollfd wake{_library->wakeDescriptor(), POLLIN, 0};
      ::poll(&wake, 1, 1000);
      _library->deliverChanges();
    }
    return condition();
  }

  std::vector<std::string> names() const { return names(_library->items()); }
  std::vector<std::string> names(const std::vector<ItemPointer>& items) const {
    std::vector<std::string> all;
    for (const std::string& name : _folder.names(items)) {
      all.push_back(name.substr(std::string("library/").size()));
    }
    return all;
  }
  std::string photo(const std::string& name, double date = 1'000'000) const {
    return _folder.photo("library/" + name, date);
  }

  LibraryFolder _folder;
  foundation::DeviceRoot _root{_folder.file("root")};
  std::unique_ptr<PhotoLibrary> _library;
  std::vector<LibraryChange> _changes;
};

TEST_F(PhotoLibraryTest, refusesWhatIsNoFolderWithTheReason) {
  const auto reason = [this](const std::string& path) {
    const auto library = PhotoLibrary::open(path, _root);
    return library ? "opened" : library.error().reason;
  };
  EXPECT_EQ(reason(_folder.file("none")), "No such file or directory");
  EXPECT_EQ(reason(_folder.write("file", "x")), "Not a directory");
  fs::create_directory(_folder.file("closed"));
  fs::permissions(_folder.path(), fs::perms::all);
  fs::permissions(_folder.file("closed"), fs::perms::none);
  const StrangersRights rights;
  EXPECT_EQ(reason(_folder.file("closed")), "Permission denied");
}

TEST_F(PhotoLibraryTest, anEmptyFolderIsReadyAndEmpty) {
  fs::create_directory(_folder.file("library"));
  open();
  EXPECT_EQ(_library->state(), LoadingState::reading);
  EXPECT_TRUE(_library->waitAndDeliver());
  EXPECT_EQ(_library->state(), LoadingState::ready);
  EXPECT_THAT(_library->items(), IsEmpty());
  ASSERT_EQ(_library->albums().size(), 1U);
  EXPECT_THAT(_library->albums()[0].items, IsEmpty());
}

TEST_F(PhotoLibraryTest, itemsComeOldestFirst) {
  photo("b.jpg", 3000);
  photo("a.jpg", 3000);
  photo("x/old.jpg", 1000);
  photo("new.jpg", 5000);
  open();
  _library->waitAndDeliver();
  EXPECT_THAT(names(), ElementsAre("x/old.jpg", "a.jpg", "b.jpg", "new.jpg"));
  const ItemPointer item = _library->items()[2];
  EXPECT_EQ(item->modificationDate.secondsSince1970, 3000);
  EXPECT_EQ(item->fileSize, fs::file_size(item->path));
  EXPECT_EQ(item->uuid, itemUuid(item->path));
  EXPECT_EQ(_library->indexOf(item), 2U);
  EXPECT_EQ(_library->itemOf(item->uuid), item);
  EXPECT_EQ(_library->itemOf("none"), nullptr);
}

TEST_F(PhotoLibraryTest, tellsWhatChangedSinceTheLastTime) {
  photo("keep.jpg", 1);
  photo("remove.jpg", 2);
  const std::string updated = photo("update.jpg", 3);
  open();
  _library->waitAndDeliver();
  ASSERT_EQ(_changes.size(), 1U);
  EXPECT_THAT(names(_changes[0].inserted), ElementsAre("keep.jpg", "remove.jpg", "update.jpg"));
  EXPECT_TRUE(_changes[0].isStateChanged);
  const ItemPointer outdated = _library->items()[2];

  fs::remove(_folder.file("library/remove.jpg"));
  fs::resize_file(updated, 10);
  setFileDate(updated, 0);
  photo("new.jpg", 4);
  _library->waitAndDeliver();
  EXPECT_THAT(names(), ElementsAre("update.jpg", "keep.jpg", "new.jpg"));
  EXPECT_EQ(_library->indexOf(outdated), std::nullopt);
  EXPECT_EQ(_library->itemOf(outdated->uuid), _library->items()[0]);
  std::vector<std::string> inserted;
  std::vector<std::string> removed;
  for (std::size_t index = 1; index < _changes.size(); ++index) {
    const auto more = names(_changes[index].inserted);
    const auto gone = names(_changes[index].removed);
    inserted.insert(inserted.end(), more.begin(), more.end());
    removed.insert(removed.end(), gone.begin(), gone.end());
    EXPECT_TRUE(_changes[index].areAlbumsChanged);
    EXPECT_FALSE(_changes[index].isStateChanged);
  }
  EXPECT_THAT(inserted, ElementsAre("new.jpg"));
  EXPECT_THAT(removed, ElementsAre("remove.jpg"));
  EXPECT_EQ(names(_changes.back().updated).empty(), false);
}

TEST_F(PhotoLibraryTest, nothingNewIsNotTold) {
  photo("a.jpg");
  open();
  _library->waitAndDeliver();
  _changes.clear();
  EXPECT_FALSE(_library->waitAndDeliver());
  EXPECT_FALSE(_library->deliverChanges());
  EXPECT_THAT(_changes, IsEmpty());
}

TEST_F(PhotoLibraryTest, followsChangesByItself) {
  photo("a.jpg", 1);
  open();
  ASSERT_TRUE(waitUntil([&] { return _library->state() == LoadingState::ready; }));
  photo("folder/deep/b.jpg", 2);
  ASSERT_TRUE(waitUntil([&] { return _library->items().size() == 2; }));
  photo("folder/deep/c.jpg", 3);
  ASSERT_TRUE(waitUntil([&] { return _library->items().size() == 3; }));
  fs::resize_file(_folder.file("library/a.jpg"), 0);
  ASSERT_TRUE(waitUntil([&] { return _library->items().back()->fileSize == 0; }));
  fs::rename(_folder.file("library/folder"), _folder.file("library/moved"));
  ASSERT_TRUE(waitUntil([&] { return names().front() == "moved/deep/b.jpg"; }));
  photo("moved/deep/d.jpg", 4);
  ASSERT_TRUE(waitUntil([&] { return _library->items().size() == 4; }));
  fs::remove_all(_folder.file("library/moved"));
  EXPECT_TRUE(waitUntil([&] { return _library->items().size() == 1; }));
}

TEST_F(PhotoLibraryTest, followsChangesWithoutWatches) {
  photo("a/a.jpg");
  open({.mostWatchedFolders = 0, .rereadInterval = 20ms, .settleTime = 5ms});
  ASSERT_TRUE(waitUntil([&] { return _library->state() == LoadingState::ready; }));
  photo("a/b.jpg");
  EXPECT_TRUE(waitUntil([&] { return _library->items().size() == 2; }));
}

TEST_F(PhotoLibraryTest, theFolderMayGoAndComeBackWhileOpen) {
  photo("a.jpg");
  open();
  ASSERT_TRUE(waitUntil([&] { return _library->state() == LoadingState::ready; }));
  fs::rename(_folder.file("library"), _folder.file("elsewhere"));
  ASSERT_TRUE(waitUntil([&] { return _library->state() == LoadingState::lost; }));
  EXPECT_THAT(_library->items(), IsEmpty());
  EXPECT_THAT(_library->problems(),
              ElementsAre(Pair(_folder.file("library"), "No such file or directory")));
  photo("b.jpg");
  ASSERT_TRUE(waitUntil([&] { return _library->items().size() == 1; }));
  EXPECT_EQ(_library->state(), LoadingState::ready);
  EXPECT_THAT(names(), ElementsAre("b.jpg"));
  EXPECT_THAT(_library->problems(), IsEmpty());
  photo("c.jpg");
  EXPECT_TRUE(waitUntil([&] { return _library->items().size() == 2; }));
}

TEST_F(PhotoLibraryTest, factsAreReadWhenAskedFor) {
  _folder.write("library/a.jpg", media::facts::sampleJpeg({.width = 120, .height = 80}));
  open();
  _library->waitAndDeliver();
  const ItemPointer item = _library->items().at(0);
  EXPECT_EQ(_library->factsCache().known(*item), nullptr);
  const auto& facts = _library->facts(*item);
  ASSERT_TRUE(facts);
  EXPECT_EQ((*facts)->pixelWidth, 120);
  EXPECT_THAT(_library->problems(), IsEmpty());
}

TEST_F(PhotoLibraryTest, whatCannotBeReadBecomesAProblemUntilItChanges) {
  const std::string path = _folder.write("library/a.jpg", "no photo");
  open();
  _library->waitAndDeliver();
  _changes.clear();
  EXPECT_FALSE(_library->facts(*_library->items().at(0)));
  EXPECT_THAT(_library->problems(), ElementsAre(Pair(path, "not a photo or video")));
  EXPECT_TRUE(_library->deliverChanges());
  ASSERT_EQ(_changes.size(), 1U);
  EXPECT_TRUE(_changes[0].areProblemsChanged);
  photo("a.jpg");
  _library->waitAndDeliver();
  EXPECT_THAT(_library->problems(), IsEmpty());
  EXPECT_TRUE(_library->facts(*_library->items().at(0)));
}

TEST_F(PhotoLibraryTest, tenThousandBrokenFilesAreFine) {
  fs::create_directory(_folder.file("library"));
  for (int number = 0; number < 10'000; ++number) {
    _folder.write("library/" + std::to_string(number) + ".jpg", number % 2 == 0 ? "" : "\xFF\xD8x");
  }
  open();
  _library->waitAndDeliver();
  ASSERT_EQ(_library->items().size(), 10'000U);
  for (const ItemPointer& item : _library->items()) EXPECT_FALSE(_library->facts(*item));
  EXPECT_EQ(_library->problems().size(), 10'000U);
}

TEST_F(PhotoLibraryTest, namesThatAreNoTextCanBeOpened) {
  photo("\xFF.jpg");
  open();
  _library->waitAndDeliver();
  const ItemPointer item = _library->items().at(0);
  EXPECT_EQ(item->shownName(), "\uFFFD.jpg");
  EXPECT_TRUE(_library->facts(*item));
}

TEST_F(PhotoLibraryTest, favouritesAreToldAndKeptBelowTheRootOnly) {
  const std::string path = photo("a.jpg");
  open();
  ASSERT_TRUE(waitUntil([&] { return _library->state() == LoadingState::ready; }));
  const LibraryItem item = *_library->items().front();
  EXPECT_FALSE(_library->isFavourite(item));
  _changes.clear();
  EXPECT_TRUE(_library->setFavourite(item, true));
  EXPECT_TRUE(_library->isFavourite(item));
  ASSERT_TRUE(waitUntil([&] { return !_changes.empty(); }));
  EXPECT_TRUE(_changes[0].areFavouritesChanged);
  EXPECT_TRUE(fs::exists(_folder.file("root/favourites")));
  EXPECT_EQ(std::distance(fs::directory_iterator(_folder.file("library")), {}), 1);
}

TEST_F(PhotoLibraryTest, panoramasAreFoundOnceTheyAreWanted) {
  const auto write = [&](const std::string& name, std::uint16_t width, std::uint16_t height) {
    return _folder.write("library/" + name,
                         media::facts::sampleJpeg({.width = width, .height = height}));
  };
  write("pan/wide.jpg", 200, 100);
  write("pan/nearly.jpg", 199, 100);
  write("pan/high.jpg", 100, 300);
  open();
  _library->waitAndDeliver();
  EXPECT_EQ(_library->albums().size(), 2U);
  _library->findPanoramas();
  _library->waitAndDeliver();
  ASSERT_EQ(_library->albums().size(), 3U);
  EXPECT_EQ(_library->albums()[1].kind, AlbumKind::panoramas);
  EXPECT_THAT(names(_library->albums()[1].items), ElementsAre("pan/wide.jpg"));
  const std::string late = write("late.jpg", 300, 100);
  _library->waitAndDeliver();
  EXPECT_EQ(_library->albums()[1].items.size(), 2U);
  write("late.jpg", 100, 100);
  setFileDate(late, 5);
  _library->waitAndDeliver();
  EXPECT_EQ(_library->albums()[1].items.size(), 1U);
}

TEST_F(PhotoLibraryTest, sharedFoldersAreSharedAlbums) {
  photo("ours/a.jpg");
  _folder.write("library/ours/.shared", "");
  open();
  _library->waitAndDeliver();
  EXPECT_EQ(_library->albums().at(1).kind, AlbumKind::sharedFolder);
  fs::remove(_folder.file("library/ours/.shared"));
  _library->waitAndDeliver();
  EXPECT_EQ(_library->albums().at(1).kind, AlbumKind::folder);
}

TEST_F(PhotoLibraryTest, aFolderOfTheDeviceLiesBelowItsRoot) {
  _folder.photo("root/var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG");
  const auto library = PhotoLibrary::open("/var/mobile/Media/DCIM", _root);
  ASSERT_TRUE(library);
  (*library)->waitAndDeliver();
  const ItemPointer item = (*library)->items().at(0);
  EXPECT_EQ(item->path, _folder.file("root/var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG"));
  const auto& facts = (*library)->facts(*item);
  ASSERT_TRUE(facts);
  EXPECT_EQ((*facts)->path, "/var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG");
}

TEST_F(PhotoLibraryTest, closesWhileItReads) {
  fs::create_directory(_folder.file("library"));
  for (int number = 0; number < 3000; ++number) {
    _folder.write("library/" + std::to_string(number) + ".jpg", "x");
  }
  for (int round = 0; round < 20; ++round) {
    open();
    _library->findPanoramas();
    std::this_thread::sleep_for(round * 1ms);
    _library->deliverChanges();
    _library.reset();
  }
}

}  // namespace
}  // namespace desktop::library
