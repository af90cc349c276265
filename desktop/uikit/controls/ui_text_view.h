// SPDX-License-Identifier: MIT
//
// UITextView: text that scrolls and can be selected and copied. There is no keyboard, so an
// editable one is changed by code only. All ranges are in UTF-16 units.
#pragma once

#include <optional>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controls.h"
#include "desktop/platform.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "desktop/uikit/text/text_layout.h"

namespace desktop::uikit {

class UITextViewState : public Bound<UITextViewState, UIScrollViewState, UITextView> {
 public:
  explicit UITextViewState(id self);
  static Class classObject();

  NSString text() const { return _string; }
  const AttributedText& content() const { return *_text; }
  // Of the text's beginning.
  UIFont font() const;
  Color textColor() const { return _look.color.value_or(colors::black); }
  TextAlignment alignment() const { return _look.style.alignment; }
  bool isEditable() const { return _isEditable; }
  bool isSelectable() const { return _isSelectable; }
  EdgeInsets textContainerInset() const { return _inset; }
  // None where nothing was selected; an empty one is a caret.
  std::optional<NSRange> selection() const { return _selection; }
  // The text in the column that the view has at present, which begins at the origin. Borrowed
  // until the text or the view's width changes.
  const TextLayout& layout();
  CGPoint textOrigin() const;

  void setText(NSString text);
  // Tells the delegate where it is another selection. It is cut to the text.
  void select(std::optional<NSRange> range);
  bool hasSelectedText() const { return _selection && _selection->length > 0; }
  // The place in the text nearest to a point of the view.
  std::size_t indexAt(CGPoint point);
  CGRect caretAt(std::size_t index);

 private:
  // Text and its look.
  NSAttributedString attributedText() const;
  void setAttributedText(NSAttributedString text);
  void setFont(UIFont font);
  UIColor textColorObject() const;
  void setTextColor(UIColor color);
  NSInteger alignmentNumber() const { return static_cast<NSInteger>(_look.style.alignment); }
  void setAlignmentNumber(NSInteger alignment);
  void setEditable(bool editable) { _isEditable = editable; }
  void setSelectable(bool selectable);
  void setTextContainerInset(EdgeInsets inset);
  template <typename Change>
  void restyle(const Change& change);
  void show(AttributedText text);

  // Arrangement.
  double columnWidth(CGFloat viewWidth) const;
  CGSize sizeAround(const TextLayout& layout, CGFloat width) const;
  void updateContentSize();
  CGSize contentSize();
  CGSize sizeThatFits(CGSize size) const;
  void layoutSubviews();
  void scrollRangeToVisible(NSRange range);
  void drawContent(Canvas* canvas);
  void drawSelection(Canvas& canvas);
  std::vector<CGRect> selectionInSight();

  // Selection.
  NSRange selectedRange() const { return _selection.value_or(NSRange{}); }
  void setSelectedRange(NSRange range);
  UITextRange selectedTextRange() const;
  void setSelectedTextRange(UITextRange range);
  UITextPosition beginningOfDocument() const;
  UITextPosition endOfDocument() const;
  NSInteger offsetBetween(UITextPosition from, UITextPosition to) const;
  UITextPosition positionFrom(UITextPosition position, NSInteger offset) const;
  UITextRange rangeBetween(UITextPosition from, UITextPosition to) const;
  NSString textInRange(UITextRange range) const;
  UITextPosition closestPosition(CGPoint point);
  CGRect caretRect(UITextPosition position);
  void selectAll(NSObject sender);
  void copyText(NSObject sender);
  bool canPerformAction(SEL action, Object sender) const;
  bool canBecomeFirstResponder() const { return _isSelectable || _isEditable; }

  // Touches.
  void addGestures();
  bool wantsTouch(UIGestureRecognizer recognizer, UITouch touch);
  bool isNearEnd(CGPoint point);
  std::size_t unitAt(CGPoint point);
  void pressed(UIGestureRecognizer recognizer);
  void tapped(UIGestureRecognizer recognizer);
  void dragged(UIGestureRecognizer recognizer);
  void selectBetween(std::size_t from, std::size_t to);
  void showMenu();

  SharedText _text;
  Owned<NSString> _string;
  TextRun _look;  // of the text's beginning, and of all plain text
  EdgeInsets _inset{8, 0, 8, 0};
  bool _isEditable = true;
  bool _isSelectable = true;
  std::optional<NSRange> _selection;
  mutable std::optional<TextLayout> _layout;  // none: to be made

  UIGestureRecognizer _press;   // selects a word; borrowed from the view, like the others
  UIGestureRecognizer _tap;     // clears the selection
  UIGestureRecognizer _handle;  // drags an end of it
  NSRange _pressed;             // the word that the press began on
  std::size_t _fixedEnd = 0;    // the end that is not dragged
};

}  // namespace desktop::uikit
