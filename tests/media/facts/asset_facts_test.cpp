// SPDX-License-Identifier: MIT
#include "media/facts/asset_facts.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdlib>
#include <ctime>
#include <filesystem>

#include "tests/support/movie_builder.h"
#include "tests/support/sample_photo.h"
#include "tests/support/temporary_folder.h"

namespace media::facts {
namespace {

using foundation::DeviceRoot;

class AssetFactsTest : public testing::Test {
 protected:
  void SetUp() override {
    ::setenv("TZ", "UTC", 1);
    ::tzset();
  }

  AssetFacts factsOf(const std::string& path) {
    auto facts = readAssetFacts(path, DeviceRoot(_folder.file("root")));
    EXPECT_TRUE(facts) << path << ": " << facts.error().reason;
    return facts ? *std::move(facts) : AssetFacts();
  }
  AssetFacts factsOf(const SamplePhoto& photo) {
    return factsOf(_folder.write("photo.jpg", sampleJpeg(photo)));
  }
  std::string reasonOf(const std::string& path) {
    const auto facts = readAssetFacts(path, DeviceRoot(_folder.file("root")));
    return facts ? "none" : facts.error().reason;
  }

  support::TemporaryFolder _folder;
};

TEST_F(AssetFactsTest, OfAPhoto) {
  const AssetFacts facts = factsOf(SamplePhoto{.width = 4032,
                                               .height = 3024,
                                               .orientation = 1,
                                               .make = "Maker",
                                               .dateTimeOriginal = "2018:09:30 14:03:11",
                                               .offset = "+02:00",
                                               .location = model::Location{-33.8568, 151.2153},
                                               .city = "Sydney",
                                               .country = "Australia"});
  EXPECT_EQ(facts.path, _folder.file("photo.jpg"));
  EXPECT_EQ(facts.uniformTypeIdentifier, "public.jpeg");
  EXPECT_FALSE(facts.isVideo);
  EXPECT_EQ(facts.pixelWidth, 4032);
  EXPECT_EQ(facts.pixelHeight, 3024);
  EXPECT_EQ(facts.fileSize, std::filesystem::file_size(_folder.file("photo.jpg")));
  EXPECT_EQ(facts.creationDate, model::Date{1538316191 - 7200});
  EXPECT_EQ(facts.exifOrientation, 1);
  EXPECT_EQ(facts.localizedGeoDescription, "Sydney, Australia");
  ASSERT_TRUE(facts.location);
  EXPECT_NEAR(facts.location->latitude, -33.8568, 1e-9);
  EXPECT_NEAR(facts.location->longitude, 151.2153, 1e-9);
  ASSERT_TRUE(facts.properties);
  EXPECT_FALSE(facts.asset);
}

TEST_F(AssetFactsTest, TheOffsetOfTheDateIsNoProperty) {
  const AssetFacts facts =
      factsOf(SamplePhoto{.dateTimeOriginal = "2018:09:30 14:03:11", .offset = "+02:00"});
  const model::Value* exif = model::find(*facts.properties, "{Exif}");
  ASSERT_TRUE(exif != nullptr && exif->asDictionary() != nullptr);
  EXPECT_NE(model::find(*exif->asDictionary(), "DateTimeOriginal"), nullptr);
  EXPECT_EQ(model::find(*exif->asDictionary(), "OffsetTimeOriginal"), nullptr);
}

TEST_F(AssetFactsTest, ThePixelSizeIsTheDisplayedOne) {
  for (int orientation = 1; orientation <= 8; ++orientation) {
    const AssetFacts facts =
        factsOf(SamplePhoto{.width = 40, .height = 30, .orientation = orientation});
    EXPECT_EQ(facts.exifOrientation, orientation);
    EXPECT_EQ(facts.pixelWidth, orientation < 5 ? 40 : 30) << orientation;
    EXPECT_EQ(facts.pixelHeight, orientation < 5 ? 30 : 40) << orientation;
  }
}

TEST_F(AssetFactsTest, APhotoThatSaysNothingHasTheFilesDateAndOrientationOne) {
  const std::string path = _folder.write("photo.jpg", sampleJpeg({}));
  const timespec times[2] = {{.tv_sec = 1000, .tv_nsec = 0},
                             {.tv_sec = 1538316191, .tv_nsec = 500'000'000}};
  ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), times, 0), 0);
  const AssetFacts facts = factsOf(path);
  EXPECT_EQ(facts.exifOrientation, 1);
  EXPECT_EQ(facts.fileModificationDate, model::Date{1538316191.5});
  EXPECT_EQ(facts.creationDate, facts.fileModificationDate);
  EXPECT_FALSE(facts.location);
  EXPECT_FALSE(facts.localizedGeoDescription);
}

