// SPDX-License-Identifier: MIT
//
// The content of a scroll view and what is kept free around it: how far it goes. `room` is the size
// of the view, an offset that of the view's top left corner in the content.
#pragma once

#include "desktop/uikit/scrolling/edge_insets.h"

namespace desktop::uikit {

struct ScrollContent {
  enum Adjustment : NSInteger { automatic = 0, never = 2 };

  CGSize size{};
  EdgeInsets inset{};
  EdgeInsets safeArea{};             // what bars take at the edges
  NSInteger adjustment = automatic;  // whether the safe area counts

  // The insets that count.
  EdgeInsets adjustedInset() const;
  // With its insets.
  CGSize whole() const;
  // The offset nearest to this one that shows no room outside content and insets.
  CGPoint clamped(CGPoint offset, CGSize room) const;
  // The offset for a finger that pulls to this one: beyond the ends less and less, or not at all.
  CGPoint pulledTo(CGPoint offset, CGSize room, bool bounces) const;
};

}  // namespace desktop::uikit
