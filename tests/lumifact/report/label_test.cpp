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
  constexpr Label unordered[] = {{2, "a"}, {1, "b"}};
  EXPECT_TRUE(keysAscend(shapes));
  EXPECT_FALSE(keysAscend(doubled));
  EXPECT_FALSE(keysAscend(unordered));
}

}  // namespace
}  // namespace lumifact