TEST_F(AssetFactsTest, OfAVideo) {
  const AssetFacts facts = factsOf(_folder.write("movie.mov", movie::phoneMovie()));
  EXPECT_TRUE(facts.isVideo);
  EXPECT_EQ(facts.uniformTypeIdentifier, "com.apple.quicktime-movie");
  EXPECT_FALSE(facts.properties);
  ASSERT_TRUE(facts.asset);
  EXPECT_EQ(facts.pixelWidth, 1080) << "turned by a quarter";
  EXPECT_EQ(facts.pixelHeight, 1920);
  EXPECT_GT(facts.duration, 0);
  EXPECT_TRUE(facts.location);
  EXPECT_NE(facts.creationDate, facts.fileModificationDate);
}

// One track of images, and no still.
movie::Bytes imageSequence() {
  using namespace movie;
  const Bytes images =
      track({.header = trackHeader(1, 500, {0, 1, -1, 0, 0, 0}, 640, 480),
             .mediaHeader = mediaHeader(1000, 500),
             .handlerType = "pict",
             .descriptions = sampleDescriptions({videoEntry({.code = "hvc1", .width = 640})}),
             .times = timeToSample({{5, 100}}),
             .sizes = constantSampleSize(100, 5)});
  return joined({fileType("msf1"), box("moov", {movieHeader(1000, 500), images})});
}

TEST_F(AssetFactsTest, OfASequenceOfImages) {
  const AssetFacts facts = factsOf(_folder.write("images.heic", imageSequence()));
  EXPECT_TRUE(facts.isVideo);
  EXPECT_EQ(facts.uniformTypeIdentifier, "public.heif");
  EXPECT_EQ(facts.pixelWidth, 480);
  EXPECT_EQ(facts.pixelHeight, 640);
  EXPECT_EQ(facts.duration, 0.5);
  ASSERT_TRUE(facts.asset);
  ASSERT_EQ(facts.asset->tracks.size(), 1U);
  EXPECT_EQ(facts.asset->tracks[0].mediaType, "pict");
  EXPECT_EQ(facts.asset->tracks[0].nominalFrameRate, 10);
}

TEST_F(AssetFactsTest, AMovieCutInItsHeaderSaysSo) {
  const movie::Bytes whole = movie::webMovie();
  const AssetFacts facts =
      factsOf(_folder.write("cut.mp4", movie::Bytes(whole.begin(), whole.begin() + 600)));
  EXPECT_TRUE(facts.isVideo);
  EXPECT_EQ(facts.shortfall, "truncated movie");
  EXPECT_EQ(facts.duration, 10.01);
}

TEST_F(AssetFactsTest, ALinkSaysWhatItsFileSays) {
  const std::string file = _folder.write("root/var/mobile/photo.jpg", sampleJpeg({}));
  std::filesystem::create_directory_symlink("root/var", _folder.file("var"));
  std::filesystem::create_symlink("var/mobile/photo.jpg", _folder.file("link.png"));
  const AssetFacts facts = factsOf(_folder.file("link.png"));
  EXPECT_EQ(facts.path, "/var/mobile/photo.jpg");
  EXPECT_EQ(facts.fileSize, std::filesystem::file_size(file));
  EXPECT_EQ(facts.fileModificationDate, factsOf(file).fileModificationDate);
  EXPECT_EQ(facts.properties, factsOf(file).properties);
}

TEST_F(AssetFactsTest, ThePathIsTheDevicesBelowTheRoot) {
  const std::string below = "var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG";
  const std::string path = _folder.write("root/" + below, sampleJpeg({}));
  EXPECT_EQ(factsOf(path).path, "/" + below);
  EXPECT_EQ(factsOf("/" + below).path, "/" + below) << "a path of the device is found on disk";
}

TEST_F(AssetFactsTest, ReadsNamesThatAreNoText) {
  const std::string name = "a\n\x1b\xff.jpg";
  EXPECT_EQ(factsOf(_folder.write(name, sampleJpeg({}))).path, _folder.file(name));
}

TEST_F(AssetFactsTest, TellsWhyAFileCannotBeRead) {
  EXPECT_EQ(reasonOf(_folder.file("missing.jpg")), "No such file or directory");
  EXPECT_EQ(reasonOf(_folder.path()), "Is a directory");
  EXPECT_EQ(reasonOf(_folder.write("empty.jpg", "")), "empty file");
  EXPECT_EQ(reasonOf(_folder.write("text.jpg", "This is no picture.")), "not a photo or video");
  EXPECT_EQ(reasonOf("/dev/zero"), "not a regular file");
  ASSERT_EQ(::mkfifo(_folder.file("fifo").c_str(), 0600), 0);
  EXPECT_EQ(reasonOf(_folder.file("fifo")), "not a regular file");
  const auto jpeg = sampleJpeg({});
  const auto start = std::span(jpeg).first(20);
  EXPECT_NE(reasonOf(_folder.write("cut.jpg", start)), "none");
}

}  // namespace
}  // namespace media::facts
