// SPDX-License-Identifier: MIT
#include "lumifact/grid/caption_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumifact {
namespace {

TEST(FileTypeNameTest, isFoundAnywhereInTheIdentifier) {
  const struct {
    std::string_view identifier;
    std::string_view name;
  } cases[] = {
      {"com.apple.quicktime-movie", "mov"},
      {"public.mpeg-4", "mp4"},
      {"public.mpeg-4-audio", "mp4"},
      {"public.jpeg", "jpg"},
      {"public.jpeg-2000", "jpg"},
      {"public.png", "png"},
      {"com.compuserve.gif", "gif"},
      {"public.tiff", "tif"},
      {"com.microsoft.bmp", "bmp"},
      {"jpeg", "jpg"},
      {"", ""},
      {"public.heic", ""},
      {"public.heif", ""},
      {"com.apple.m4v-video", ""},
      {"public.JPEG", ""},
      {"quicktime-movie", ""},
  };
  for (const auto& row : cases) {
    EXPECT_EQ(fileTypeName(row.identifier), row.name) << row.identifier;
  }
}

TEST(FileTypeNameTest, aSearchTextInsideAnotherWordCounts) {
  EXPECT_EQ(fileTypeName("org.webmproject.webp"), "bmp");  // "we-bmp-roject"
}

TEST(FileTypeNameTest, theFirstRowThatIsFoundWins) {
  EXPECT_EQ(fileTypeName("png.jpeg"), "jpg");
  EXPECT_EQ(fileTypeName("gif.png"), "png");
  EXPECT_EQ(fileTypeName("jpeg.mpeg-4"), "mp4");
  EXPECT_EQ(fileTypeName("mpeg-4.com.apple.quicktime-movie"), "mov");
  EXPECT_EQ(fileTypeName("bmp.tif"), "tif");
}

std::string size() {
  return "2.4 MB";
}

TEST(CaptionTextTest, valueOneShowsPixelSizeAndType) {
  EXPECT_EQ(captionText(1, 4032, 3024, "jpg", size), "4032x3024, jpg");
}

TEST(CaptionTextTest, aTypeWithoutANameLeavesACommaAndABlank) {
  EXPECT_EQ(captionText(1, 4032, 3024, fileTypeName("public.heic"), size), "4032x3024, ");
}

TEST(CaptionTextTest, valueOneAsksForNoSize) {
  EXPECT_EQ(captionText(1, 1, 2, "gif",
                        [] {
                          ADD_FAILURE() << "the size was asked for";
                          return std::string();
                        }),
            "1x2, gif");
}

TEST(CaptionTextTest, valueTwoShowsSizeAndType) {
  EXPECT_EQ(captionText(2, 4032, 3024, "jpg", size), "2.4 MB, jpg");
}

TEST(CaptionTextTest, valueThreeShowsPixelSizeAndSize) {
  EXPECT_EQ(captionText(3, 4032, 3024, "jpg", size), "4032x3024, 2.4 MB");
}

TEST(CaptionTextTest, anyOtherValueShowsNothing) {
  for (const std::int32_t display : {0, 4, -1, 100, std::numeric_limits<std::int32_t>::max()}) {
    EXPECT_EQ(captionText(display, 4032, 3024, "jpg", size), std::nullopt) << display;
  }
}

}  // namespace
}  // namespace lumifact
