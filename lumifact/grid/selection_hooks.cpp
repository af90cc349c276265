// SPDX-License-Identifier: MIT
#include "lumifact/grid/selection_hooks.h"

namespace lumifact {

constinit bridge::Stock<void(id, SEL, id)> stockUINavigationBarLargeTitleView_setTitle;
void UINavigationBarLargeTitleView_setTitle(id self, SEL command, id title) {
  stockUINavigationBarLargeTitleView_setTitle(self, command, title);
}

constinit bridge::Stock<void(id, SEL, id)> stockUINavigationBarContentView_setTitle;
void UINavigationBarContentView_setTitle(id self, SEL command, id title) {
  stockUINavigationBarContentView_setTitle(self, command, title);
}

constinit bridge::Stock<void(id, SEL, id)>
    stockPUPhotosGridViewController_handleSwipeSelectionGesture;
void PUPhotosGridViewController_handleSwipeSelectionGesture(id self, SEL command, id gesture) {
  stockPUPhotosGridViewController_handleSwipeSelectionGesture(self, command, gesture);
}

constinit bridge::Stock<void(id, SEL, BOOL, BOOL)> stockPUPhotosGridViewController_setEditing;
void PUPhotosGridViewController_setEditing(id self, SEL command, BOOL editing, BOOL animated) {
  stockPUPhotosGridViewController_setEditing(self, command, editing, animated);
}

constinit bridge::Stock<id(id, SEL)> stockPUPhotosGridViewController_localizedSelectionTitle;
id PUPhotosGridViewController_localizedSelectionTitle(id self, SEL command) {
  return stockPUPhotosGridViewController_localizedSelectionTitle(self, command);
}

}  // namespace lumifact
