// SPDX-License-Identifier: MIT
#include "lumifact/grid/grid_hooks.h"

namespace lumifact {
namespace {

void setLargeTitle(id self, SEL command, id title) {
  stock<&setLargeTitle>(self, command, title);
}

void setBarTitle(id self, SEL command, id title) {
  stock<&setBarTitle>(self, command, title);
}

void handleSwipe(id self, SEL command, id gesture) {
  stock<&handleSwipe>(self, command, gesture);
}

void setEditing(id self, SEL command, BOOL editing, BOOL animated) {
  stock<&setEditing>(self, command, editing, animated);
}

id localizedSelectionTitle(id self, SEL command) {
  return stock<&localizedSelectionTitle>(self, command);
}

}  // namespace

constinit const HookRow barTitleHooks[] = {
    replaced<"_UINavigationBarLargeTitleView", "setTitle:", &setLargeTitle>,
    replaced<"_UINavigationBarContentView", "setTitle:", &setBarTitle>,
};

constinit const HookRow selectionHooks[] = {
    replaced<"PUPhotosGridViewController", "_handleSwipeSelectionGesture:", &handleSwipe>,
    replaced<"PUPhotosGridViewController", "setEditing:animated:", &setEditing>,
    replaced<"PUPhotosGridViewController", "localizedSelectionTitle", &localizedSelectionTitle>,
};

}  // namespace lumifact
