// SPDX-License-Identifier: MIT
#include "desktop/imageio/time_offsets.h"

#include <gtest/gtest.h>

namespace desktop::imageio {
namespace {

using model::Dictionary;

TEST(TimeOffsets, areTakenOutOfTheSection) {
  Dictionary properties{{"{Exif}", Dictionary{{"OffsetTime", "+01:00"},
                                              {"OffsetTimeOriginal", "+02:00"},
                                              {"OffsetTimeDigitized", "+03:00"},
                                              {"Flash", 0}}}};
  EXPECT_EQ(takeTimeOffsets(properties), "+02:00");
  EXPECT_EQ(properties, (Dictionary{{"{Exif}", Dictionary{{"Flash", 0}}}}));
}

TEST(TimeOffsets, aSectionOfNothingElseGoes) {
  Dictionary properties{{"{Exif}", Dictionary{{"OffsetTime", "+01:00"}}}};
  EXPECT_EQ(takeTimeOffsets(properties), std::nullopt);
  EXPECT_TRUE(properties.empty());
}

TEST(TimeOffsets, otherPropertiesStayAsTheyAre) {
  for (const Dictionary& before :
       {Dictionary{}, Dictionary{{"{Exif}", 5}}, Dictionary{{"{Exif}", Dictionary{}}}}) {
    Dictionary properties = before;
    EXPECT_EQ(takeTimeOffsets(properties), std::nullopt);
    EXPECT_EQ(properties, before);
  }
}

}  // namespace
}  // namespace desktop::imageio
