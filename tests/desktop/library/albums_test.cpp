// SPDX-License-Identifier: MIT
#include "desktop/library/albums.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/foundation/environment.h"

namespace desktop::library {
namespace {

using testing::ElementsAre;

std::vector<ItemPointer> itemsOf(std::initializer_list<const char*> paths) {
  std::vector<ItemPointer> items;
  for (const char* path : paths) {
    items.push_back(std::make_shared<const LibraryItem>(LibraryItem{.path = path}));
  }
  return items;
}

std::vector<std::string> described(const std::vector<ItemPointer>& items) {
  const foundation::ScopedVariable locale("LC_ALL", "en_US.UTF-8");
  const auto albums = makeAlbums(
      {.libraryFolder = "/p",
       .items = items,
       .isPanorama = [](const ItemPointer& item) { return item->name().starts_with("wide"); },
       .isShared = [](const std::string& folder) { return folder.ends_with("ours"); }});
  std::vector<std::string> texts;
  for (const Album& album : albums) {
    std::string text = album.title + " (" + album.folder + ")";
    if (album.kind == AlbumKind::sharedFolder) text += " shared";
    for (const ItemPointer& item : album.items) text += " " + std::string(item->name());
    texts.push_back(text);
  }
  return texts;
}

TEST(AlbumsTest, everyFolderThatHoldsPhotosIsOne) {
  EXPECT_THAT(described(itemsOf({"/p/1.jpg", "/p/b/2.jpg", "/p/a/deep/3.jpg", "/p/b/4.jpg"})),
              ElementsAre("All Photos () 1.jpg 2.jpg 3.jpg 4.jpg", "b (/p/b) 2.jpg 4.jpg",
                          "deep (/p/a/deep) 3.jpg"));
}

TEST(AlbumsTest, emptyOnesAreLeftOutButForAllPhotos) {
  EXPECT_THAT(described({}), ElementsAre("All Photos ()"));
}

TEST(AlbumsTest, panoramasStandBehindAllPhotos) {
  EXPECT_THAT(
      described(itemsOf({"/p/wide.jpg", "/p/A/2.jpg"})),
      ElementsAre("All Photos () wide.jpg 2.jpg", "Panoramas () wide.jpg", "A (/p/A) 2.jpg"));
}

TEST(AlbumsTest, foldersAreMarkedAsShared) {
  EXPECT_THAT(described(itemsOf({"/p/ours/1.jpg"})),
              ElementsAre("All Photos () 1.jpg", "ours (/p/ours) shared 1.jpg"));
}

TEST(AlbumsTest, comeByTitleThenByPath) {
  EXPECT_THAT(described(itemsOf({"/p/z/sea/1.jpg", "/p/Été/2.jpg", "/p/zoo/3.jpg", "/p/a/Sea/4.jpg",
                                 "/p/fish/5.jpg"})),
              ElementsAre("All Photos () 1.jpg 2.jpg 3.jpg 4.jpg 5.jpg", "Été (/p/Été) 2.jpg",
                          "fish (/p/fish) 5.jpg", "Sea (/p/a/Sea) 4.jpg", "sea (/p/z/sea) 1.jpg",
                          "zoo (/p/zoo) 3.jpg"));
}

TEST(AlbumsTest, titlesAreValidText) {
  EXPECT_THAT(described(itemsOf({"/p/\xFFx/1.jpg"})),
              ElementsAre("All Photos () 1.jpg", "\uFFFDx (/p/\xFFx) 1.jpg"));
}

}  // namespace
}  // namespace desktop::library
