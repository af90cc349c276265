// SPDX-License-Identifier: MIT
//
// A word at the bottom of a thumbnail that says what kind of photo it is.
#pragma once

#include <string_view>

#include "bridge/bound.h"
#include "bridge/uikit.h"

namespace desktop::photos_ui {

class TextBannerView : public bridge::Bound<TextBannerView, bridge::UIView> {
 public:
  using Bound::Bound;
  static Class classObject();

  bridge::NSString text() const { return _label->text(); }
  void setText(bridge::NSString text);

 private:
  bridge::UIView initWithFrame(CGRect frame);
  CGSize sizeThatFits(CGSize size) const;

  bridge::Owned<bridge::UILabel> _label;
};

// What the banner of a file says by its name; empty where there is none.
std::string_view bannerTextFor(std::string_view fileName);

}  // namespace desktop::photos_ui
