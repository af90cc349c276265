// SPDX-License-Identifier: MIT
#include "lumifact/views/report_bar.h"

namespace lumifact {
namespace {

constexpr CGFloat spaceBeforeMaps = 8.0;

}  // namespace

Owned<UIBarButtonItem> makeDismissButton(UIViewController page) {
  return UIBarButtonItem::withTitle(NSString::make("Dismiss"), UIBarButtonItem::done, page,
                                    selector<"dismissButtonTouched:">());
}

NSArray rightBarItems(UIBarButtonItem button, NSString mapLink, UIViewController page) {
  if (!mapLink) return NSArray::of(button);
  const auto maps =
      UIBarButtonItem::withSystemItem(UIBarButtonItem::bookmarks, page, selector<"openMaps:">());
  const auto space = UIBarButtonItem::withSystemItem(UIBarButtonItem::fixedSpace, {}, nullptr);
  space->setWidth(spaceBeforeMaps);
  return NSArray::of(button, space.get(), maps.get());
}

void openMapLink(NSString mapLink) {
  UIApplication::sharedApplication().openURL(NSURL::withString(mapLink));
}

void dismissPage(UIViewController page) {
  page.dismiss(UIViewController::animated, Block<void()>([] {}));
}

}  // namespace lumifact
