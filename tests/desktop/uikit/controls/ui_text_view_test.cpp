// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/ui_text_view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "bridge/class_builder.h"
#include "desktop/uikit/base/outside.h"
#include "desktop/uikit/overlays/ui_menu_controller.h"
#include "desktop/uikit/text/utf16.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/ui_responder.h"
#include "tests/desktop/uikit/application_test.h"
#include "tests/desktop/uikit/slow_text_engine.h"

namespace desktop::uikit {
namespace {

// Counts what a text view tells its delegate.
class SelectionListener : public Bound<SelectionListener, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<SelectionListener>("SelectionListener")
            .method<"textViewDidChangeSelection:", &SelectionListener::selectionChanged>()
            .build();
    return made;
  }
  int changes = 0;

 private:
  void selectionChanged(NSObject) { ++changes; }
};

// At 10 points a letter is 6 points wide and a line of Courier is 10 high.
class UITextViewTest : public ApplicationTest {
 protected:
  UITextViewTest() {
    listener = Owned<NSObject>::adopt(send<NSObject, "new">(SelectionListener::classObject()));
    view = bridge::makeView<UITextView>({{0, 0}, {130, 200}});
    view->setFont(UIFont::named(NSString::make("Courier"), 10));
    view->setEditable(false);
    view->setDelegate(listener);
    window().addSubview(view);
  }

  void show(std::u16string_view text) const {
    send<void, "setText:">(view, stringOf(text));
    application().prepareFrame();
  }
  int changes() const { return SelectionListener::of(listener.get()).changes; }
  UITextViewState& state() const { return UITextViewState::of(view.get()); }
  NSRange selectedRange() const { return send<NSRange, "selectedRange">(view); }
  std::string selectedText() const {
    return send<NSString, "textInRange:">(view, view->selectedTextRange()).utf8();
  }
  // The middle of a unit on the screen.
  CGPoint pointOf(std::size_t index) const {
    const CGRect caret = state().caretAt(index);
    const CGPoint scrolled = UIScrollViewState::of(view.get()).contentOffset();
    return {caret.origin.x + 3 - scrolled.x, caret.origin.y + 5 - scrolled.y};
  }
  // Where a caret in front of a unit stands on the screen.
  CGPoint pointBefore(std::size_t index) const {
    const CGPoint middle = pointOf(index);
    return {middle.x - 3, middle.y};
  }
  static void longPress(CGPoint point) {
    touches().down(point);
    application().advance(0.6);
  }
  static void tap(CGPoint point) {
    touches().down(point);
    touches().up(point);
    application().advance(0.5);
  }

  Owned<NSObject> listener;
  Owned<UITextView> view;
};

TEST_F(UITextViewTest, StartsEmptyAndEditable) {
  const auto fresh = bridge::makeView<UITextView>({{0, 0}, {100, 100}});
  EXPECT_EQ(fresh->text().utf8(), "");
  EXPECT_TRUE((send<bool, "isEditable">(fresh)));
  EXPECT_TRUE((send<bool, "isSelectable">(fresh)));
  EXPECT_FALSE(fresh->selectedTextRange());
  EXPECT_EQ((send<EdgeInsets, "textContainerInset">(fresh)), (EdgeInsets{8, 0, 8, 0}));
}

TEST_F(UITextViewTest, TheContentIsAsWideAsTheViewAndAsHighAsTheLines) {
  show(u"one\ntwo\nthree");
  EXPECT_EQ(view->contentSize(), (CGSize{130, 46}));
  // 20 letters fit into 130 - 10 points.
  show(u"twenty letters fit in, and so on");
  EXPECT_EQ(view->contentSize(), (CGSize{130, 36}));
  view->setFrame({{0, 0}, {70, 200}});
  EXPECT_EQ(view->contentSize(), (CGSize{70, 56}));
}

