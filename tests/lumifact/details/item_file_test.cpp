// SPDX-License-Identifier: MIT
#include "lumifact/details/item_file.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "tests/lumifact/assets/fake_asset.h"
#include "tests/lumifact/details/fake_media.h"
#include "tests/lumifact/views/foundation_test.h"

namespace lumifact {
namespace {

using host::AssetFacts;
using host::fakeMedia;
using testing::ElementsAre;

const AssetFacts still = {
    .mainFile = "file:///photos/IMG_0001.JPG",
    .fullsizeImage = "file:///photos/IMG_0001full.JPG",
    .largePreview = "file:///photos/IMG_0001large.JPG",
    .mediumPreview = "file:///photos/IMG_0001medium.jpg",
};

class ItemFileTest : public FoundationTest {
 protected:
  ItemFileTest() { fakeMedia() = {}; }

  static std::string openedPath(const AssetFacts& facts) {
    const ItemFile file = openItemFile(host::makeAsset(facts));
    return file.source ? file.path->utf8() : "";
  }
};

struct OpenCase {
  const char* there;  // the one link that can be opened
  const char* path;
  std::size_t tries;
};

TEST_F(ItemFileTest, AStillTriesItsPreviewsInTheirOrder) {
  constexpr OpenCase cases[] = {
      {"file:///photos/IMG_0001.JPG", "/photos/IMG_0001.JPG", 1},
      {"file:///photos/IMG_0001full.JPG", "/photos/IMG_0001full.JPG", 2},
      {"file:///photos/IMG_0001large.JPG", "/photos/IMG_0001large.JPG", 3},
      {"file:///photos/IMG_0001medium.jpg", "/photos/IMG_0001medium.jpg", 4},
      {"file:///photos/IMG_0001large.jpg", "/photos/IMG_0001large.jpg", 5},
      {"file:///elsewhere", "", 5},
  };
  for (const auto& [there, path, tries] : cases) {
    fakeMedia() = {};
    fakeMedia().files[there] = std::nullopt;
    EXPECT_EQ(openedPath(still), path) << there;
    EXPECT_EQ(fakeMedia().tried.size(), tries) << there;
  }
}

TEST_F(ItemFileTest, ThePathIsThatOfTheLastLinkEvenWhereNoneOpens) {
  const ItemFile file = openItemFile(host::makeAsset(still));
  EXPECT_FALSE(file.source);
  EXPECT_EQ(file.path->utf8(), "/photos/IMG_0001large.jpg");
}

TEST_F(ItemFileTest, AVideoHasItsMainFileOnly) {
  AssetFacts video = still;
  video.isVideo = true;
  fakeMedia().files[still.mediumPreview] = std::nullopt;
  EXPECT_EQ(openedPath(video), "");
  EXPECT_THAT(fakeMedia().tried, ElementsAre(still.mainFile));
}

TEST_F(ItemFileTest, LinksThatAreMissingAreNoFiles) {
  EXPECT_EQ(openedPath({}), "");
  EXPECT_EQ(openedPath({.mainFile = still.mainFile}), "");
  EXPECT_EQ(openedPath({.largePreview = still.largePreview}), "");
  fakeMedia().files[still.largePreview] = std::nullopt;
  EXPECT_EQ(openedPath({.largePreview = still.largePreview}), "/photos/IMG_0001large.JPG");
}

TEST_F(ItemFileTest, PathsAreWithoutTheEscapesOfTheirLinks) {
  fakeMedia().files["file:///photos/caf%C3%A9%20large.JPG"] = std::nullopt;
  EXPECT_EQ(openedPath({.mediumPreview = "file:///photos/caf%C3%A9%20.JPG"}),
            "/photos/caf\xC3\xA9 large.JPG");
}

TEST_F(ItemFileTest, FactsAreWordedByThePlatform) {
  const std::string path = testing::TempDir() + "item_file_test.JPG";
  std::ofstream(path) << std::string(2'400'000, 'x');
  std::filesystem::last_write_time(path, std::chrono::file_clock::from_sys(std::chrono::sys_seconds(
                                             std::chrono::seconds(1538309000))));
  const FileFacts facts =
      factsOf(text(path), host::makeAsset({.pixelWidth = 4032, .pixelHeight = 3024}));
  std::filesystem::remove(path);
  EXPECT_EQ(facts.path, path);
  EXPECT_EQ(facts.fileDate, "Sep 30, 2018 at 2:03:20 PM");
  EXPECT_EQ(facts.fileSize, "2.4 MB");
  EXPECT_EQ(facts.pixelHeight, 3024);
  EXPECT_EQ(facts.pixelWidth, 4032);
}

TEST_F(ItemFileTest, AFileThatCannotBeLookedAtHasNoBytesAndNoDate) {
  const FileFacts facts =
      factsOf(text("/var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG"), host::makeAsset({}));
  EXPECT_EQ(facts.path, "100APPLE/IMG_0001.JPG");
  EXPECT_EQ(facts.fileDate, "(null)");
  EXPECT_EQ(facts.fileSize, "Zero KB");
}

}  // namespace
}  // namespace lumifact
