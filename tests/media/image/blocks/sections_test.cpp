// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "media/image/blocks/metadata_blocks.h"

namespace media::image {
namespace {

TEST(Sections, aMissingSectionIsMadeOnce) {
  model::Dictionary properties;
  section(properties, "{Exif}")["Flash"] = 1;
  section(properties, "{Exif}")["FNumber"] = 2.8;
  EXPECT_EQ(properties.at("{Exif}"),
            model::Value(model::Dictionary{{"Flash", 1}, {"FNumber", 2.8}}));
}

TEST(Sections, aValueOfAnotherKindMakesRoomForTheSection) {
  model::Dictionary properties{{"{Exif}", "text"}};
  EXPECT_TRUE(section(properties, "{Exif}").empty());
}

TEST(Sections, theFirstValueOfAKeyStays) {
  model::Dictionary dictionary;
  setIfAbsent(dictionary, "Make", "first");
  setIfAbsent(dictionary, "Make", "second");
  EXPECT_EQ(dictionary, (model::Dictionary{{"Make", "first"}}));
}

}  // namespace
}  // namespace media::image
