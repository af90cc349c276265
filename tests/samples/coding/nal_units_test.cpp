// SPDX-License-Identifier: MIT
#include "samples/coding/nal_units.h"

#include <gtest/gtest.h>

namespace samples {
namespace {

std::vector<Bytes> unitsOf(const Bytes& stream) {
  std::vector<Bytes> units;
  for (const auto unit : nalUnits(stream)) units.emplace_back(unit.begin(), unit.end());
  return units;
}

TEST(NalUnits, LieBetweenStartCodesOfThreeOrFourBytes) {
  const Bytes stream = {0, 0, 0, 1, 0x67, 9, 0, 0, 1, 0x68, 8, 0, 0, 0, 1, 0x65, 7};
  EXPECT_EQ(unitsOf(stream), (std::vector<Bytes>{{0x67, 9}, {0x68, 8}, {0x65, 7}}));
}

TEST(NalUnits, AreNoneWithoutAStartCode) {
  EXPECT_TRUE(unitsOf({}).empty());
  EXPECT_TRUE(unitsOf({1, 2, 3, 4}).empty());
}

TEST(NalUnits, OfPicturesGetTheirLengthsAndParameterSetsAreLeftOut) {
  const Bytes avc = {0, 0, 1, 0x67, 9, 0, 0, 1, 0x65, 7, 8};
  EXPECT_EQ(lengthPrefixedAvc(avc), (Bytes{0, 0, 0, 3, 0x65, 7, 8}));
  const Bytes hevc = {0, 0, 1, 0x40, 1, 0, 0, 1, 0x26, 1, 5};
  EXPECT_EQ(lengthPrefixedHevc(hevc), (Bytes{0, 0, 0, 3, 0x26, 1, 5}));
}

TEST(NalUnits, GiveNoConfigurationWhereSetsAreMissing) {
  EXPECT_TRUE(avcConfiguration(Bytes{0, 0, 1, 0x67, 66, 0, 30}).empty());
  EXPECT_TRUE(hevcConfiguration(Bytes{0, 0, 1, 0x40, 1, 0, 0, 1, 0x42, 1}).empty());
}

TEST(NalUnits, GiveTheProfileAndLevelToTheConfiguration) {
  const Bytes record = avcConfiguration(Bytes{0, 0, 1, 0x67, 66, 0, 30, 0, 0, 1, 0x68, 5});
  EXPECT_EQ(record, (Bytes{1, 66, 0, 30, 0xFF, 0xE1, 0, 4, 0x67, 66, 0, 30, 1, 0, 2, 0x68, 5}));
}

}  // namespace
}  // namespace samples
