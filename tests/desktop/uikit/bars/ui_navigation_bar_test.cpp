// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/ui_navigation_bar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/bars/bar_button_view.h"
#include "desktop/uikit/bars/navigation_bar_titles.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ui_label.h"
#include "tests/desktop/uikit/controller_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;

// Letters are 0.6 of the font's size wide; labels are as wide as pixels allow.
class UINavigationBarTest : public ControllerTest {
 protected:
  UINavigationBarTest()
      : a(ProbeController::make("Title")),
        stack(UINavigationController::withRoot(a)),
        item(a->navigationItem()) {
    showRoot(Owned<UIViewController>::retain(stack.get()));
  }

  Owned<UIBarButtonItem> titled(const char* title, UIBarButtonItem::Style style) const {
    return UIBarButtonItem::withTitle(NSString::make(title), style, a.get(), selector<"press:">());
  }
  Owned<UIBarButtonItem> system(NSInteger number) const {
    return UIBarButtonItem::withSystemItem(static_cast<UIBarButtonItem::SystemItem>(number),
                                           a.get(), selector<"press:">());
  }
  NavigationBarContentView& content() const {
    return NavigationBarContentView::of(
        UINavigationBarState::of(stack->navigationBar().get()).contentView().get());
  }
  // Frames of what stands at the right, from the right-most on.
  std::vector<std::vector<double>> rightFrames() const {
    application().prepareFrame();
    std::vector<std::vector<double>> frames;
    for (const BarSlot& slot : content().rightSlots())
      if (slot.view) frames.push_back(numbers(slot.view->frame()));
    return frames;
  }

  const Owned<UIViewController> a;
  const Owned<UINavigationController> stack;
  const UINavigationItem item;
};

TEST_F(UINavigationBarTest, TheTitleStandsInTheMiddle) {
  application().prepareFrame();
  EXPECT_THAT(numbers(content().label().frame()), ElementsAre(162, 0, 51, 44));
  EXPECT_EQ(UILabelState::of(content().label().get()).shownFontSize(), 17);
}

TEST_F(UINavigationBarTest, TheFirstRightItemIsTheRightmost) {
  const auto select = titled("Select All", UIBarButtonItem::plain);
  const auto space = system(UIBarButtonItem::fixedSpace);
  space->setWidth(8);
  const auto maps = system(UIBarButtonItem::bookmarks);
  item.setRightBarButtonItems(NSArray::of(select.get(), space.get(), maps.get()));
  // 16 points of margin, 10 letters, then 8 of gap and 8 of space before the picture.
  EXPECT_THAT(rightFrames(),
              ElementsAre(ElementsAre(257, 0, 102, 44), ElementsAre(217, 0, 24, 44)));
}

TEST_F(UINavigationBarTest, LeftItemsBeginAtTheMargin) {
  item.setLeftBarButtonItems(NSArray::of(titled("Dismiss", UIBarButtonItem::done).get()));
  application().prepareFrame();
  ASSERT_EQ(content().leftSlots().size(), 1u);
  EXPECT_THAT(numbers(content().leftSlots()[0].view->frame()), ElementsAre(16, 0, 71.5, 44));
}

TEST_F(UINavigationBarTest, ALongTitleGivesWayToTheButtons) {
  item.setTitle(NSString::make("A title that is far too long for the bar"));
  item.setLeftBarButtonItems(NSArray::of(titled("Dismiss", UIBarButtonItem::plain).get()));
  application().prepareFrame();
  EXPECT_THAT(numbers(content().label().frame()), ElementsAre(95.5, 0, 263.5, 44));
}

TEST_F(UINavigationBarTest, ATitleNearTheButtonsLeavesTheMiddle) {
  item.setTitle(NSString::make("Twenty-two characters!"));  // 224.5 points
  item.setRightBarButtonItems(NSArray::of(titled("Select", UIBarButtonItem::plain).get()));
  application().prepareFrame();
  EXPECT_THAT(numbers(content().label().frame()),
              ElementsAre(375 - 16 - 61.5 - 8 - 224.5, 0, 224.5, 44));
}

TEST_F(UINavigationBarTest, PressingAnItemSendsItsActionWithTheItem) {
  const auto share = system(UIBarButtonItem::action);
  const auto select = titled("Select", UIBarButtonItem::plain);
  item.setRightBarButtonItems(NSArray::of(share.get(), select.get()));
  application().prepareFrame();
  tap(content().rightSlots()[0].view.get());
  EXPECT_EQ(ProbeController::of(a.get()).sender, share.get());
  tap("Select");
  EXPECT_EQ(ProbeController::of(a.get()).sender, select.get());
  EXPECT_THAT(takeCalls(), ElementsAre("Title pressed", "Title pressed"));
}

TEST_F(UINavigationBarTest, AnActionWithoutATargetGoesToTheFirstThatAnswers) {
  const auto select = UIBarButtonItem::withTitle(NSString::make("Select"), UIBarButtonItem::plain,
                                                 {}, selector<"press:">());
  const auto bar = bridge::makeView<UIToolbar>({{0, 300}, {375, 44}});
  bar->setItems(NSArray::of(select.get()));
  a->view().addSubview(bar);
  tap("Select");
  EXPECT_THAT(takeCalls(), ElementsAre("Title pressed"));
}

