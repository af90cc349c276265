// SPDX-License-Identifier: MIT
#include "lumifact/views/lumifact_pop_up_view_controller.h"

#include <cmath>

#include "desktop/uikit/graphics/ui_bezier_path.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ca_layer.h"
#include "desktop/uikit/views/ui_view.h"
#include "lumifact/views/lumifact_text_view.h"
#include "tests/desktop/uikit/application_test.h"
#include "tests/lumifact/views/foundation_test.h"
#include "tests/lumifact/views/shown_views.h"

namespace lumifact {
namespace {

using bridge::NSString;
using bridge::Object;
using bridge::Owned;
using bridge::send;
using bridge::UITextView;
using bridge::UIView;
using desktop::uikit::animator;
using desktop::uikit::application;
using desktop::uikit::CALayerState;
using desktop::uikit::Color;
using desktop::uikit::touches;

class PopUpTest : public desktop::uikit::ApplicationTest {
 protected:
  PopUpTest() { useThePhonesFoundation(); }

  // The overlay over the window, in its first layout.
  UIView show(std::string_view message) {
    LumifactPopUpViewController::show(window(), text(message));
    application().prepareFrame();
    return overlay();
  }
  UIView showAtOnce(std::string_view message) {
    const auto made = make(window().bounds());
    send<void, "showInView:withMessage:animated:">(made, window(), text(message), false);
    application().prepareFrame();
    return overlay();
  }
  static Owned<UIView> make(CGRect frame) {
    return Owned<UIView>::adopt(send<UIView, "initWithFrame:">(
        send<id, "alloc">(LumifactPopUpViewController::classObject()), frame));
  }
  static UIView overlay() { return viewOf(window(), LumifactPopUpViewController::classObject()); }
  static UITextView boxOf(UIView view) { return send<UITextView, "textView">(view); }
  static bool touchDown(UIView view) { return send<bool, "touchDown">(view); }
  static desktop::uikit::UIViewState& look(UIView view) {
    return desktop::uikit::UIViewState::of(view);
  }
  static const CALayerState::Style& style(UIView view) {
    return CALayerState::of(view.layer()).style();
  }

  static CGRect shadowOf(UIView view) {
    return send<CGRect, "bounds">(style(view).shadowPath.get());
  }

