// SPDX-License-Identifier: MIT
#include "media/image/raw/mrw_container.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"
#include "tests/media/image/raw/raw_builder.h"

namespace media::image {
namespace {

TEST(MrwContainer, readsTheSensorsBlockAndTheTiffStructure) {
  const auto properties =
      propertiesOf(mrwFile(mrwSensor(3264, 2448, 12) + mrwBlock("WBG", "white") +
                           mrwBlock("TTW", exifBlock("Minolta", 3))));
  EXPECT_EQ(*entry(properties, "", "PixelWidth"), 3264);
  EXPECT_EQ(*entry(properties, "", "PixelHeight"), 2448);
  EXPECT_EQ(*entry(properties, "", "ColorModel"), "RGB");
  EXPECT_EQ(*entry(properties, "", "Depth"), 12);
  EXPECT_EQ(*entry(properties, "", "Orientation"), 3);
  EXPECT_EQ(*entry(properties, "", "DPIWidth"), 300.0);
  EXPECT_EQ(*entry(properties, "{TIFF}", "Make"), "Minolta");
}

TEST(MrwContainer, blocksOfNoSizeEnd) {
  std::string blocks;
  for (int index = 0; index < 100'000; ++index) blocks += mrwBlock("PAD", "");
  EXPECT_EQ(errorOf(mrwFile(blocks + mrwSensor(8, 6, 12))), "damaged MRW");
}

TEST(MrwContainer, saysWhyThereIsNoSize) {
  const std::string whole = mrwFile(mrwSensor(3264, 2448, 12));
  EXPECT_EQ(errorOf(whole.substr(0, 14)), "truncated MRW");
  EXPECT_EQ(errorOf(mrwFile(mrwSensor(0, 2448, 12))), "damaged MRW");
}

}  // namespace
}  // namespace media::image
