// SPDX-License-Identifier: MIT
//
// Image sources as an extension uses them, over files on disk.
#include "media/image/image_source.h"

#include <gtest/gtest.h>

#include "bridge/bound.h"
#include "bridge/convert.h"
#include "bridge/imageio.h"
#include "desktop/faces/foundation/foundation_runtime.h"
#include "desktop/platform.h"
#include "io/byte_source.h"
#include "tests/support/sample_photo.h"
#include "tests/support/temporary_folder.h"

namespace desktop::faces {
namespace {

class ImageSourceTest : public testing::Test {
 protected:
  ImageSourceTest() {
    correctFoundation({.root = foundation::DeviceRoot(_folder.path()), .bundleIdentifier = {}});
  }

  static ImageSource open(const std::string& link) {
    return openImageSource(NSURL::withString(NSString::make(link)));
  }

  support::TemporaryFolder _folder;
  const AutoreleasePool _pool;
};

TEST_F(ImageSourceTest, givesThePropertiesOfAnImageOfThePhone) {
  const std::string path =
      _folder.write("var/mobile/Media/DCIM/a b.JPG",
                    media::facts::sampleJpeg({.make = "Müller",
                                              .dateTimeOriginal = "2018:09:30 14:03:11",
                                              .location = model::Location{48.8577, -2.295},
                                              .city = "Paris"}));
  const auto source = open("file:///var/mobile/Media/DCIM/a%20b.JPG");
  ASSERT_TRUE(source);
  const auto properties = copyImageProperties(source);
  const auto expected = media::image::copyProperties(**io::FileSource::open(path));
  ASSERT_TRUE(expected && *expected);
  EXPECT_EQ(toValue(properties), model::Value(**expected));
}

TEST_F(ImageSourceTest, anImageMayLieAnywhereUnderAnyName) {
  _folder.write("\xFF?#.jpg", media::facts::sampleJpeg({}));
  EXPECT_TRUE(copyImageProperties(open("file://" + _folder.path() + "/%FF%3F%23.jpg")));
}

TEST_F(ImageSourceTest, anyFileOpensButOnlyImagesHaveProperties) {
  for (const std::string_view bytes : {"a text", "\xFF\xD8\xFF", ""}) {
    _folder.write("file", bytes);
    const auto source = open("file://" + _folder.path() + "/file");
    ASSERT_TRUE(source) << bytes;
    EXPECT_FALSE(copyImageProperties(source)) << bytes;
  }
}

TEST_F(ImageSourceTest, onlyTheFirstImageIsRead) {
  _folder.write("a.jpg", media::facts::sampleJpeg({}));
  const auto source = open("file://" + _folder.path() + "/a.jpg");
  ASSERT_TRUE(source);
  EXPECT_EQ(CGImageSourceCopyPropertiesAtIndex(source.get(), 1, nullptr), nullptr);
}

TEST_F(ImageSourceTest, whatIsNoFileGivesNoSource) {
  EXPECT_FALSE(open("file://" + _folder.path() + "/none.jpg"));
  EXPECT_FALSE(open("file://" + _folder.path()));
  EXPECT_FALSE(open("http://example.com/a.jpg"));
  EXPECT_FALSE(open("file:///var/mobile/none.jpg"));
  EXPECT_FALSE(openImageSource(NSURL()));
  EXPECT_EQ(CGImageSourceCreateWithURL(nullptr, nullptr), nullptr);
  EXPECT_EQ(CGImageSourceCopyPropertiesAtIndex(nullptr, 0, nullptr), nullptr);
}

TEST_F(ImageSourceTest, aReleasedSourceIsGone) {
  _folder.write("a.jpg", media::facts::sampleJpeg({}));
  const long before = liveBoundObjects();
  {
    const auto source = open("file://" + _folder.path() + "/a.jpg");
    EXPECT_EQ(liveBoundObjects(), before + 1);
  }
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::faces
