// SPDX-License-Identifier: MIT
//
// The banner that the host lays over some thumbnails, at their lower edge.
#pragma once

#include "bridge/photos.h"
#include "lumifact/platform.h"

namespace lumifact {

// Whether there is one with a text, of whatever kind that is.
inline bool hasBannerText(PUPhotoViewContentHelper helper) {
  const TextBanner banner(objectField(helper, "_textBannerView").get());
  return static_cast<bool>(banner.text());
}

}  // namespace lumifact
