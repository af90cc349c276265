// SPDX-License-Identifier: MIT
//
// What is shown in place of photos where there are none: what is so, and why.
#pragma once

#include <string_view>
#include "desktop/uikit/views/ui_view.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

class MessageView : public Bound<MessageView, uikit::UIViewState> {
 public:
  using Bound::Bound;
  static Class classObject();
  // +1.
  static Owned<UIView> make();

  void show(std::string_view title, std::string_view reason);

 private:
  UIView initWithFrame(CGRect frame);
  void layoutSubviews();

  Owned<UILabel> _title;
  Owned<UILabel> _reason;
};

// What stands where a list of the library's items is empty, as the library is now.
void showWhyEmpty(UIView messageView);

}  // namespace desktop::photos_ui
