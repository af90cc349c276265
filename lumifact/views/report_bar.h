// SPDX-License-Identifier: MIT
//
// What the bars of both report pages have in common.
#pragma once

#include "bridge/uikit/ui_controllers.h"
#include "lumifact/platform.h"

namespace lumifact {

// A button "Dismiss" that sends dismissButtonTouched: to the page.
Owned<UIBarButtonItem> makeDismissButton(UIViewController page);

// The items on the right of a page's bar, the right-most first: its own button and, where there is
// a map link (an empty one too), 8 points of space and a button that sends openMaps: to the page.
NSArray rightBarItems(UIBarButtonItem button, NSString mapLink, UIViewController page);

// Hands the map link to the system. A text that is no link is handed on as none; nobody hears
// whether the system could open it.
void openMapLink(NSString mapLink);

// Takes the page off the screen, animated.
void dismissPage(UIViewController page);

}  // namespace lumifact
