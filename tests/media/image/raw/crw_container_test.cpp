// SPDX-License-Identifier: MIT
#include "media/image/raw/crw_container.h"

#include <gtest/gtest.h>

#include <bit>

#include "tests/media/image/container_builder.h"
#include "tests/media/image/raw/raw_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

std::string longsOf(const std::vector<std::uint32_t>& numbers) {
  std::string bytes;
  for (const std::uint32_t number : numbers) bytes += littleEndian(number, 4);
  return bytes;
}

std::string realsOf(const std::vector<float>& numbers) {
  std::string bytes;
  for (const float number : numbers) bytes += littleEndian(std::bit_cast<std::uint32_t>(number), 4);
  return bytes;
}

std::string shotOf(int gain, int speed) {
  return littleEndian(66, 2) + littleEndian(static_cast<std::uint64_t>(gain), 2) +
         littleEndian(static_cast<std::uint64_t>(speed), 2);
}

CiffEntry imageSpec(std::uint32_t rotation = 0) {
  return {0x1810, longsOf({3072, 2048, 0x3F800000, rotation, 8, 24, 257})};
}

std::string crwOf(std::vector<CiffEntry> properties) {
  return crwFile({{0x2005, "sensor"}, {0x300A, ciffHeap(properties)}});
}

TEST(CrwContainer, readsTheRecordsOfHeapsInsideHeaps) {
  const std::string camera = ciffHeap(
      {{0x0810, "Somebody\0\0\0"s},
       {0x080A, "Canon\0Canon EOS DIGITAL REBEL\0"s},
       {0x3004,
        ciffHeap({{0x080B, "Firmware 1.1.1\0"s}, {0x180B, littleEndian(560018150, 4), true}})}});
  const std::string exposure =
      ciffHeap({{0x102A, shotOf(0, 160)}, {0x1818, realsOf({0.5F, 6.0F, 3.625F})}});
  const auto properties = propertiesOf(crwOf({imageSpec(),
                                              {0x0805, "a comment\0"s},
                                              {0x180E, longsOf({1068485966, 0, 0})},
                                              {0x1817, littleEndian(1161602, 4), true},
                                              {0x2804, ciffHeap({{0x0805, "CMOS RAW\0"s}})},
                                              {0x2807, camera},
                                              {0x300B, exposure}}));
  EXPECT_EQ(
      properties,
      (model::Dictionary{{"ColorModel", "RGB"},
                         {"Orientation", 1},
                         {"PixelHeight", 2048},
                         {"PixelWidth", 3072},
                         {"{CIFF}", model::Dictionary{{"CameraSerialNumber", 560018150},
                                                      {"Description", "CMOS RAW"},
                                                      {"Firmware", "Firmware 1.1.1"},
                                                      {"ImageSerialNumber", 1161602},
                                                      {"OwnerName", "Somebody"}}},
                         {"{Exif}", model::Dictionary{{"ApertureValue", 3.625},
                                                      {"DateTimeOriginal", "2003:11:10 17:39:26"},
                                                      {"ExposureBiasValue", 0.5},
                                                      {"ISOSpeedRatings", model::Array{100}},
                                                      {"ShutterSpeedValue", 6.0}}},
                         {"{TIFF}", model::Dictionary{{"Make", "Canon"},
                                                      {"Model", "Canon EOS DIGITAL REBEL"},
                                                      {"Orientation", 1}}}}));
}

TEST(CrwContainer, theRotationIsAnOrientation) {
  const std::pair<std::uint32_t, int> cases[] = {
      {0, 1}, {90, 6}, {180, 3}, {270, 8}, {0xFFFFFFA6, 8}};  // -90
  for (const auto& [degrees, orientation] : cases) {
    EXPECT_EQ(*entry(propertiesOf(crwOf({imageSpec(degrees)})), "", "Orientation"), orientation);
  }
  EXPECT_FALSE(entry(propertiesOf(crwOf({imageSpec(45)})), "", "Orientation"));
}

TEST(CrwContainer, aSpeedOrTimeThatIsNoneIsNotShown) {
  const auto properties = propertiesOf(crwOf(
      {imageSpec(),
       {0x180E, longsOf({0, 0, 0})},
       {0x300B, ciffHeap({{0x102A, shotOf(0, 0)}, {0x1818, longsOf({0x7FC00000, 0x7F800000})}})}}));
  EXPECT_FALSE(entry(properties, "", "{Exif}"));
}

TEST(CrwContainer, heapsThatHoldThemselvesEnd) {
  std::string itself = crwFile({imageSpec(), {0x300A, "heap"}});
  const std::size_t heapSize = itself.size() - 26;
  // The second entry: code, size, offset, before the four bytes at the end.
  itself.replace(itself.size() - 12, 8, littleEndian(heapSize, 4) + littleEndian(0, 4));
  EXPECT_EQ(*entry(propertiesOf(itself), "", "PixelWidth"), 3072);
}

TEST(CrwContainer, saysWhyThereIsNoSize) {
  const std::string whole = crwOf({imageSpec()});
  EXPECT_EQ(errorOf(whole.substr(0, 20)), "truncated CRW");
  EXPECT_EQ(errorOf(whole.substr(0, 40)), "truncated CRW");
  EXPECT_EQ(errorOf(crwOf({})), "damaged CRW");
}

}  // namespace
}  // namespace media::image
