// SPDX-License-Identifier: MIT
#include "desktop/library/live_photo.h"

#include <gmock/gmock.h>

#include "desktop/library/photo_library.h"
#include "tests/support/library_folder.h"
#include "tests/support/movie_builder.h"
#include "tests/support/sample_photo.h"

namespace desktop::library {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string still(const std::string& identifier) {
  const auto bytes = media::facts::sampleJpeg({.contentIdentifier = identifier});
  return {bytes.begin(), bytes.end()};
}

std::string film(std::string_view identifier) {
  using namespace media::movie;
  const auto bytes = joined(
      {fileType("qt  "),
       box("moov", {movieHeader(600, 1780),
                    quickTimeMetadata({{"com.apple.quicktime.content.identifier", identifier}})})});
  return {bytes.begin(), bytes.end()};
}

TEST(StemOf, IsTheNameWithoutItsExtension) {
  EXPECT_EQ(stemOf("IMG_1.HEIC"), "IMG_1");
  EXPECT_EQ(stemOf("a.b.mov"), "a.b");
  EXPECT_EQ(stemOf("none"), "none");
}

class LivePhotoTest : public testing::Test {
 protected:
  void open() {
    auto opened = PhotoLibrary::open(folder.path(), foundation::DeviceRoot(_root.path()));
    ASSERT_TRUE(opened);
    library = *std::move(opened);
    library->waitAndDeliver();
  }
  std::vector<std::string> names() const { return folder.names(library->items()); }

  LibraryFolder folder;
  std::unique_ptr<PhotoLibrary> library;

 private:
  support::TemporaryFolder _root;
};

TEST_F(LivePhotoTest, ReadsTheIdentifierOfEitherHalf) {
  EXPECT_EQ(liveIdentifier(folder.write("a.jpg", still("ONE"))), "ONE");
  EXPECT_EQ(liveIdentifier(folder.write("a.mov", film("ONE"))), "ONE");
  EXPECT_EQ(liveIdentifier(folder.photo("plain.jpg")), "");
  EXPECT_EQ(liveIdentifier(folder.write("broken.mov", "x")), "");
  EXPECT_EQ(liveIdentifier(folder.file("none.jpg")), "");
}

TEST_F(LivePhotoTest, IsOneItemWithItsFilm) {
  folder.write("IMG_1.JPG", still("ONE"));
  folder.write("IMG_1.MOV", film("ONE"));
  open();
  ASSERT_THAT(names(), ElementsAre("IMG_1.JPG"));
  const ItemPointer photo = library->items()[0];
  ASSERT_TRUE(photo->isLivePhoto());
  EXPECT_EQ(folder.below(photo->film->path), "IMG_1.MOV");
  EXPECT_EQ(library->itemOf(photo->film->uuid), photo->film);
  EXPECT_FALSE(photo->film->isLivePhoto());
}

TEST_F(LivePhotoTest, HasOneNameAndOneIdentifier) {
  folder.write("another.JPG", still("ONE"));
  folder.write("another.MOV", film("TWO"));
  folder.write("name.JPG", still("ONE"));
  folder.write("names.MOV", film("ONE"));
  folder.write("plain.MOV", film(""));
  folder.photo("plain.jpg");
  open();
  EXPECT_EQ(library->items().size(), 6U);
}

TEST_F(LivePhotoTest, FollowsItsFilesAsTheyComeAndGo) {
  folder.write("a.mov", film("ONE"));
  open();
  ASSERT_THAT(names(), ElementsAre("a.mov"));
  folder.write("a.JPG", still("ONE"));
  library->waitAndDeliver();
  ASSERT_THAT(names(), ElementsAre("a.JPG"));
  const std::string film = library->items()[0]->film->uuid;
  std::remove(folder.file("a.JPG").c_str());
  library->waitAndDeliver();
  ASSERT_THAT(names(), ElementsAre("a.mov"));
  EXPECT_EQ(library->itemOf(film), library->items()[0]);
  std::remove(folder.file("a.mov").c_str());
  library->waitAndDeliver();
  EXPECT_THAT(names(), IsEmpty());
  EXPECT_FALSE(library->itemOf(film));
}

TEST_F(LivePhotoTest, IsTakenApartWhereAHalfIsAnotherOne) {
  folder.write("a.JPG", still("ONE"));
  folder.write("a.MOV", film("ONE"));
  open();
  folder.write("a.MOV", film("ANOTHER"));
  library->waitAndDeliver();
  EXPECT_EQ(library->items().size(), 2U);
  for (const ItemPointer& item : library->items()) EXPECT_FALSE(item->isLivePhoto());
}

TEST_F(LivePhotoTest, CountsOnceInItsAlbum) {
  folder.write("Trip/a.JPG", still("ONE"));
  folder.write("Trip/a.MOV", film("ONE"));
  open();
  ASSERT_EQ(library->albums().size(), 2U);
  EXPECT_EQ(library->albums()[1].items.size(), 1U);
}

}  // namespace
}  // namespace desktop::library
