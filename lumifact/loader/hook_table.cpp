// SPDX-License-Identifier: MIT
#include "lumifact/loader/hook_table.h"

#include "lumifact/details/details_hooks.h"
#include "lumifact/grid/grid_hooks.h"

namespace lumifact {
namespace {

constinit const HookList lists[] = {
    barTitleHooks,  captionHooks,      visibilityHooks, gridSizeHooks,    selectionHooks,
    longPressHooks, shownCaptionHooks, oneUpHooks,      viewDetailsHooks, photoLongPressHooks,
};

}  // namespace

std::span<const HookList> hookTable() {
  return lists;
}

}  // namespace lumifact
