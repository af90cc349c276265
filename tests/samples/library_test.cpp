// SPDX-License-Identifier: MIT
#include "samples/library/library.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <set>
#include <string>
#include <string_view>

#include "samples/library/items.h"
#include "tests/samples/sample_files.h"

namespace samples {
namespace {

struct stat statusOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
  return status;
}

// A format as the file's first bytes tell it.
std::string formatOf(const std::string& path) {
  const std::vector<std::uint8_t> head = bytesAt(path, 0, 12);
  const std::string text(head.begin(), head.end());
  const std::string brand = text.size() == 12 && text.substr(4, 4) == "ftyp" ? text.substr(8) : "";
  if (text.starts_with("\xFF\xD8\xFF")) return "JPEG";
  if (text.starts_with("\x89PNG\r\n")) return "PNG";
  if (text.starts_with("GIF89a")) return "GIF";
  if (text.starts_with("II*") || text.starts_with("MM")) return "TIFF";
  if (text.starts_with("BM")) return "BMP";
  if (brand == "heic") return "HEIC";
  if (brand == "qt  ") return "MOV";
  return brand.empty() ? "none" : "MP4";
}

TEST(Library, HoldsTwentyOrMoreItemsInEightFormats) {
  std::set<std::string> formats;
  std::size_t count = 0;
  const auto add = [&](const auto& item) {
    formats.insert(formatOf(libraryPath(item.path)));
    ++count;
  };
  for (const Photo& photo : allPhotos()) add(photo);
  for (const Movie& movie : allMovies()) add(movie);
  EXPECT_GE(count, 20u);
  EXPECT_THAT(formats, testing::UnorderedElementsAre("JPEG", "HEIC", "PNG", "GIF", "TIFF", "BMP",
                                                     "MOV", "MP4"));
}

TEST(Library, HoldsNothingBesideItsItems) {
  std::set<std::string> expected = {".generation"};
  for (const Photo& photo : allPhotos()) expected.insert(photo.path);
  for (const Movie& movie : allMovies()) expected.insert(movie.path);
  for (const char* marker : allMarkers()) expected.insert(marker);
  EXPECT_THAT(filesBelow(libraryPath("")), testing::UnorderedElementsAreArray(expected));
}

TEST(Library, IsTheSameEachTimeItIsMade) {
  if (std::string_view(SAMPLE_LIBRARY_AGAIN).empty()) GTEST_SKIP() << "it was made once";
  const std::vector<std::string> files = filesBelow(libraryPath(""));
  ASSERT_EQ(filesBelow(againPath("")), files);
  constexpr std::size_t most = 4000000;
  for (const std::string& file : files) {
    const struct stat one = statusOf(libraryPath(file));
    const struct stat other = statusOf(againPath(file));
    EXPECT_EQ(one.st_size, other.st_size) << file;
    EXPECT_EQ(one.st_mtime, other.st_mtime) << file;
    EXPECT_TRUE(bytesAt(libraryPath(file), 0, most) == bytesAt(againPath(file), 0, most)) << file;
    const auto end = static_cast<std::uint64_t>(std::max<off_t>(one.st_size - 65536, 0));
    EXPECT_TRUE(bytesAt(libraryPath(file), end, most) == bytesAt(againPath(file), end, most))
        << file;
  }
}

TEST(Library, KeepsItsLargeFileSparse) {
  const struct stat status = statusOf(libraryPath("Shared trip/Whole flight.mp4"));
  EXPECT_EQ(status.st_size, 3000000000);
  EXPECT_LT(status.st_blocks * 512, 1000000);
}

TEST(Library, IsSmallOnDisk) {
  std::int64_t blocks = 0;
  for (const std::string& file : filesBelow(libraryPath("")))
    blocks += statusOf(libraryPath(file)).st_blocks;
  EXPECT_LT(blocks * 512, 25000000);
}

TEST(Library, DatesItsFilesByTheirCapture) {
  const struct stat status = statusOf(libraryPath("100APPLE/IMG_0003.HEIC"));
  // 2019-05-04 18:57:31, ten hours behind UTC.
  EXPECT_EQ(status.st_mtime, 1557032251);
}

TEST(Library, CoversAllOrientationsAndQuartersOfTheEarth) {
  std::set<int> orientations;
  std::set<std::pair<bool, bool>> quarters;
  for (const Photo& photo : allPhotos()) {
    if (photo.orientation > 0) orientations.insert(photo.orientation);
    if (photo.place != nullptr)
      quarters.insert({photo.place->latitude > 0, photo.place->longitude > 0});
  }
  EXPECT_THAT(orientations, testing::ElementsAre(1, 2, 3, 4, 5, 6, 7, 8));
  EXPECT_EQ(quarters.size(), 4u);
}

TEST(Library, IsNotMadeAgainWhereItIsCurrent) {
  const struct stat before = statusOf(libraryPath("City/Tiles.bmp"));
  const model::Result<Outcome> outcome = makeLibrary(libraryPath(""), Rewrite::ifOutdated);
  ASSERT_TRUE(outcome) << outcome.error().reason;
  EXPECT_EQ(*outcome, Outcome::current);
  EXPECT_EQ(statusOf(libraryPath("City/Tiles.bmp")).st_ctim.tv_nsec, before.st_ctim.tv_nsec);
}

TEST(Library, SaysWhichFolderCannotBeMade) {
  const model::Result<Outcome> outcome = makeLibrary("/dev/null/library", Rewrite::always);
  ASSERT_FALSE(outcome);
  EXPECT_THAT(outcome.error().reason, testing::StartsWith("/dev/null/library: "));
}

}  // namespace
}  // namespace samples
