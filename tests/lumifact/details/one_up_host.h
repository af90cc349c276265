// SPDX-License-Identifier: MIT
//
// The host's single-photo view, as far as the details are hooked into it, with the extension's
// hooks in place.
#pragma once

#include <string>
#include <vector>

#include "bridge/photos.h"

namespace lumifact::host {

// What the host's objects answer; one for the process.
struct OneUpAnswers {
  bool isPreview = false;
  bool hasIndexPath = true;
  bool hasReference = true;
  bridge::Owned<bridge::Object> asset;  // of the shown item's reference
  bridge::Owned<bridge::UIView> tilingView;
  std::vector<std::string> calls;  // of the host's own implementations
};

OneUpAnswers& oneUpAnswers();

// Registers the classes and puts the hooks in place, once.
void installOneUpHost();

bridge::Owned<bridge::PUOneUpViewController> makeOneUpViewController();
// Lets the host make a tiling layout; nobody but the hooks keeps it.
void makeTilingLayout();
// The host refreshes its bars, or is given its tiling view.
void updateBars();
void setTilingView(bridge::PUOneUpViewController controller, bridge::UIView view);

// The details of the item on the screen, asked for by a button or a gesture.
void viewDetails(bridge::PUOneUpViewController controller, bridge::NSObject sender);

}  // namespace lumifact::host
