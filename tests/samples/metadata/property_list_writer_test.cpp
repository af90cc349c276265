// SPDX-License-Identifier: MIT
#include "samples/metadata/property_list_writer.h"

#include <gtest/gtest.h>

namespace samples {
namespace {

TEST(PropertyListWriter, WritesOneObject) {
  const Bytes expected = {'b',  'p', 'l', 'i', 's', 't', '0', '0',
                          0x10, 7,   0,   8,                        // 7 and its offset
                          0,    0,   0,   0,   0,   0,   2,   1,    // widths
                          0,    0,   0,   0,   0,   0,   0,   1,    // objects
                          0,    0,   0,   0,   0,   0,   0,   0,    // root
                          0,    0,   0,   0,   0,   0,   0,   10};  // table
  EXPECT_EQ(binaryPropertyList(7), expected);
}

TEST(PropertyListWriter, PutsKeysAndValuesBeforeTheirDictionary) {
  const Bytes list = binaryPropertyList(model::Dictionary{{"a", 1}});
  EXPECT_EQ(Bytes(list.begin() + 8, list.begin() + 15), (Bytes{0x51, 'a', 0x10, 1, 0xD1, 0, 1}));
}

TEST(PropertyListWriter, SpellsLongLengthsOut) {
  const Bytes list = binaryPropertyList(model::Data(512));
  EXPECT_EQ(Bytes(list.begin() + 8, list.begin() + 12), (Bytes{0x4F, 0x11, 2, 0}));
}

TEST(PropertyListWriter, WidensIntegersAsNeeded) {
  struct {
    std::int64_t value;
    std::uint8_t mark;
  } const cases[] = {{255, 0x10}, {256, 0x12}, {4294967295, 0x12}, {4294967296, 0x13}, {-1, 0x13}};
  for (const auto& each : cases)
    EXPECT_EQ(binaryPropertyList(each.value)[8], each.mark) << each.value;
}

}  // namespace
}  // namespace samples
