// SPDX-License-Identifier: MIT
#include "tests/lumifact/views/shown_views.h"

#include "desktop/uikit/application/application.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "desktop/uikit/views/ui_view.h"

namespace lumifact {

using bridge::NSArray;
using bridge::UILabel;
using bridge::UIView;
using desktop::uikit::application;
using desktop::uikit::touches;

namespace {

void collect(UIView view, Class aClass, std::vector<UIView>& found) {
  if (bridge::isKindOf(view, aClass)) found.push_back(view);
  const NSArray subviews = view.subviews();
  for (NSUInteger index = 0; index < subviews.count(); ++index)
    collect(UIView(subviews.at(index).get()), aClass, found);
}

}  // namespace

std::vector<UIView> viewsOf(UIView root, Class aClass) {
  std::vector<UIView> found;
  if (root) collect(root, aClass, found);
  return found;
}

UIView viewOf(UIView root, Class aClass) {
  const std::vector<UIView> found = viewsOf(root, aClass);
  return found.empty() ? UIView() : found.front();
}

UIView labelWith(UIView root, std::string_view text) {
  for (const UIView label : viewsOf(root, UILabel::classObject()))
    if (UILabel(label.get()).text().utf8() == text) return label;
  return {};
}

CGPoint middleOf(UIView view) {
  const CGSize size = view.bounds().size;
  return desktop::uikit::apply(desktop::uikit::UIViewState::of(view).toScreen(),
                               CGPoint{size.width / 2, size.height / 2});
}

void tap(CGPoint point) {
  touches().down(point);
  application().advance(0.05);
  touches().up(point);
  settle();
}

void tap(UIView view) {
  tap(middleOf(view));
}

void longPress(CGPoint point) {
  touches().down(point);
  application().advance(0.6);
  touches().up(point);
  settle();
}

void longPress(UIView view) {
  longPress(middleOf(view));
}

void drag(CGPoint from, CGPoint to) {
  touches().down(from);
  for (int step = 1; step <= 10; ++step) {
    application().advance(0.02);
    touches().move({from.x + (to.x - from.x) * step / 10, from.y + (to.y - from.y) * step / 10});
  }
  touches().up(to);
  settle();
}

void settle() {
  application().advance(1);
}

}  // namespace lumifact
