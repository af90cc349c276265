// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/preview_card.h"

#include <gtest/gtest.h>

#include "desktop/uikit/base/geometry.h"

namespace desktop::photos_ui {
namespace {

TEST(PreviewCard, LiesInTheMiddleAsLargeAsThereIsRoom) {
  constexpr CGRect room = {{0, 0}, {332, 464}};
  const struct {
    const char* what;
    CGSize shape;
    CGRect frame;
  } rows[] = {
      {"a square", {1, 1}, {{16, 82}, {300, 300}}},
      {"lying", {4000, 3000}, {{16, 119.5}, {300, 225}}},
      {"as high as there is room", {3, 4}, {{16, 32}, {300, 400}}},
      {"higher", {3, 8}, {{91, 32}, {150, 400}}},
      {"lower than a card may be", {100, 1}, {{16, 184}, {300, 96}}},
  };
  for (const auto& row : rows) EXPECT_EQ(cardFrame(room, row.shape), row.frame) << row.what;
}

}  // namespace
}  // namespace desktop::photos_ui
