// SPDX-License-Identifier: MIT
#include "media/image/other/tga_container.h"

#include <gtest/gtest.h>

#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

struct TgaToWrite {
  int kind = 2;
  int bits = 24;
  int descriptor = 0;
  int paletteBits = 0;
  int width = 640;
};

std::string tgaFile(const TgaToWrite& tga) {
  const auto number = [](int value, int bytes) {
    return littleEndian(static_cast<std::uint64_t>(value), bytes);
  };
  const bool hasPalette = tga.paletteBits > 0;
  return "\0"s + number(hasPalette ? 1 : 0, 1) + number(tga.kind, 1) + number(0, 2) +
         number(hasPalette ? 256 : 0, 2) + number(tga.paletteBits, 1) + number(0, 4) +
         number(tga.width, 2) + number(480, 2) + number(tga.bits, 1) + number(tga.descriptor, 1) +
         "pixels";
}

TEST(TgaContainer, readsEveryKind) {
  struct Case {
    TgaToWrite tga;
    const char* colorModel;
    int depth;
  };
  const Case cases[] = {
      {{.kind = 1, .bits = 8, .paletteBits = 24}, "RGB", 8},
      {{.kind = 9, .bits = 8, .paletteBits = 16}, "RGB", 5},
      {{.kind = 2, .bits = 24, .descriptor = 0x20}, "RGB", 8},
      {{.kind = 10, .bits = 16}, "RGB", 5},
      {{.kind = 3, .bits = 8}, "Gray", 8},
      {{.kind = 11, .bits = 8}, "Gray", 8},
  };
  for (const Case& each : cases) {
    const auto properties = propertiesOf(tgaFile(each.tga));
    EXPECT_EQ(*entry(properties, "", "PixelWidth"), 640) << each.tga.kind;
    EXPECT_EQ(*entry(properties, "", "PixelHeight"), 480) << each.tga.kind;
    EXPECT_EQ(*entry(properties, "", "ColorModel"), each.colorModel) << each.tga.kind;
    EXPECT_EQ(*entry(properties, "", "Depth"), each.depth) << each.tga.kind;
    EXPECT_EQ(entry(properties, "", "IsIndexed") != nullptr, each.tga.paletteBits > 0);
  }
}

TEST(TgaContainer, alphaIsWhatTheDescriptorCounts) {
  EXPECT_TRUE(entry(propertiesOf(tgaFile({.bits = 32, .descriptor = 8})), "", "HasAlpha"));
  EXPECT_FALSE(entry(propertiesOf(tgaFile({.bits = 32})), "", "HasAlpha"));
}

TEST(TgaContainer, aHeaderThatCannotBeOneIsNone) {
  const TgaToWrite cases[] = {
      {.kind = 0},
      {.kind = 4},
      {.kind = 1, .bits = 8},
      {.kind = 1, .bits = 16, .paletteBits = 24},
      {.kind = 1, .bits = 8, .paletteBits = 23},
      {.kind = 2, .bits = 24, .paletteBits = 24},
      {.kind = 2, .bits = 8},
      {.kind = 2, .bits = 24, .descriptor = 8},
      {.kind = 2, .bits = 32, .descriptor = 7},
      {.kind = 3, .bits = 24},
      {.kind = 2, .bits = 24, .descriptor = 0x40},
      {.width = 0},
  };
  for (const TgaToWrite& tga : cases) {
    EXPECT_EQ(errorOf(tgaFile(tga)), "none") << tga.kind << " " << tga.bits;
  }
  EXPECT_EQ(errorOf(tgaFile({}).substr(0, 17)), "none");
}

}  // namespace
}  // namespace media::image
