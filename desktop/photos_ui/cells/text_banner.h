// SPDX-License-Identifier: MIT
//
// A word at the bottom of a thumbnail that says what kind of photo it is.
#pragma once

#include <string_view>
#include "desktop/uikit/views/ui_view.h"

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"

namespace desktop::photos_ui {

class TextBannerView : public Bound<TextBannerView, uikit::UIViewState> {
 public:
  using Bound::Bound;
  static Class classObject();

  NSString text() const { return _label->text(); }
  void setText(NSString text);

 private:
  UIView initWithFrame(CGRect frame);
  CGSize sizeThatFits(CGSize size) const;

  Owned<UILabel> _label;
};

// What the banner of a file says by its name; empty where there is none.
std::string_view bannerTextFor(std::string_view fileName);

}  // namespace desktop::photos_ui
