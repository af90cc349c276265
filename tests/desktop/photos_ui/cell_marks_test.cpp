// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/cells/cell_marks.h"

#include <gmock/gmock.h>

#include "desktop/photos_ui/cells/item_badge.h"
#include "desktop/uikit/graphics/encodings.h"
#include "tests/desktop/uikit/application_test.h"
#include "tests/desktop/uikit/recording_canvas.h"

namespace desktop::photos_ui {
namespace {

using testing::SizeIs;
using Fills = std::vector<uikit::RecordingCanvas::Fill>;

class CellMarkTest : public uikit::ApplicationTest {
 protected:
  static Fills fillsOf(CellMark::Kind kind, CGRect frame) {
    const auto mark = CellMark::make(kind);
    mark->setFrame(frame);
    uikit::RecordingCanvas canvas;
    send<void, "drawContentOn:">(mark, static_cast<uikit::Canvas*>(&canvas));
    return canvas.fills;
  }
};

TEST_F(CellMarkTest, TheTickStandsAtTheUpperRightClearOfBadgeAndCaption) {
  constexpr CGFloat caption = 16;  // points, as others put it below the badge
  for (const CGFloat side : {79, 93, 186}) {
    const Fills fills = fillsOf(CellMark::Kind::selected, {{0, 0}, {side, side}});
    ASSERT_THAT(fills, SizeIs(2)) << "the veil and the circle behind the tick";
    const CGRect circle = fills[1].rect;
    EXPECT_EQ(circle, (CGRect{{side - 26, 4}, {22, 22}}));
    EXPECT_LT(uikit::bottom(circle), side - caption - ItemBadge::height);
  }
}

TEST_F(CellMarkTest, AnItemUnderAFingerIsDarkerAndHasNoTick) {
  const Fills fills = fillsOf(CellMark::Kind::pressed, {{0, 0}, {93, 93}});
  ASSERT_THAT(fills, SizeIs(1));
  EXPECT_EQ(fills[0].color, uikit::Color::white(0, 0.3));
}

TEST_F(CellMarkTest, TakesNoTouches) {
  const auto mark = CellMark::make(CellMark::Kind::selected);
  mark->setFrame({{0, 0}, {93, 93}});
  EXPECT_FALSE(mark->hitTest({40, 40}, {}));
}

}  // namespace
}  // namespace desktop::photos_ui
