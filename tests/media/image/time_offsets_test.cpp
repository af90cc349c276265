// SPDX-License-Identifier: MIT
#include "media/image/time_offsets.h"

#include <gtest/gtest.h>

#include "media/image/image_source.h"
#include "tests/support/tiff_builder.h"

namespace media::image {
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

TEST(TimeOffsets, stayBesideTheDictionaryOfAnImage) {
  const Bytes bytes =
      buildTiff(io::ByteOrder::big,
                {{longs(0x0100, {8}), longs(0x0101, {8}), pointerTo(0x8769, 1)},
                 {ascii(0x9010, "+01:00"), ascii(0x9011, "-03:30"), shorts(0x9209, {1})}});
  io::MemorySource source(bytes);
  const auto facts = readImageFacts(source);
  ASSERT_TRUE(facts && *facts);
  EXPECT_EQ((*facts)->offsetTimeOriginal, "-03:30");
  EXPECT_EQ((*facts)->properties.at("{Exif}"), model::Value(Dictionary{{"Flash", 1}}));
  const auto properties = copyProperties(source);
  ASSERT_TRUE(properties && *properties);
  EXPECT_EQ(**properties, (*facts)->properties);
}

}  // namespace
}  // namespace media::image
