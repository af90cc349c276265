// SPDX-License-Identifier: MIT
#include "lumifact/views/report_bar.h"

namespace lumifact {

using bridge::NSArray;
using bridge::NSString;
using bridge::Owned;
using bridge::selector;
using bridge::UIBarButtonItem;
using bridge::UIViewController;

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
  bridge::UIApplication::sharedApplication().openURL(bridge::NSURL::withString(mapLink));
}

void dismissPage(UIViewController page) {
  page.dismiss(UIViewController::animated, bridge::Block<void()>([] {}));
}

}  // namespace lumifact