TEST_F(UITextViewTest, FitsAroundItsLongestLine) {
  show(u"one\ntwo\nthree");
  EXPECT_EQ((send<CGSize, "sizeThatFits:">(view, CGSize{130, 5})), (CGSize{40, 46}));
  EXPECT_EQ((send<CGSize, "sizeThatFits:">(view, CGSize{0, 0})), (CGSize{40, 46}));
  view->sizeToFit();
  EXPECT_EQ(view->frame(), (CGRect{{0, 0}, {40, 46}}));
  EXPECT_EQ(view->contentSize(), (CGSize{40, 46}));
}

TEST_F(UITextViewTest, WrappedTextKeepsItsLinesWhenFitted) {
  show(u"several words that were wrapped once more");
  const CGFloat height = view->contentSize().height;
  view->sizeToFit();
  EXPECT_LT(view->frame().size.width, 130);
  EXPECT_EQ(view->contentSize().height, height);
}

TEST_F(UITextViewTest, AttributedTextBringsFontAndIndents) {
  const auto style = makeNew<NSMutableParagraphStyle>();
  style->setHeadIndent(12);
  style->setParagraphSpacing(1.5);
  const auto text =
      NSMutableAttributedString::withString(NSString::make("aaaa bbbb cccc dddd eeee\nffff"));
  const auto font = UIFont::named(NSString::make("Courier"), 10);
  text->addAttribute(fontAttributeName(), font, {0, text->length()});
  text->addAttribute(paragraphStyleAttributeName(), style, {0, text->length()});
  view->setAttributedText(text);
  const auto lines = state().layout().lines(0, 100);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[1].frame.origin, (CGPoint{12, 10}));
  EXPECT_EQ(lines[2].frame.origin, (CGPoint{0, 21.5}));
  EXPECT_EQ(view->contentSize().height, 48);
  const auto back = send<NSAttributedString, "attributedText">(view);
  EXPECT_TRUE((send<bool, "isEqualToAttributedString:">(back, text)));
}

TEST_F(UITextViewTest, SelectsAllAndClearsByCode) {
  show(u"some text");
  view->selectAll({});
  EXPECT_EQ(selectedRange(), (NSRange{0, 9}));
  EXPECT_EQ(changes(), 1);
  const auto range = view->selectedTextRange();
  EXPECT_EQ(view->offset(view->beginningOfDocument(), range.start()), 0);
  EXPECT_EQ(view->offset(range.start(), range.end()), 9);
  EXPECT_FALSE((send<bool, "isEmpty">(range)));
  view->selectAll({});
  EXPECT_EQ(changes(), 1);
  view->setSelectedTextRange({});
  EXPECT_FALSE(view->selectedTextRange());
  EXPECT_EQ(changes(), 2);
  view->setSelectedTextRange({});
  EXPECT_EQ(changes(), 2);
}

TEST_F(UITextViewTest, AllOfAnEmptyTextIsACaret) {
  show(u"");
  view->selectAll({});
  ASSERT_TRUE(view->selectedTextRange());
  EXPECT_TRUE((send<bool, "isEmpty">(view->selectedTextRange())));
  EXPECT_EQ(changes(), 1);
}

TEST_F(UITextViewTest, ASelectionIsCutToTheText) {
  show(u"some text");
  send<void, "setSelectedRange:">(view, NSRange{5, 1000});
  EXPECT_EQ(selectedText(), "text");
  send<void, "setSelectedRange:">(view, NSRange{~0UL, ~0UL});
  EXPECT_FALSE(state().hasSelectedText());
  send<void, "setSelectedRange:">(view, NSRange{static_cast<NSUInteger>(NSNotFound), 0});
  EXPECT_FALSE(view->selectedTextRange());
}

