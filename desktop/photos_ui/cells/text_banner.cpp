// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/cells/text_banner.h"

#include <algorithm>
#include <cctype>
#include <string>

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/labels.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {
namespace {

constexpr CGFloat fontSize = 10;                              // points
constexpr CGSize padding{5, 2};                               // points, on each side
constexpr uikit::Color shade = uikit::Color::white(0, 0.55);  // behind the word

constexpr std::string_view rawExtensions[] = {"arw", "cr2", "dng", "nef", "orf", "raf", "rw2"};

}  // namespace

Class TextBannerView::classObject() {
  static const Class made = ClassBuilder<TextBannerView>("TextBannerView")
                                .method<"initWithFrame:", &TextBannerView::initWithFrame>()
                                .method<"text", &TextBannerView::text>()
                                .method<"setText:", &TextBannerView::setText>()
                                .method<"sizeThatFits:", &TextBannerView::sizeThatFits>()
                                .build();
  return made;
}

UIView TextBannerView::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  self().setUserInteractionEnabled(false);
  self().setBackgroundColor(uikit::UIColorState::make(shade));
  self().layer().setCornerRadius(CGFloat{3});
  _label =
      makeLabel({.weight = uikit::FontWeight::semibold, .size = fontSize}, uikit::colors::white);
  _label->setTextAlignment(alignCenter);
  _label->setFrame(self().bounds());
  _label->setAutoresizingMask(flexibleWidth | flexibleHeight);
  self().addSubview(_label);
  return self();
}

void TextBannerView::setText(NSString text) {
  _label->setText(text);
}

CGSize TextBannerView::sizeThatFits(CGSize) const {
  const CGSize text = _label->sizeThatFits(CGSize{});
  return {text.width + 2 * padding.width, text.height + 2 * padding.height};
}

std::string_view bannerTextFor(std::string_view fileName) {
  const std::size_t dot = fileName.rfind('.');
  if (dot == std::string_view::npos) return {};
  std::string extension(fileName.substr(dot + 1));
  std::ranges::transform(extension, extension.begin(),
                         [](unsigned char letter) { return std::tolower(letter); });
  return std::ranges::find(rawExtensions, extension) != std::end(rawExtensions)
             ? "RAW"
             : std::string_view();
}

}  // namespace desktop::photos_ui
