// SPDX-License-Identifier: MIT
//
// LFPresenter: a page that shows a whole report as text, to be selected and copied.
#pragma once

#include <cstdint>

#include "bridge/bound.h"
#include "bridge/uikit/ui_controllers.h"
#include "lumifact/platform.h"

namespace lumifact {

// The delegate of its own text view, so that the button that selects all follows what the user
// selects.
class LFPresenter : public Bound<LFPresenter, UIViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A page of the message. `mapLink` may be nil: there is no button for it then. `offsetHeight`
  // has no effect. `fontSize` is in points.
  static Owned<UIViewController> make(NSString message, NSString mapLink, std::int32_t offsetHeight,
                                      std::int32_t fontSize);

  UIViewController initWithMessage(NSString message, NSString mapString, std::int32_t offsetHeight,
                                   std::int32_t fontSize);
  void viewDidLoad();
  void textViewDidChangeSelection(UITextView view);
  void selectButtonTouched(NSObject sender);
  void dismissButtonTouched(NSObject sender);
  void openMaps(NSObject sender);
  // A bitmap of 1 x 1 points of the colour.
  UIImage imageWithColor(UIColor color);

 private:
  void showBarItems() const;
  void makeTextView();
  void showText() const;
  void showSelectTitle(bool deselects) const;

  Owned<UITextView> _textView;
  Owned<UIBarButtonItem> _dismissButton;
  Owned<UIBarButtonItem> _selectButton;
  Owned<NSString> _messageText;
  Owned<NSString> _mapString;
  std::int32_t _offsetHeight = 0;  // kept, and never asked for
  std::int32_t _fontSize = 0;      // in points
  bool _deselect = false;          // the whole text is selected: the button deselects
};

}  // namespace lumifact