  static void expectCentred(UIView view) {
    const CGSize size = view.bounds().size;
    const CGRect box = boxOf(view).frame();
    EXPECT_NEAR(box.origin.x, (size.width - box.size.width) / 2, 0.001);
    EXPECT_NEAR(box.origin.y, (size.height - box.size.height) / 2, 0.001);
  }
};

TEST_F(PopUpTest, IsAView) {
  const auto view = make({});
  EXPECT_TRUE(bridge::isKindOf(view, UIView::classObject()));
  EXPECT_TRUE((send<bool, "canBecomeFirstResponder">(view)));
  EXPECT_EQ(objc_getClass("LumifactPopUpViewController"),
            LumifactPopUpViewController::classObject());
}

TEST_F(PopUpTest, ItsTextViewCanBecomeFirstResponder) {
  const auto view = make({});
  const UITextView box = boxOf(view);
  EXPECT_TRUE(bridge::isKindOf(box, LumifactTextView::classObject()));
  EXPECT_TRUE(bridge::isKindOf(box, UITextView::classObject()));
  EXPECT_TRUE((send<bool, "canBecomeFirstResponder">(box)));
  EXPECT_FALSE((send<bool, "isEditable">(box)));
  EXPECT_TRUE((send<bool, "isSelectable">(box)));
  EXPECT_EQ((send<NSInteger, "textAlignment">(box)), 0);
  EXPECT_FALSE((send<bool, "translatesAutoresizingMaskIntoConstraints">(box)));
}

TEST_F(PopUpTest, TheBoxBeginsInTheMiddleOfADimmedBackdrop) {
  const auto view = make({{0, 0}, {375, 667}});
  EXPECT_EQ(boxOf(view).frame(), (CGRect{{27.5, 173.5}, {320, 320}}));
  const auto low = make({{0, 0}, {300, 200}});
  EXPECT_EQ(boxOf(low).frame(), (CGRect{{5, 20}, {290, 160}}));
  EXPECT_EQ(look(view).backgroundColor(), (Color{0, 0, 0, 0.45}));
  EXPECT_EQ(look(view).autoresizingMask(), 18U);
  EXPECT_EQ(look(boxOf(view)).backgroundColor(), (Color{1, 1, 1, 1}));
}

TEST_F(PopUpTest, TheBoxHasRoundCornersAndAShadowThatIsNotCut) {
  const auto view = make({{0, 0}, {375, 667}});
  const UITextView box = boxOf(view);
  EXPECT_EQ(style(box).cornerRadius, 5.0);
  EXPECT_EQ(style(box).shadowOffset, (CGSize{-1, -1}));
  EXPECT_EQ(style(box).shadowOpacity, 0.3F);
  EXPECT_EQ(desktop::uikit::UIColorState::valueOf(style(box).shadowColor), (Color{0, 0, 0, 1}));
  EXPECT_EQ(shadowOf(box), (CGRect{{0, 0}, {325, 325}}));
  EXPECT_FALSE(style(box).masksToBounds);
}

TEST_F(PopUpTest, AShortMessageShrinksTheBoxAroundItself) {
  const UIView view = showAtOnce("IMG_0001.JPG");
  const UITextView box = boxOf(view);
  EXPECT_LT(box.frame().size.width, 200);
  EXPECT_LT(box.frame().size.height, 60);
  EXPECT_EQ(box.frame().size.height, box.contentSize().height);
  const CGSize size = box.bounds().size;
  EXPECT_EQ(shadowOf(box), (CGRect{{0, 0}, {size.width + 5, size.height + 5}}));
  expectCentred(view);
}

TEST_F(PopUpTest, AMessageThatIsTallerThanTheHostStandsOut) {
  std::string lines;
  for (int line = 0; line < 100; ++line) lines += "line\n";
  const UIView view = showAtOnce(lines);
  EXPECT_GT(boxOf(view).frame().size.height, 667);
  EXPECT_LT(boxOf(view).frame().origin.y, 0);
  expectCentred(view);
}

TEST_F(PopUpTest, LongLinesWrapAndHang) {
  const UIView view = showAtOnce("Path: " + std::string(200, 'm'));
  EXPECT_LE(boxOf(view).frame().size.width, 320);
  EXPECT_GT(boxOf(view).frame().size.height, 60);
  const auto style = send<Object, "attribute:atIndex:effectiveRange:">(
      send<Object, "attributedText">(boxOf(view)), bridge::paragraphStyleAttributeName(),
      NSUInteger{0}, static_cast<NSRange*>(nullptr));
  EXPECT_EQ((send<double, "headIndent">(style)), 22.0);
  EXPECT_EQ((send<double, "firstLineHeadIndent">(style)), 0.0);
  EXPECT_EQ((send<double, "paragraphSpacing">(style)), 1.5);
  EXPECT_EQ((send<double, "paragraphSpacingBefore">(style)), 0.0);
}

TEST_F(PopUpTest, TheMessageIsSetInThirteenPoints) {
  const UIView view = showAtOnce("message");
  const auto font = send<Object, "attribute:atIndex:effectiveRange:">(
      send<Object, "attributedText">(boxOf(view)), bridge::fontAttributeName(), NSUInteger{0},
      static_cast<NSRange*>(nullptr));
  EXPECT_TRUE(NSString(font.get()).isEqual(bridge::UIFont::systemFont(13.0)));
}

TEST_F(PopUpTest, TheBoxStaysInTheMiddleWhenTheHostChangesItsSize) {
  const UIView view = showAtOnce("IMG_0001.JPG");
  application().resize({667, 375});
  application().prepareFrame();
  EXPECT_EQ(view.frame(), (CGRect{{0, 0}, {667, 375}}));
  expectCentred(view);
}

TEST_F(PopUpTest, StandsAtOnceWithoutAnimation) {
  const UIView view = showAtOnce("message");
  EXPECT_EQ(look(view).shown().alpha, 1.0);
  EXPECT_EQ(look(view).shown().transform, CGAffineTransform());
  EXPECT_EQ(window().subviews().at(window().subviews().count() - 1), view);
}

TEST_F(PopUpTest, ZoomsInFromNothing) {
  const UIView view = show("message");
  EXPECT_LT(look(view).shown().alpha, 0.1);
  EXPECT_GT(look(view).shown().transform.a, 1.7);
  application().advance(0.125);
  EXPECT_NEAR(look(view).shown().alpha, 0.5, 0.1);
  application().advance(0.2);
  EXPECT_EQ(look(view).shown().alpha, 1.0);
  EXPECT_EQ(look(view).shown().transform, CGAffineTransform());
}

TEST_F(PopUpTest, ZoomsOutWhenATouchOnTheBackdropEnds) {
  const UIView view = show("message");
  settle();
  touches().down({5, 30});
  application().advance(0.05);
  EXPECT_TRUE(touchDown(view));
  EXPECT_EQ(look(view).shown().alpha, 1.0);
  touches().up({5, 30});
  application().advance(0.125);
  EXPECT_TRUE(overlay());
  EXPECT_LT(look(view).shown().alpha, 0.9);
  EXPECT_GT(look(view).shown().transform.a, 1.1);
  settle();
  EXPECT_FALSE(overlay());
}

TEST_F(PopUpTest, StaysUnseenWhereItsLeavingIsCutShort) {
  const UIView view = show("message");
  settle();
  touches().down({5, 30});
  touches().up({5, 30});
  application().advance(0.125);
  animator().stop(view);
  settle();
  EXPECT_EQ(overlay(), view);
  EXPECT_EQ(look(view).shown().alpha, 0.0);
  EXPECT_EQ(look(view).shown().transform.a, 1.75);
  EXPECT_EQ(look(view).shown().transform.d, 1.75);
}

TEST_F(PopUpTest, ATouchThatWandersStillEndsIt) {
  show("message");
  settle();
  drag({5, 30}, {300, 600});
  EXPECT_FALSE(overlay());
}

TEST_F(PopUpTest, AMessageInTheBoxLeavesTheTouchToItsText) {
  const UIView view = show("message");
  settle();
  touches().down(middleOf(boxOf(view)));
  application().advance(0.05);
  EXPECT_FALSE(touchDown(view));
  touches().up(middleOf(boxOf(view)));
}

TEST_F(PopUpTest, SeveralOverlaysStandAboveEachOther) {
  show("first");
  const UIView second = show("second");
  settle();
  EXPECT_EQ(viewsOf(window(), LumifactPopUpViewController::classObject()).size(), 2U);
  tap(CGPoint{5, 30});
  EXPECT_EQ(viewsOf(window(), LumifactPopUpViewController::classObject()).size(), 1U);
  static_cast<void>(second);
}

TEST_F(PopUpTest, LeavesNothingBehind) {
  const long before = bridge::liveBoundObjects();
  {
    const bridge::AutoreleasePool pool;
    show("message");
    settle();
    tap(CGPoint{5, 30});
  }
  EXPECT_EQ(LumifactPopUpViewController::liveObjects(), 0);
  EXPECT_EQ(LumifactTextView::liveObjects(), 0);
  EXPECT_EQ(bridge::liveBoundObjects(), before);
}

TEST_F(PopUpTest, ItsPropertiesCanBeSet) {
  const auto view = make({{0, 0}, {100, 100}});
  const auto other = LumifactTextView::make();
  send<void, "setTextView:">(view, other.get());
  EXPECT_EQ(boxOf(view), other.get());
  send<void, "setTouchDown:">(view, true);
  EXPECT_TRUE(touchDown(view));
  send<void, "setTouchDown:">(view, false);
  EXPECT_FALSE(touchDown(view));
}

TEST_F(PopUpTest, ShowsAMessageOfTenMegabytes) {
  std::string lines;
  while (lines.size() < 10'000'000) lines += "Path: 100APPLE/IMG_0001.JPG\n";
  const UIView view = show(lines);
  settle();
  EXPECT_GT(boxOf(view).frame().size.height, 100'000);
  tap(CGPoint{5, 30});
  EXPECT_FALSE(overlay());
}

TEST_F(PopUpTest, ShowsAnyMessageAtAnySize) {
  const std::string messages[] = {"",
                                  "\n\n\n",
                                  std::string("a\0b\x01\x1B", 5),
                                  "\xD8\xB3\xD9\x84\xD8\xA7\xD9\x85 123",
                                  "\xE2\x80\xAE"
                                  "abc",
                                  std::string(100'000, 'x')};
  const CGRect frames[] = {{{0, 0}, {375, 667}},
                           {{0, 0}, {0, 0}},
                           {{10, 10}, {-50, -50}},
                           {{0, 0}, {NAN, 667}},
                           {{0, 0}, {INFINITY, INFINITY}}};
  for (const std::string& message : messages) {
    for (const CGRect& frame : frames) {
      const auto view = make(frame);
      send<void, "showInView:withMessage:animated:">(view, window(), text(message), true);
      application().advance(0.3);
      EXPECT_TRUE(view->frame() == view->frame()) << message.size();
      view->removeFromSuperview();
    }
  }
}

TEST_F(PopUpTest, TakesNoMessageAsAnEmptyOne) {
  const auto view = make(window().bounds());
  send<void, "showInView:withMessage:animated:">(view, window(), NSString(), false);
  application().prepareFrame();
  EXPECT_EQ(boxOf(view).text().length(), 0U);
}

}  // namespace
}  // namespace lumifact
