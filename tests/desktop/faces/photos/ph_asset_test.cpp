// SPDX-License-Identifier: MIT
//
// Assets as an extension asks them, over a library on disk.
#include "desktop/faces/photos/ph_asset.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "desktop/faces/foundation/foundation_runtime.h"
#include "desktop/faces/photos/photos_runtime.h"
#include "tests/support/library_folder.h"
#include "tests/support/movie_builder.h"
#include "tests/support/sample_photo.h"

namespace desktop::faces {
namespace {

const std::string folderOfPhone = "/var/mobile/Media/DCIM/100APPLE";

class PHAssetTest : public testing::Test {
 protected:
  PHAssetTest() : _root(_folder.path()) {
    registerPhotos();
    correctFoundation({.root = _root, .bundleIdentifier = {}});
  }

  // Of the only file of the library.
  PHAsset asset(const std::string& folder = folderOfPhone) {
    _library = *library::PhotoLibrary::open(folder, _root);
    _library->waitAndDeliver();
    return PHAssetState::make(*_library, _library->items().at(0));
  }

  library::LibraryFolder _folder;
  foundation::DeviceRoot _root;
  std::unique_ptr<library::PhotoLibrary> _library;
  const AutoreleasePool _pool;
};

TEST_F(PHAssetTest, tellsTheFactsOfAPhoto) {
  const std::string path =
      _folder.write(folderOfPhone.substr(1) + "/IMG 1.JPG",
                    media::facts::sampleJpeg({.width = 400,
                                              .height = 300,
                                              .orientation = 6,
                                              .dateTimeOriginal = "2018:09:30 14:03:11",
                                              .offset = "+02:00",
                                              .location = model::Location{48.8577, -2.295},
                                              .city = "Paris",
                                              .country = "France"}));
  library::setFileDate(path, 5000);
  const PHAsset photo = asset();
  EXPECT_EQ(photo.uuid().utf8(), library::itemUuid(path));
  EXPECT_EQ(photo.uniformTypeIdentifier().utf8(), "public.jpeg");
  EXPECT_FALSE(photo.isVideo());
  EXPECT_EQ((send<long, "mediaType">(photo)), 1);
  EXPECT_EQ(photo.pixelWidth(), 300U);
  EXPECT_EQ(photo.pixelHeight(), 400U);
  EXPECT_EQ(photo.duration(), 0);
  EXPECT_EQ(photo.exifOrientation(), 6);
  EXPECT_EQ(photo.creationDate().timeIntervalSince1970(), 1538308991);
  EXPECT_EQ((send<NSDate, "modificationDate">(photo)).timeIntervalSince1970(), 5000);
  EXPECT_NEAR(photo.location().coordinate().latitude, 48.8577, 1e-6);
  EXPECT_NEAR(photo.location().coordinate().longitude, -2.295, 1e-6);
  EXPECT_EQ(photo.localizedGeoDescription().utf8(), "Paris, France");
}

TEST_F(PHAssetTest, linksAreThoseOfThePhone) {
  _folder.photo(folderOfPhone.substr(1) + "/IMG 1.JPG");
  const PHAsset photo = asset();
  const std::string data = "file:///var/mobile/Media/PhotoData/";
  EXPECT_EQ(photo.mainFileURL().absoluteString().utf8(),
            "file://" + folderOfPhone + "/IMG%201.JPG");
  EXPECT_EQ(photo.mainFileURL().path().utf8(), folderOfPhone + "/IMG 1.JPG");
  EXPECT_EQ(photo.fileURLForFullsizeImage().absoluteString().utf8(),
            data + "Mutations/DCIM/100APPLE/IMG%201full.JPG");
  EXPECT_EQ(photo.fileURLForLargePreview().absoluteString().utf8(),
            data + "Thumbnails/DCIM/100APPLE/IMG%201large.JPG");
  EXPECT_EQ(photo.fileURLForMediumPreview().absoluteString().utf8(),
            data + "Metadata/DCIM/100APPLE/IMG%201medium.JPG");
  EXPECT_TRUE(NSFileManager::defaultManager().fileExists(photo.mainFileURL().path()));
}

TEST_F(PHAssetTest, tellsTheFactsOfAVideo) {
  _folder.write("library/a.mov", media::movie::phoneMovie());
  const PHAsset video = asset(_folder.file("library"));
  EXPECT_TRUE(video.isVideo());
  EXPECT_EQ((send<long, "mediaType">(video)), 2);
  EXPECT_EQ(video.uniformTypeIdentifier().utf8(), "com.apple.quicktime-movie");
  const auto& facts = _library->facts(*_library->items()[0]);
  ASSERT_TRUE(facts);
  EXPECT_GT(video.duration(), 0);
  EXPECT_EQ(video.duration(), (*facts)->duration);
  EXPECT_GT(video.pixelWidth(), 0U);
  EXPECT_EQ(video.pixelWidth(), static_cast<NSUInteger>((*facts)->pixelWidth));
  EXPECT_EQ(video.mainFileURL().path().utf8(), _folder.file("library/a.mov"));
}

TEST_F(PHAssetTest, aBrokenFileTellsWhatItsNameDoes) {
  const std::string path = _folder.broken("library/a.mov", 1234);
  const PHAsset broken = asset(_folder.file("library"));
  EXPECT_TRUE(broken.isVideo());
  EXPECT_EQ(broken.uniformTypeIdentifier().utf8(), "com.apple.quicktime-movie");
  EXPECT_EQ(broken.pixelWidth(), 0U);
  EXPECT_EQ(broken.exifOrientation(), 1);
  EXPECT_EQ(broken.creationDate().timeIntervalSince1970(), 1234);
  EXPECT_FALSE(broken.location());
  EXPECT_FALSE(broken.localizedGeoDescription());
  EXPECT_TRUE(_library->problems().contains(path));
}

TEST_F(PHAssetTest, aPhotoWithoutAPlaceHasNone) {
  _folder.photo("library/a.jpg");
  const PHAsset photo = asset(_folder.file("library"));
  EXPECT_FALSE(photo.location());
  EXPECT_FALSE(photo.localizedGeoDescription());
}

TEST_F(PHAssetTest, aNameThatIsNoTextHasALinkToItsBytes) {
  const std::string path = _folder.photo("library/\xFF.jpg", 1234);
  const PHAsset photo = asset(_folder.file("library"));
  EXPECT_EQ(photo.mainFileURL().absoluteString().utf8(),
            "file://" + _folder.file("library/%FF.jpg"));
  EXPECT_EQ(photo.mainFileURL().path().utf8(), _folder.file("library/\uFFFD.jpg"));
  EXPECT_EQ(photo.pixelWidth(), 40U);
  const auto files = NSFileManager::defaultManager();
  EXPECT_TRUE(files.fileExists(photo.mainFileURL().path()));
  const auto attributes = files.attributesOfItem(photo.mainFileURL().path());
  EXPECT_EQ(attributes.fileSize(), std::filesystem::file_size(path));
  EXPECT_EQ(attributes.fileModificationDate().timeIntervalSince1970(), 1234);
}

TEST_F(PHAssetTest, assetsOfTheSameFileAreEqual) {
  const std::string path = _folder.photo("library/a.jpg", 1);
  _folder.photo("library/b.jpg", 2);
  const PHAsset first = asset(_folder.file("library"));
  const PHAsset other = PHAssetState::make(*_library, _library->items()[1]);
  std::filesystem::resize_file(path, 10);
  library::setFileDate(path, 3);
  _library->waitAndDeliver();
  const PHAsset changed = PHAssetState::make(*_library, _library->items()[1]);
  EXPECT_NE(PHAssetState::itemOf(first), PHAssetState::itemOf(changed));
  EXPECT_TRUE(first.isEqual(changed));
  EXPECT_EQ((send<unsigned long, "hash">(first)), (send<unsigned long, "hash">(changed)));
  EXPECT_FALSE(first.isEqual(other));
  EXPECT_FALSE(first.isEqual(NSString::make("no asset")));
  EXPECT_FALSE(first.isEqual(Object()));
  EXPECT_EQ(PHAssetState::itemOf(NSString::make("no asset")), nullptr);
  EXPECT_EQ(PHAssetState::itemOf(Object()), nullptr);
}

TEST_F(PHAssetTest, anAssetMayOutliveItsLibrary) {
  _folder.photo("library/a.jpg");
  const PHAsset photo = asset(_folder.file("library"));
  EXPECT_EQ(photo.pixelWidth(), 40U);
  _library.reset();
  EXPECT_EQ(photo.pixelWidth(), 0U);
  EXPECT_EQ(photo.mainFileURL().path().utf8(), _folder.file("library/a.jpg"));
}

TEST_F(PHAssetTest, objectsGoWhenNobodyKeepsThem) {
  _folder.write("library/a.jpg", media::facts::sampleJpeg({.location = model::Location{1, 2}}));
  const long before = liveBoundObjects();
  {
    const AutoreleasePool pool;
    EXPECT_TRUE(asset(_folder.file("library")).location());
    EXPECT_GT(liveBoundObjects(), before);
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::faces
