// SPDX-License-Identifier: MIT
//
// What is on the screen, and a finger on it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bridge/uikit.h"

namespace lumifact {

// All views of a class at or below a view, each before what is in it.
std::vector<bridge::UIView> viewsOf(bridge::UIView root, Class aClass);
// The first of them, or nil.
bridge::UIView viewOf(bridge::UIView root, Class aClass);
// The label with this very text at or below a view, or nil.
bridge::UIView labelWith(bridge::UIView root, std::string_view text);

// The middle of a view, in points of the screen.
CGPoint middleOf(bridge::UIView view);

// A finger comes down and leaves again; then what follows from it has come to rest.
void tap(CGPoint point);
void tap(bridge::UIView view);
// A finger rests long enough for a long press, and leaves.
void longPress(CGPoint point);
void longPress(bridge::UIView view);
// A finger goes from one point to another.
void drag(CGPoint from, CGPoint to);

// Time enough for every animation.
void settle();

}  // namespace lumifact
