// SPDX-License-Identifier: MIT
#include "lumifact/grid/badge_place.h"

#include "bridge/corefoundation.h"
#include "lumifact/grid/text_banner.h"
#include "lumifact/grid/visibility.h"
#include "lumifact/state/current_settings.h"

namespace lumifact {
namespace {

constexpr double versionOfRenamedField = 1348.0;  // of CoreFoundation: iOS 10

UIView badgeOf(PUPhotoViewContentHelper helper) {
  const bool isRenamed = kCFCoreFoundationVersionNumber >= versionOfRenamedField;
  return UIView(objectField(helper, isRenamed ? "__badgeView" : "_badgeView").get());
}

}  // namespace

void placeBadge(PUPhotoViewContentHelper helper) {
  if (settings.thumbnailInfoDisplay == 0 || isAlbumListVisible() || hasBannerText(helper)) return;
  const UIView badge = badgeOf(helper);
  if (!badge) return;
  const UIView content = helper.contentView();
  CGRect frame = badge.frame();
  if (isPanoramaVisible()) {
    content.bringSubviewToFront(badge);
    frame.size.width *= 0.25;
  } else {
    frame.origin.y = content.bounds().size.height - infoLineHeight - frame.size.height;
  }
  badge.setFrame(frame);
}

}  // namespace lumifact
