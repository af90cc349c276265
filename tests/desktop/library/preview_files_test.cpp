// SPDX-License-Identifier: MIT
#include "desktop/library/preview_files.h"

#include <gtest/gtest.h>

namespace desktop::library {
namespace {

TEST(PreviewFilesTest, lieBelowPhotoData) {
  const struct {
    std::string_view path;
    std::string_view stem;
  } cases[] = {
      {"/var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG", "/DCIM/100APPLE/IMG_0001"},
      {"/var/mobile/Media/a.b/c", "/a.b/c"},
      {"/home/me/p.q/x.y.heic", "/home/me/p.q/x.y"},
      {"/var/mobile/MediaOther/a.jpg", "/var/mobile/MediaOther/a"},
      {"/a.jpg", "/a"},
      {"/.jpg", "/.jpg"},
  };
  const std::string data = "/var/mobile/Media/PhotoData";
  for (const auto& [path, stem] : cases) {
    const PreviewFiles files = previewFilesOf(path);
    EXPECT_EQ(files.fullsizeImage, data + "/Mutations" + std::string(stem) + "full.JPG");
    EXPECT_EQ(files.largePreview, data + "/Thumbnails" + std::string(stem) + "large.JPG");
    EXPECT_EQ(files.mediumPreview, data + "/Metadata" + std::string(stem) + "medium.JPG");
  }
}

}  // namespace
}  // namespace desktop::library
