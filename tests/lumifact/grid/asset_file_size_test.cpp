// SPDX-License-Identifier: MIT
#include "lumifact/grid/asset_file_size.h"

#include <gmock/gmock.h>

#include "tests/lumifact/grid/grid_host_test.h"
#include "tests/support/temporary_folder.h"

namespace lumifact {
namespace {

using host::AssetFacts;
using host::fileCalls;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// Files on disk, in every place where one is looked for.
class AssetFileSizeTest : public GridHostTest {
 protected:
  AssetFacts facts() const {
    const std::string folder = "file://" + files.path() + "/";
    return {.mainFile = folder + "IMG_0001.JPG",
            .fullsizeImage = folder + "IMG_0001full.JPG",
            .largePreview = folder + "IMG_0001large.JPG",
            .mediumPreview = folder + "IMG_0001medium.jpg",
            .uuid = "A"};
  }
  void write(const std::string& name, std::size_t size) const {
    files.write(name, std::string(size, 'x'));
  }
  static std::optional<std::int64_t> ofMain(const AssetFacts& of) {
    return mainFileSize(host::makeAsset(of));
  }
  static std::optional<std::int64_t> ofAny(const AssetFacts& of) {
    return mainOrPreviewFileSize(host::makeAsset(of));
  }

  const support::TemporaryFolder files;
};

TEST_F(AssetFileSizeTest, TheFirstFileThatIsThereHasTheSize) {
  const char* order[] = {"IMG_0001large.jpg", "IMG_0001medium.jpg", "IMG_0001large.JPG",
                         "IMG_0001full.JPG", "IMG_0001.JPG"};
  std::size_t tries = std::size(order);
  for (const char* name : order) {
    fileCalls() = {};
    createFileSizeCache();
    write(name, tries);
    for (int count = 0; count < 2; ++count) EXPECT_EQ(ofAny(facts()), tries) << name;
    EXPECT_THAT(fileCalls().existence, SizeIs(tries)) << "looked for once";
    EXPECT_THAT(fileCalls().attributes, ElementsAre(files.file(name))) << "read once";
    EXPECT_EQ(fileCalls().reasons, 0);
    --tries;
  }
}

TEST_F(AssetFileSizeTest, WithoutAnyFileThereIsNoneAndItIsLookedForAgain) {
  EXPECT_EQ(ofAny(facts()), std::nullopt);
  EXPECT_THAT(fileCalls().existence, SizeIs(5));
  EXPECT_THAT(fileCalls().attributes, IsEmpty());
  write("IMG_0001.JPG", 7);
  EXPECT_EQ(ofAny(facts()), 7);
}

TEST_F(AssetFileSizeTest, AVideoHasItsMainFileOnly) {
  AssetFacts video = facts();
  video.isVideo = true;
  write("IMG_0001full.JPG", 7);
  EXPECT_EQ(ofAny(video), std::nullopt);
  EXPECT_THAT(fileCalls().existence, ElementsAre(files.file("IMG_0001.JPG")));
  write("IMG_0001.JPG", 3);
  EXPECT_EQ(ofAny(video), 3) << "nothing was cached";
}

TEST_F(AssetFileSizeTest, AFileThatIsThereAndCannotBeReadHasNoneAndNoOtherTakesItsPlace) {
  fileCalls().areUnreadable = true;
  EXPECT_EQ(ofAny(facts()), std::nullopt);
  EXPECT_THAT(fileCalls().existence, SizeIs(1));
  EXPECT_THAT(fileCalls().attributes, ElementsAre(files.file("IMG_0001.JPG")));
  EXPECT_EQ(ofMain(facts()), std::nullopt);
  fileCalls().areUnreadable = false;
  write("IMG_0001.JPG", 7);
  EXPECT_EQ(ofAny(facts()), 7) << "nothing was cached";
}

TEST_F(AssetFileSizeTest, AnEmptyFileHasASizeAndIsReadOnce) {
  write("IMG_0001.JPG", 0);
  for (int count = 0; count < 2; ++count) EXPECT_EQ(ofAny(facts()), 0);
  EXPECT_THAT(fileCalls().attributes, SizeIs(1));
}

TEST_F(AssetFileSizeTest, OfTheMainFileAloneNoOtherIsLookedFor) {
  write("IMG_0001full.JPG", 7);
  EXPECT_EQ(ofMain(facts()), std::nullopt);
  EXPECT_THAT(fileCalls().existence, IsEmpty());
  EXPECT_THAT(fileCalls().attributes, ElementsAre(files.file("IMG_0001.JPG")));
}

TEST_F(AssetFileSizeTest, WhatOneHasReadTheOtherKnows) {
  write("IMG_0001.JPG", 7);
  EXPECT_EQ(ofMain(facts()), 7);
  EXPECT_EQ(ofAny(facts()), 7);
  EXPECT_THAT(fileCalls().existence, IsEmpty());
  EXPECT_THAT(fileCalls().attributes, SizeIs(1));
  createFileSizeCache();
  write("IMG_0001.JPG", 9);
  EXPECT_EQ(ofAny(facts()), 9);
  EXPECT_EQ(ofMain(facts()), 9);
  EXPECT_THAT(fileCalls().attributes, SizeIs(2));
}

TEST_F(AssetFileSizeTest, AnAssetWithoutLinksHasNone) {
  for (const AssetFacts& nothing : {AssetFacts{}, AssetFacts{.uuid = "A"}}) {
    EXPECT_EQ(ofMain(nothing), std::nullopt);
    EXPECT_EQ(ofAny(nothing), std::nullopt);
  }
  EXPECT_EQ(mainFileSize({}), std::nullopt);
  EXPECT_EQ(mainOrPreviewFileSize({}), std::nullopt);
  EXPECT_THAT(fileCalls().existence, IsEmpty());
  EXPECT_THAT(fileCalls().attributes, IsEmpty());
}

}  // namespace
}  // namespace lumifact
