// SPDX-License-Identifier: MIT
#include "lumifact/report/label.h"

#include <gtest/gtest.h>

namespace lumifact {
namespace {

constexpr Label shapes[] = {{-1, "Line"}, {1, "Circle"}, {4, "Star"}};

TEST(Label, FindsEveryRow) {
  for (const Label& shape : shapes) EXPECT_EQ(labelOf(shapes, shape.code), shape.text);
}

TEST(Label, HasNothingForOtherCodes) {
  for (const std::int64_t code : {-2, 0, 2, 3, 5}) EXPECT_EQ(labelOf(shapes, code), std::nullopt);
  EXPECT_EQ(labelOf({}, 1), std::nullopt);
}

TEST(Label, KeysAscendRefusesDoubledAndUnorderedCodes) {
  constexpr Label doubled[] = {{1, "a"}, {1, "b"}};
  constexpr Label doubledAtTheEnd[] = {{-1, "a"}, {2, "b"}, {2, "c"}};
  constexpr Label unordered[] = {{2, "a"}, {1, "b"}};
  constexpr Label unorderedInTheMiddle[] = {{1, "a"}, {3, "b"}, {2, "c"}, {4, "d"}};
  EXPECT_TRUE(keysAscend(shapes));
  EXPECT_FALSE(keysAscend(doubled));
  EXPECT_FALSE(keysAscend(doubledAtTheEnd));
  EXPECT_FALSE(keysAscend(unordered));
  EXPECT_FALSE(keysAscend(unorderedInTheMiddle));
}

TEST(Label, KeysOfShortTablesAscend) {
  constexpr Label single[] = {{1, "a"}};
  EXPECT_TRUE(keysAscend({}));
  EXPECT_TRUE(keysAscend(single));
}

}  // namespace
}  // namespace lumifact
