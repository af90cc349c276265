// SPDX-License-Identifier: MIT
//
// What is shown in place of photos where there are none: what is so, and why.
#pragma once

#include <string_view>

#include "bridge/bound.h"
#include "bridge/uikit.h"

namespace desktop::photos_ui {

class MessageView : public bridge::Bound<MessageView, bridge::UIView> {
 public:
  using Bound::Bound;
  static Class classObject();
  // +1.
  static bridge::Owned<bridge::UIView> make();

  void show(std::string_view title, std::string_view reason);

 private:
  bridge::UIView initWithFrame(CGRect frame);
  void layoutSubviews();

  bridge::Owned<bridge::UILabel> _title;
  bridge::Owned<bridge::UILabel> _reason;
};

// What stands where a list of the library's items is empty, as the library is now.
void showWhyEmpty(bridge::UIView messageView);

}  // namespace desktop::photos_ui
