// SPDX-License-Identifier: MIT
//
// Which single-photo view is on the screen, and what was made for its bar: one of each for the
// process, kept by the hooks.
#pragma once

#include "bridge/photos.h"
#include "lumifact/platform.h"

namespace lumifact {

struct OneUpState {
  // From the view's loading until it goes away; nil for one that is presented for preview.
  Owned<PUOneUpViewController> controller;
  // Made anew for every view that is loaded.
  Owned<UIButton> detailsButton;
  Owned<UIBarButtonItem> detailsItem;
  Owned<UIBarButtonItem> spacer;
  // The one that was made last, for good.
  Owned<PUOneUpTilingLayout> tilingLayout;
};

OneUpState& oneUpState();

}  // namespace lumifact