TEST_F(UITextViewTest, PositionsAreCountedWithinTheText) {
  show(u"some text");
  const auto start = view->beginningOfDocument();
  const auto end = send<UITextPosition, "endOfDocument">(view);
  EXPECT_EQ(view->offset(start, end), 9);
  EXPECT_EQ(view->offset(end, start), -9);
  const auto fifth =
      send<UITextPosition, "positionFromPosition:offset:">(view, start, NSInteger{5});
  const auto range = send<UITextRange, "textRangeFromPosition:toPosition:">(view, end, fifth);
  view->setSelectedTextRange(range);
  EXPECT_EQ(selectedRange(), (NSRange{5, 4}));
  for (const NSInteger offset : {NSInteger{10}, NSInteger{-1}, NSNotFound, -NSNotFound - 1})
    EXPECT_FALSE((send<UITextPosition, "positionFromPosition:offset:">(view, start, offset)))
        << offset;
}

TEST_F(UITextViewTest, AnotherTextHasNoSelection) {
  show(u"some text");
  view->selectAll({});
  show(u"other");
  EXPECT_FALSE(view->selectedTextRange());
  EXPECT_EQ(changes(), 2);
}

TEST_F(UITextViewTest, ALongPressSelectsAWordAndShowsTheMenu) {
  show(u"some words in a row");
  longPress(pointOf(6));
  EXPECT_EQ(selectedText(), "words");
  EXPECT_EQ(changes(), 1);
  EXPECT_EQ(UIResponderState::firstResponder(), view.get());
  EXPECT_FALSE(UIMenuControllerState::shared().isVisible());
  touches().up(pointOf(6));
  application().advance(0.5);
  EXPECT_EQ(UIMenuControllerState::shared().titles(),
            (std::vector<std::string>{"Copy", "Select All"}));
}

TEST_F(UITextViewTest, ALongPressThatIsDraggedSelectsMore) {
  show(u"some words in a row");
  longPress(pointOf(6));
  touches().move(pointOf(11));
  EXPECT_EQ(selectedText(), "words in");
  touches().move(pointOf(1));
  EXPECT_EQ(selectedText(), "some words");
  touches().up(pointOf(1));
}

TEST_F(UITextViewTest, TheMenuCopiesAndSelectsAll) {
  std::vector<std::string> copied;
  outside().copyText = [&](const std::string& text) { copied.push_back(text); };
  show(u"some words \U0001F4F7");
  longPress(pointOf(6));
  touches().up(pointOf(6));
  application().advance(0.5);
  UIMenuControllerState::shared().run(1);
  application().advance(0.5);
  EXPECT_EQ(selectedRange(), (NSRange{0, 13}));
  EXPECT_EQ(UIMenuControllerState::shared().titles(), std::vector<std::string>{"Copy"});
  UIMenuControllerState::shared().run(0);
  EXPECT_EQ(copied, std::vector<std::string>{"some words \xF0\x9F\x93\xB7"});
  EXPECT_TRUE(state().hasSelectedText());
}

TEST_F(UITextViewTest, ATapClearsTheSelection) {
  show(u"some words in a row");
  view->selectAll({});
  application().prepareFrame();
  tap({100, 150});
  EXPECT_FALSE(view->selectedTextRange());
  EXPECT_FALSE(UIMenuControllerState::shared().isVisible());
  EXPECT_EQ(changes(), 2);
}

TEST_F(UITextViewTest, TheEndsOfASelectionCanBeDragged) {
  show(u"some words in a row\n\n\n\n\n\nfurther down");
  send<void, "setSelectedRange:">(view, NSRange{5, 5});
  touches().down(pointBefore(10));
  application().advance(0.1);
  touches().move(pointBefore(2));
  EXPECT_EQ(selectedText(), "me ");
  touches().move(pointBefore(13));
  touches().up(pointBefore(13));
  EXPECT_EQ(selectedText(), "words in");
  application().advance(0.5);
  EXPECT_TRUE(UIMenuControllerState::shared().isVisible());
}

TEST_F(UITextViewTest, APressOnTheEndOfAWordSelectsThatWord) {
  show(u"some words");
  const CGPoint end = pointBefore(4);
  longPress({end.x - 1, end.y});
  EXPECT_EQ(selectedText(), "some");
  touches().up(end);
}

