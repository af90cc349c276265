// SPDX-License-Identifier: MIT
//
// LFPresenter: a page that shows a whole report as text, to be selected and copied.
#pragma once

#include <cstdint>

#include "bridge/bound.h"
#include "bridge/uikit/ui_controllers.h"

namespace lumifact {

// The delegate of its own text view, so that the button that selects all follows what the user
// selects.
class LFPresenter : public bridge::Bound<LFPresenter, bridge::UIViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A page of the message. `mapLink` may be nil: there is no button for it then. `offsetHeight`
  // has no effect. `fontSize` is in points.
  static bridge::Owned<bridge::UIViewController> make(bridge::NSString message,
                                                      bridge::NSString mapLink,
                                                      std::int32_t offsetHeight,
                                                      std::int32_t fontSize);

  bridge::UIViewController initWithMessage(bridge::NSString message, bridge::NSString mapString,
                                           std::int32_t offsetHeight, std::int32_t fontSize);
  void viewDidLoad();
  void textViewDidChangeSelection(bridge::UITextView view);
  void selectButtonTouched(bridge::NSObject sender);
  void dismissButtonTouched(bridge::NSObject sender);
  void openMaps(bridge::NSObject sender);
  // A bitmap of 1 x 1 points of the colour.
  bridge::UIImage imageWithColor(bridge::UIColor color);

 private:
  void showBarItems() const;
  void makeTextView();
  void showText() const;
  void showSelectTitle(bool deselects) const;

  bridge::Owned<bridge::UITextView> _textView;
  bridge::Owned<bridge::UIBarButtonItem> _dismissButton;
  bridge::Owned<bridge::UIBarButtonItem> _selectButton;
  bridge::Owned<bridge::NSString> _messageText;
  bridge::Owned<bridge::NSString> _mapString;
  std::int32_t _offsetHeight = 0;  // kept, and never asked for
  std::int32_t _fontSize = 0;      // in points
  bool _deselect = false;          // the whole text is selected: the button deselects
};

}  // namespace lumifact