TEST_F(UINavigationBarTest, ADisabledItemDoesNothing) {
  const auto select = titled("Select", UIBarButtonItem::plain);
  send<void, "setEnabled:">(select.get(), false);
  item.setRightBarButtonItems(NSArray::of(select.get()));
  tap("Select");
  EXPECT_TRUE(takeCalls().empty());
  send<void, "setEnabled:">(select.get(), true);
  tap("Select");
  EXPECT_THAT(takeCalls(), ElementsAre("Title pressed"));
}

TEST_F(UINavigationBarTest, ChangesOfAnItemShowAtOnce) {
  const auto select = titled("Select All", UIBarButtonItem::plain);
  item.setRightBarButtonItems(NSArray::of(select.get()));
  select->setTitle(NSString::make(" Deselect"));
  EXPECT_TRUE(isShown(" Deselect"));
  EXPECT_THAT(rightFrames(), ElementsAre(ElementsAre(267, 0, 92, 44)));
  item.setRightBarButtonItems({});
  EXPECT_FALSE(isShown(" Deselect"));
  select->setTitle(NSString::make("Select All"));
}

TEST_F(UINavigationBarTest, ACustomViewStandsAsItIs) {
  const auto info = bridge::makeView<UIControl>({{0, 0}, {22, 22}});
  info->addTarget(a.get(), selector<"press:">(), touchUpInside);
  const auto custom = UIBarButtonItem::withCustomView(info);
  item.setRightBarButtonItems(NSArray::of(system(UIBarButtonItem::action).get(), custom.get()));
  EXPECT_THAT(rightFrames(),
              ElementsAre(ElementsAre(335, 0, 24, 44), ElementsAre(305, 11, 22, 22)));
  tap(info.get());
  EXPECT_EQ(ProbeController::of(a.get()).sender, info.get());
}

TEST_F(UINavigationBarTest, TheBackButtonIsNamedAfterTheScreenBelowAsFarAsThereIsRoom) {
  struct Case {
    const char* below;
    const char* title;
    const char* shown;
  };
  constexpr Case cases[] = {
      {"Albums", "B", "Albums"},
      {"A name that is much too long", "B", "Back"},
      {"", "B", "Back"},
      {"Albums", "Of twenty characters", "Back"},
      {"Albums", "Twenty-nine characters are in", ""},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.title);
    item.setTitle(NSString::make(each.below));
    const auto b = ProbeController::make(each.title);
    stack->push(b, UIViewController::immediately);
    application().prepareFrame();
    EXPECT_EQ(BarButtonView::of(content().backButton().get()).name(), each.shown);
    send<UIViewController, "popViewControllerAnimated:">(stack.get(), false);
  }
}

TEST_F(UINavigationBarTest, LeftItemsTakeThePlaceOfTheBackButton) {
  const auto b = ProbeController::make("B");
  stack->push(b, UIViewController::immediately);
  EXPECT_TRUE(content().backButton());
  b->navigationItem().setLeftBarButtonItems(
      NSArray::of(titled("Dismiss", UIBarButtonItem::plain).get()));
  EXPECT_FALSE(content().backButton());
}

TEST_F(UINavigationBarTest, TitlesAreSetByMessageOnBothOfTheirViews) {
  item.setTitle(NSString::make("Other"));
  const auto& bar = UINavigationBarState::of(stack->navigationBar().get());
  for (const UIView view : {bar.contentView(), bar.largeTitleView()}) {
    EXPECT_EQ((send<NSString, "title">(view)).utf8(), "Other");
    const auto label = as<UILabel>(send<Object, "lastObject">(view.subviews()));
    EXPECT_EQ(label.text().utf8(), "Other");
  }
}

TEST_F(UINavigationBarTest, AShrinkingTitleFitsBetweenTheButtons) {
  const auto label = content().label();
  label.setAdjustsFontSizeToFitWidth(true);
  label.setMinimumFontSize(4);
  item.setTitle(NSString::make("12 Items Selected (123.4 MB) and a good deal more"));
  application().prepareFrame();
  const auto lines = UILabelState::of(label.get()).lines();
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].text.size(), 49u);
  EXPECT_LT(lines[0].face.size, 17);
}

TEST_F(UINavigationBarTest, StyleAndTintAreWhatWasSet) {
  const auto bar = stack->navigationBar();
  EXPECT_EQ(bar.barStyle(), 0);
  bar.setBarStyle(1);
  EXPECT_EQ(bar.barStyle(), 1);
  EXPECT_EQ(UILabelState::of(content().label().get()).textColor(), colors::white);
  item.setRightBarButtonItems(NSArray::of(titled("Select", UIBarButtonItem::plain).get()));
  bar.setTintColor(UIColor::greenColor());
  EXPECT_EQ(UILabelState::of(viewWithText("Select").get()).textColor(),
            UIColorState::valueOf(UIColor::greenColor()));
}

}  // namespace
}  // namespace desktop::uikit
