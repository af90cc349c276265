// SPDX-License-Identifier: MIT
//
// The size of the selection in the selection title, and the bar titles that make room for it.
#pragma once

#include "bridge/hook.h"

namespace lumifact {

extern constinit bridge::Stock<void(id, SEL, id)> stockUINavigationBarLargeTitleView_setTitle;
void UINavigationBarLargeTitleView_setTitle(id self, SEL command, id title);

extern constinit bridge::Stock<void(id, SEL, id)> stockUINavigationBarContentView_setTitle;
void UINavigationBarContentView_setTitle(id self, SEL command, id title);

extern constinit bridge::Stock<void(id, SEL, id)>
    stockPUPhotosGridViewController_handleSwipeSelectionGesture;
void PUPhotosGridViewController_handleSwipeSelectionGesture(id self, SEL command, id gesture);

extern constinit bridge::Stock<void(id, SEL, BOOL, BOOL)>
    stockPUPhotosGridViewController_setEditing;
void PUPhotosGridViewController_setEditing(id self, SEL command, BOOL editing, BOOL animated);

extern constinit bridge::Stock<id(id, SEL)> stockPUPhotosGridViewController_localizedSelectionTitle;
id PUPhotosGridViewController_localizedSelectionTitle(id self, SEL command);

}  // namespace lumifact
