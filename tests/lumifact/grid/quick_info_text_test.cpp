// SPDX-License-Identifier: MIT
#include "lumifact/grid/quick_info_text.h"

#include <gtest/gtest.h>

#include <limits>

#include "lumifact/assets/file_names.h"

namespace lumifact {
namespace {

QuickInfo still() {
  QuickInfo info;
  info.path = shownPath("file:///var/mobile/Media/DCIM/100APPLE/IMG_0001.JPG");
  info.dateText = "Sep 30, 2018 at 2:03:11 PM";
  info.sizeText = "2.4 MB";
  info.pixelWidth = 4032;
  info.pixelHeight = 3024;
  info.exifOrientation = 6;
  info.place = "Cupertino";
  return info;
}

TEST(QuickInfoTextTest, theLabelledFormOfAStillHasSevenLines) {
  EXPECT_EQ(quickInfoText(still(), QuickInfoForm::labelled),
            "100APPLE/IMG_0001.JPG\n"
            "File Date: Sep 30, 2018 at 2:03:11 PM\n"
            "File Size: 2.4 MB\n"
            "Width: 4032\n"
            "Height: 3024\n"
            "Orientation: 90° CW - Portrait (6)\n"
            "Location: Cupertino");
}

TEST(QuickInfoTextTest, theCompactFormOfAStillHasSixLines) {
  EXPECT_EQ(quickInfoText(still(), QuickInfoForm::compact),
            "100APPLE/IMG_0001.JPG\n"
            "Sep 30, 2018 at 2:03:11 PM\n"
            "2.4 MB\n"
            "4032 x 3024\n"
            "90° CW - Portrait (6)\n"
            "Cupertino");
}

TEST(QuickInfoTextTest, aVideoShowsItsDurationAndNoOrientation) {
  QuickInfo info = still();
  info.isVideo = true;
  info.duration = 75.25;
  info.place.reset();
  EXPECT_EQ(quickInfoText(info, QuickInfoForm::labelled),
            "100APPLE/IMG_0001.JPG\n"
            "File Date: Sep 30, 2018 at 2:03:11 PM\n"
            "File Size: 2.4 MB\n"
            "Width: 4032\n"
            "Height: 3024\n"
            "Duration: 00:01:15.250");
  EXPECT_EQ(quickInfoText(info, QuickInfoForm::compact),
            "100APPLE/IMG_0001.JPG\n"
            "Sep 30, 2018 at 2:03:11 PM\n"
            "2.4 MB\n"
            "4032 x 3024\n"
            "00:01:15.250");
}

TEST(QuickInfoTextTest, everyOrientationHasItsName) {
  const struct {
    std::int64_t orientation;
    std::string line;
  } cases[] = {
      {1, "\nOrientation: 0° - Landscape (1)"},
      {2, "\nOrientation: 0° - Landscape, Mirrored (2)"},
      {3, "\nOrientation: 0° - Landscape (3)"},
      {4, "\nOrientation: 180° - Landscape, Mirrored (4)"},
      {5, "\nOrientation: 90° CW - Portrait,  Mirrored (5)"},
      {6, "\nOrientation: 90° CW - Portrait (6)"},
      {7, "\nOrientation: 90° CCW - Portrait,  Mirrored (7)"},
      {8, "\nOrientation: 90° CCW - Portrait (8)"},
      {0, ""},
      {9, ""},
      {-1, ""},
  };
  for (const auto& row : cases) {
    QuickInfo info = still();
    info.exifOrientation = row.orientation;
    info.place.reset();
    const std::string text = quickInfoText(info, QuickInfoForm::labelled);
    EXPECT_EQ(text.substr(text.find("Height: 3024") + 12), row.line) << row.orientation;
  }
}

TEST(QuickInfoTextTest, anEmptyPlaceNameIsStillAPlaceName) {
  QuickInfo info;
  info.place = "";
  EXPECT_EQ(quickInfoText(info, QuickInfoForm::labelled),
            "\nFile Date: \nFile Size: \nWidth: 0\nHeight: 0\nLocation: ");
}

TEST(DurationTextTest, truncatesToMilliseconds) {
  const struct {
    double seconds;
    std::string_view text;
  } cases[] = {
      {75.25, "00:01:15.250"},  {3725.5, "01:02:05.500"},  {0.04, "00:00:00.040"},
      {0, "00:00:00.000"},      {59.9999, "00:00:59.999"}, {3600, "01:00:00.000"},
      {359999, "99:59:59.000"}, {360000, "100:00:00.000"},
  };
  for (const auto& row : cases) EXPECT_EQ(durationText(row.seconds), row.text) << row.seconds;
}

TEST(DurationTextTest, survivesDurationsThatAreNone) {
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    double seconds;
    std::string_view text;
  } cases[] = {
      {-0.5, "00:00:-1.500"},
      {-3661, "-1:-1:-1.000"},
      {std::numeric_limits<double>::quiet_NaN(), "00:00:00.000"},
      {infinity, "596523:14:07.2147483647"},
      {1e300, "596523:14:07.2147483647"},
      {-infinity, "-596523:-14:-8.-2147483648"},
  };
  for (const auto& row : cases) EXPECT_EQ(durationText(row.seconds), row.text) << row.seconds;
}

}  // namespace
}  // namespace lumifact
