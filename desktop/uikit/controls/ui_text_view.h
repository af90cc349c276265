// SPDX-License-Identifier: MIT
//
// UITextView: text that scrolls and can be selected and copied. There is no keyboard, so an
// editable one is changed by code only. All ranges are in UTF-16 units.
#pragma once

#include <optional>

#include "bridge/bound.h"
#include "bridge/uikit/ui_controls.h"
#include "desktop/uikit/handles.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"
#include "desktop/uikit/text/text_layout.h"

namespace desktop::uikit {

class UITextView : public bridge::Bound<UITextView, handles::UIScrollView> {
 public:
  explicit UITextView(id self);
  static Class classObject();

  bridge::NSString text() const { return _string; }
  const AttributedText& content() const { return *_text; }
  // Of the text's beginning.
  bridge::UIFont font() const;
  Color textColor() const { return _look.color.value_or(colors::black); }
  TextAlignment alignment() const { return _look.style.alignment; }
  bool isEditable() const { return _isEditable; }
  bool isSelectable() const { return _isSelectable; }
  EdgeInsets textContainerInset() const { return _inset; }
  // None where nothing was selected; an empty one is a caret.
  std::optional<NSRange> selection() const { return _selection; }
  // The text in the column that the view has at present, which begins at the origin. Borrowed
  // until the text or the view's width changes.
  const TextLayout& layout() const;
  CGPoint textOrigin() const;

  void setText(bridge::NSString text);
  // Tells the delegate where it is another selection. It is cut to the text.
  void select(std::optional<NSRange> range);
  bool hasSelectedText() const { return _selection && _selection->length > 0; }
  // The place in the text nearest to a point of the view.
  std::size_t indexAt(CGPoint point) const;
  CGRect caretAt(std::size_t index) const;

 private:
  bridge::UITextView me() const { return bridge::UITextView(self().get()); }

  // Text and its look.
  bridge::NSAttributedString attributedText() const;
  void setAttributedText(bridge::NSAttributedString text);
  void setFont(bridge::UIFont font);
  bridge::UIColor textColorObject() const;
  void setTextColor(bridge::UIColor color);
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
  void updateContentSize() const;
  CGSize contentSize() const;
  CGSize sizeThatFits(CGSize size) const;
  void layoutSubviews();
  void scrollRangeToVisible(NSRange range);
  void drawContent(Canvas* canvas) const;
  void drawSelection(Canvas& canvas) const;
  std::vector<CGRect> selectionInSight() const;

  // Selection.
  NSRange selectedRange() const { return _selection.value_or(NSRange{}); }
  void setSelectedRange(NSRange range);
  bridge::UITextRange selectedTextRange() const;
  void setSelectedTextRange(bridge::UITextRange range);
  bridge::UITextPosition beginningOfDocument() const;
  bridge::UITextPosition endOfDocument() const;
  NSInteger offsetBetween(bridge::UITextPosition from, bridge::UITextPosition to) const;
  bridge::UITextPosition positionFrom(bridge::UITextPosition position, NSInteger offset) const;
  bridge::UITextRange rangeBetween(bridge::UITextPosition from, bridge::UITextPosition to) const;
  bridge::NSString textInRange(bridge::UITextRange range) const;
  bridge::UITextPosition closestPosition(CGPoint point) const;
  CGRect caretRect(bridge::UITextPosition position) const;
  void selectAll(bridge::NSObject sender);
  void copyText(bridge::NSObject sender);
  bool canPerformAction(SEL action, bridge::Object sender) const;
  bool canBecomeFirstResponder() const { return _isSelectable || _isEditable; }

  // Touches.
  void addGestures();
  bool wantsTouch(bridge::UIGestureRecognizer recognizer, bridge::UITouch touch) const;
  bool isNearEnd(CGPoint point) const;
  std::size_t unitAt(CGPoint point) const;
  void pressed(bridge::UIGestureRecognizer recognizer);
  void tapped(bridge::UIGestureRecognizer recognizer);
  void dragged(bridge::UIGestureRecognizer recognizer);
  void selectBetween(std::size_t from, std::size_t to);
  void showMenu();

  SharedText _text;
  bridge::Owned<bridge::NSString> _string;
  TextRun _look;  // of the text's beginning, and of all plain text
  EdgeInsets _inset{8, 0, 8, 0};
  bool _isEditable = true;
  bool _isSelectable = true;
  std::optional<NSRange> _selection;
  mutable std::optional<TextLayout> _layout;  // none: to be made

  bridge::UIGestureRecognizer _press;   // selects a word; borrowed from the view, like the others
  bridge::UIGestureRecognizer _tap;     // clears the selection
  bridge::UIGestureRecognizer _handle;  // drags an end of it
  NSRange _pressed;                     // the word that the press began on
  std::size_t _fixedEnd = 0;            // the end that is not dragged
};

}  // namespace desktop::uikit
