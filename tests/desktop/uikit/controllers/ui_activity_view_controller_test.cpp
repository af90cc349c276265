// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_activity_view_controller.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/uikit/base/outside.h"
#include "desktop/uikit/overlays/ui_popover_presentation_controller.h"
#include "tests/desktop/uikit/controller_probes.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
constexpr auto animated = UIViewController::animated;

class UIActivityViewControllerTest : public ControllerTest {
 protected:
  UIActivityViewControllerTest() : a(showRoot(ProbeController::make("A"))) {
    outside().copyText = [this](const std::string& text) { copied.push_back(text); };
    outside().saveText = [this](const std::string& text) { saved.push_back(text); };
  }

  Owned<UIActivityViewController> share(NSArray items) const {
    auto sheet = UIActivityViewController::withItems(items);
    a->present(sheet, animated, {});
    wait(0.5);
    return sheet;
  }
  bool isPresenting() const {
    return static_cast<bool>(send<UIViewController, "presentedViewController">(a.get()));
  }

  const Owned<UIViewController> a;
  std::vector<std::string> copied;
  std::vector<std::string> saved;
};

TEST_F(UIActivityViewControllerTest, CopiesTheTextAndGoes) {
  const auto sheet = share(NSArray::of(NSString::make("Width = 3")));
  EXPECT_TRUE(isShown("Width = 3"));
  tap("Copy");
  EXPECT_THAT(copied, ElementsAre("Width = 3"));
  wait(0.5);
  EXPECT_FALSE(isPresenting());
  EXPECT_THAT(saved, IsEmpty());
  EXPECT_THAT(takeCalls(), IsEmpty());
}

TEST_F(UIActivityViewControllerTest, SavesTheTextOnceItHasGone) {
  share(NSArray::of(NSString::make("Width = 3"), NSString::make("Height = 4")));
  tap("Save as Text\u2026");
  EXPECT_THAT(saved, IsEmpty());
  wait(0.5);
  EXPECT_THAT(saved, ElementsAre("Width = 3\nHeight = 4"));
}

TEST_F(UIActivityViewControllerTest, CancelAndATouchBesideItDoNothing) {
  share(NSArray::of(NSString::make("text")));
  tap("Cancel");
  wait(0.5);
  EXPECT_FALSE(isPresenting());
  share(NSArray::of(NSString::make("text")));
  tap({100, 100});
  wait(0.5);
  EXPECT_FALSE(isPresenting());
  EXPECT_THAT(copied, IsEmpty());
}

TEST_F(UIActivityViewControllerTest, TellsItsHandlerHowItEnded) {
  struct Case {
    const char* press;
    const char* type;
    bool completed;
  };
  for (const Case& each : {Case{"Copy", "com.apple.UIKit.activity.CopyToPasteboard", true},
                           Case{"Cancel", "", false}}) {
    SCOPED_TRACE(each.press);
    std::vector<std::pair<std::string, bool>> told;
    const auto sheet = share(NSArray::of(NSString::make("text")));
    send<void, "setCompletionWithItemsHandler:">(
        sheet.get(), Block<void(NSString, bool, NSArray, NSObject)>(
                         [&told](NSString type, bool completed, NSArray, NSObject) {
                           told.emplace_back(type.utf8(), completed);
                         }));
    tap(each.press);
    wait(0.5);
    EXPECT_THAT(told, ElementsAre(std::pair{std::string(each.type), each.completed}));
  }
}

TEST_F(UIActivityViewControllerTest, ExcludedActivitiesAreNotOffered) {
  const auto sheet = UIActivityViewController::withItems(NSArray::of(NSString::make("t")));
  sheet->setExcludedActivityTypes(
      NSArray::of(NSString::make("com.apple.UIKit.activity.CopyToPasteboard")));
  a->present(sheet, animated, {});
  wait(0.5);
  EXPECT_FALSE(isShown("Copy"));
  EXPECT_TRUE(isShown("Save as Text\u2026"));
}

TEST_F(UIActivityViewControllerTest, ShowsTheBeginningOfALongText) {
  const std::string text(10'000'000, 'x');
  const auto sheet = share(NSArray::of(NSString::make(text)));
  EXPECT_TRUE(isShown(std::string(160, 'x') + "\u2026"));
  tap("Copy");
  ASSERT_EQ(copied.size(), 1u);
  EXPECT_EQ(copied[0], text);
}

TEST_F(UIActivityViewControllerTest, NoItemsAreAnEmptyText) {
  share({});
  tap("Copy");
  EXPECT_THAT(copied, ElementsAre(""));
}

TEST_F(UIActivityViewControllerTest, KeepsWhereAPopoverWouldPoint) {
  const auto sheet = UIActivityViewController::withItems(NSArray::of(NSString::make("t")));
  const auto popover = sheet->popoverPresentationController();
  ASSERT_TRUE(popover);
  popover.setSourceView(a->view());
  popover.setSourceRect({{1, 2}, {3, 4}});
  const auto& kept =
      UIPopoverPresentationControllerState::of(sheet->popoverPresentationController().get());
  EXPECT_EQ(kept.sourceView(), a->view());
  EXPECT_EQ(kept.sourceRect(), (CGRect{{1, 2}, {3, 4}}));
}

TEST_F(UIActivityViewControllerTest, NothingIsLeftOfIt) {
  const auto run = [&] {
    const AutoreleasePool pool;
    share(NSArray::of(NSString::make("text")));
    tap("Copy");
    wait(0.5);
  };
  run();
  const long before = liveBoundObjects();
  run();
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
