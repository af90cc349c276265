// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/ui_table_view_cell.h"

#include <gtest/gtest.h>

#include "desktop/uikit/graphics/ui_image.h"
#include "desktop/uikit/lists/table/table_cell_layout.h"
#include "desktop/uikit/views/ui_view.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

class UITableViewCellTest : public ApplicationTest {
 protected:
  UITableViewCell show(NSInteger style) {
    _cell =
        UITableViewCell::make(static_cast<UITableViewCell::Style>(style), NSString::make("cell"));
    _cell->setFrame({{0, 100}, {375, 44}});
    UITableViewCellState::of(_cell.get()).setSeparators({.below = true, .insetBelow = 16});
    window().addSubview(_cell);
    return _cell;
  }

  UITableViewCellState& cell() { return UITableViewCellState::of(_cell.get()); }
  static NSString text(std::size_t letters) { return NSString::make(std::string(letters, 'm')); }
  static CGFloat widthOf(std::size_t letters) { return static_cast<CGFloat>(letters) * 17 * 0.6; }

  Owned<UITableViewCell> _cell;
};

TEST_F(UITableViewCellTest, TitleAndDetailStandAtTheEdges) {
  show(UITableViewCellState::value1);
  _cell->textLabel().setText(text(5));
  _cell->detailTextLabel().setText(text(4));
  application().prepareFrame();
  EXPECT_EQ(cell().contentView().frame(), (CGRect{{0, 0}, {375, 43.5}}));
  EXPECT_EQ(_cell->textLabel().frame().origin.x, 16);
  EXPECT_NEAR(_cell->textLabel().frame().size.width, widthOf(5), 1);
  EXPECT_DOUBLE_EQ(right(_cell->detailTextLabel().frame()), 359);
  EXPECT_NEAR(_cell->detailTextLabel().frame().size.width, widthOf(4), 1);
  EXPECT_NEAR(middle(_cell->textLabel().frame()).y, 21.75, 0.5);
}

TEST_F(UITableViewCellTest, ADisclosureIndicatorTakesRoom) {
  show(UITableViewCellState::value1);
  _cell->setAccessoryType(UITableViewCell::disclosureIndicator);
  _cell->detailTextLabel().setText(text(4));
  application().prepareFrame();
  EXPECT_EQ(cell().contentView().frame().size.width, 341);
  EXPECT_DOUBLE_EQ(right(_cell->detailTextLabel().frame()), 341);
}

TEST_F(UITableViewCellTest, LongTextsShareTheirRoom) {
  struct Case {
    std::size_t title;
    std::size_t detail;
    CGFloat titleWidth;
  };
  const CGFloat room = 375 - 16 - 16 - 6;
  for (const auto& [title, detail, width] :
       {Case{100, 100, room / 2}, Case{5, 100, widthOf(5)}, Case{100, 5, room - widthOf(5)},
        Case{5, 10'000'000, widthOf(5)}}) {
    show(UITableViewCellState::value1);
    _cell->textLabel().setText(text(title));
    _cell->detailTextLabel().setText(text(detail));
    application().prepareFrame();
    const CGRect left = _cell->textLabel().frame();
    const CGRect other = _cell->detailTextLabel().frame();
    EXPECT_NEAR(left.size.width, width, 1) << title << " beside " << detail;
    EXPECT_NEAR(left.size.width + other.size.width, room, 0.001) << title << " beside " << detail;
    EXPECT_NEAR(other.origin.x - right(left), 6, 0.001) << title << " beside " << detail;
    _cell->removeFromSuperview();
  }
}

TEST_F(UITableViewCellTest, ASubtitleStandsBelowItsTitle) {
  show(UITableViewCellState::subtitle);
  _cell->textLabel().setText(text(3));
  _cell->detailTextLabel().setText(text(3));
  application().prepareFrame();
  EXPECT_EQ(_cell->detailTextLabel().frame().origin.x, 16);
  EXPECT_GE(_cell->detailTextLabel().frame().origin.y, bottom(_cell->textLabel().frame()));
  EXPECT_LE(bottom(_cell->detailTextLabel().frame()), 44);
  _cell->detailTextLabel().setText({});
  application().prepareFrame();
  EXPECT_NEAR(middle(_cell->textLabel().frame()).y, 21.75, 0.5);
}

TEST_F(UITableViewCellTest, OnlySomeStylesHaveADetail) {
  EXPECT_FALSE(show(UITableViewCellState::plain).detailTextLabel());
  for (const NSInteger style :
       {UITableViewCellState::value1, UITableViewCellState::value2, UITableViewCellState::subtitle})
    EXPECT_TRUE(show(style).detailTextLabel()) << style;
}

TEST_F(UITableViewCellTest, APictureMovesTheText) {
  show(UITableViewCellState::plain);
  auto bitmap = std::make_shared<Bitmap>();
  bitmap->width = bitmap->height = 60;
  bitmap->pixels.resize(60 * 60);
  _cell->textLabel().setText(text(3));
  send<void, "setImage:">(cell().imageView(), UIImageState::make(bitmap, 2));
  application().prepareFrame();
  EXPECT_EQ(cell().imageView().frame().size, (CGSize{30, 30}));
  EXPECT_EQ(_cell->textLabel().frame().origin.x, 16 + 30 + 16);
}

TEST_F(UITableViewCellTest, AnAccessoryViewStandsAtTheRight) {
  show(UITableViewCellState::plain);
  const auto first = bridge::makeView<UIView>({{0, 0}, {20, 10}});
  const auto second = bridge::makeView<UIView>({{0, 0}, {50, 10}});
  cell().setAccessoryView(first);
  cell().setAccessoryView(second);
  application().prepareFrame();
  EXPECT_FALSE(UIViewState::of(first.get()).superview());
  EXPECT_EQ(second->frame(), (CGRect{{375 - 16 - 50, 17}, {50, 10}}));
  EXPECT_EQ(cell().contentView().frame().size.width, 375 - 16 - 50 - 10);
}

TEST_F(UITableViewCellTest, TextThatChangesIsLaidOutAgain) {
  show(UITableViewCellState::value1);
  _cell->textLabel().setText(text(2));
  application().prepareFrame();
  const CGFloat before = _cell->textLabel().frame().size.width;
  _cell->textLabel().setText(text(8));
  application().prepareFrame();
  EXPECT_GT(_cell->textLabel().frame().size.width, before);
}

TEST_F(UITableViewCellTest, ReuseBeginsUnselected) {
  show(UITableViewCellState::plain);
  send<void, "setSelected:">(_cell, true);
  send<void, "setHighlighted:">(_cell, true);
  EXPECT_TRUE(cell().looksSelected());
  send<void, "prepareForReuse">(_cell);
  EXPECT_FALSE(cell().looksSelected());
}

TEST_F(UITableViewCellTest, FramesWithoutRoomAreLaidOut) {
  show(UITableViewCellState::value1);
  _cell->textLabel().setText(text(20));
  _cell->detailTextLabel().setText(text(20));
  _cell->setAccessoryType(UITableViewCell::disclosureIndicator);
  for (const CGSize size : {CGSize{0, 0}, CGSize{20, 44}, CGSize{375, 1}}) {
    _cell->setFrame({{0, 0}, size});
    application().prepareFrame();
    EXPECT_GE(_cell->textLabel().frame().size.width, 0) << size.width << " x " << size.height;
    EXPECT_GE(_cell->detailTextLabel().frame().size.width, 0);
  }
}

}  // namespace
}  // namespace desktop::uikit
