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
#include "desktop/uikit/controls/shown_text.h"
#include "desktop/uikit/controls/text_selection.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::uikit {

class UITextViewState : public Bound<UITextViewState, UIScrollViewState, UITextView> {
 public:
  explicit UITextViewState(id self);
  static Class classObject();

  NSString text() const { return _string; }
  void setText(NSString text);
  // The text in the column that the view has at present. Borrowed until the text or the view's
  // width changes.
  const TextLayout& layout() { return arranged().layout(); }
  CGRect caretAt(std::size_t index) { return arranged().caretAt(index); }
  bool hasSelectedText() const { return _selection.hasText(); }

 private:
  // What is bound of the text and its look.
  NSAttributedString attributedText() const;
  void setAttributedText(NSAttributedString text);
  UIFont font() const;
  void setFont(UIFont font);
  UIColor textColor() const;
  void setTextColor(UIColor color);
  NSInteger alignment() const { return static_cast<NSInteger>(_text.alignment()); }
  void setAlignment(NSInteger alignment);
  EdgeInsets textContainerInset() const { return _text.inset(); }
  void setTextContainerInset(EdgeInsets inset);
  bool isEditable() const { return _isEditable; }
  void setEditable(bool editable) { _isEditable = editable; }
  bool isSelectable() const { return _isSelectable; }
  void setSelectable(bool selectable);
  bool canBecomeFirstResponder() const { return _isSelectable || _isEditable; }

  // Of where it stands.
  CGSize contentSize();
  CGSize sizeThatFits(CGSize size) const;
  void layoutSubviews();
  void scrollRangeToVisible(NSRange range);
  void drawContent(Canvas* canvas);

  // Of places in it, and what is selected.
  NSRange selectedRange() const { return _selection.units(); }
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

  // Of touches.
  bool wantsTouch(UIGestureRecognizer recognizer, UITouch touch);
  void pressed(UIGestureRecognizer recognizer);
  void tapped(UIGestureRecognizer recognizer);
  void dragged(UIGestureRecognizer recognizer);

  // How the parts work together.
  const ShownText& arranged();
  void textChanged();
  void updateContentSize();
  void select(std::optional<NSRange> range);
  void showMenu();

  Owned<NSString> _string;
  ShownText _text;
  TextSelection _selection;
  UIGestureRecognizer _tap;     // clears the selection; borrowed from the view, like the other
  UIGestureRecognizer _handle;  // drags an end of it
  bool _isEditable = true;
  bool _isSelectable = true;
};

}  // namespace desktop::uikit
