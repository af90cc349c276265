// SPDX-License-Identifier: MIT
#include "desktop/foundation_runtime/file_links.h"

#include "desktop/foundation/file_url.h"
#include "desktop/foundation_runtime/corrections.h"

namespace desktop::foundation {

std::optional<std::string> fileOnDisk(bridge::NSURL link) {
  const auto path = pathOfFileUrl(link.absoluteString().utf8());
  if (!path) return std::nullopt;
  return currentOptions().root.onDisk(*path);
}

}  // namespace desktop::foundation