TEST_F(UITextViewTest, WhatIsNotSelectableStaysUnselected) {
  show(u"some words in a row");
  send<void, "setSelectable:">(view, false);
  longPress(pointOf(6));
  touches().up(pointOf(6));
  view->selectAll({});
  EXPECT_FALSE(view->selectedTextRange());
  EXPECT_FALSE((send<bool, "canBecomeFirstResponder">(view)));
}

TEST_F(UITextViewTest, CommandsArePossibleWhereTheyMakeSense) {
  const auto can = [&](SEL action) {
    return send<bool, "canPerformAction:withSender:">(view, action, Object());
  };
  show(u"");
  EXPECT_FALSE(can(selector<"selectAll:">()));
  show(u"text");
  EXPECT_TRUE(can(selector<"selectAll:">()));
  EXPECT_FALSE(can(selector<"copy:">()));
  EXPECT_FALSE(can(selector<"paste:">()));
  view->selectAll({});
  EXPECT_FALSE(can(selector<"selectAll:">()));
  EXPECT_TRUE(can(selector<"copy:">()));
}

TEST_F(UITextViewTest, AnythingIsShownInSomeWay) {
  for (const std::u16string& text :
       {std::u16string(u"\x05D0\x05D1 \x05D2"), std::u16string(3, u'\0'),
        std::u16string(u"\t\x1B[0m"), std::u16string(100'000, u'x'),
        std::u16string(u"\r\r\n\x2028\x2029")}) {
    show(text);
    EXPECT_GE(view->contentSize().height, 26);
    longPress({20, 12});
    touches().up({20, 12});
    view->selectAll({});
    EXPECT_EQ(selectedRange().length, text.size());
  }
  send<void, "setText:">(view, NSString());
  EXPECT_EQ(view->text().utf8(), "");
  view->setAttributedText({});
  EXPECT_EQ(view->text().utf8(), "");
  const auto half = stringOf(u"\U0001F4F7z").substringFrom(1);
  send<void, "setText:">(view, half);
  EXPECT_EQ(view->text().length(), 2u);
}

TEST_F(UITextViewTest, AViewWithoutRoomShowsNoText) {
  show(u"some text");
  for (const CGFloat width : {0.0, -5.0, 10.0, static_cast<CGFloat>(NAN)}) {
    view->setFrame({{0, 0}, {width, 10}});
    EXPECT_EQ(view->contentSize().height, 16) << width;
  }
}

TEST_F(UITextViewTest, LaysOutWhatIsSeenOfAViewAsHighAsALongText) {
  auto engine = std::make_unique<SlowTextEngine>();
  const SlowTextEngine& slow = *engine;
  setTextEngine(std::move(engine));
  constexpr std::size_t letters = 1'000'000;
  show(std::u16string(letters, u'x'));
  for (int layout = 0; layout < 3; ++layout) {
    view->setFrame({{0, 0}, {130, view->contentSize().height}});
    application().prepareFrame();
  }
  EXPECT_GT(view->contentSize().height, 100'000);
  EXPECT_GT(slow.brokenUnits, 0U);
  EXPECT_LT(slow.brokenUnits, letters / 10);
  view->removeFromSuperview();
  setTextEngine(nullptr);
}

TEST_F(UITextViewTest, LeavesNothingBehind) {
  const long before = liveBoundObjects();
  {
    const AutoreleasePool inner;
    const auto other = bridge::makeView<UITextView>({{0, 0}, {100, 100}});
    window().addSubview(other);
    send<void, "setText:">(other, NSString::make("some text"));
    application().prepareFrame();
    longPress({10, 12});
    touches().up({10, 12});
    application().advance(0.5);
    send<void, "setMenuVisible:animated:">(UIMenuControllerState::sharedMenuController(), false,
                                           false);
    application().advance(1);
    other->removeFromSuperview();
  }
  application().advance(1);
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
