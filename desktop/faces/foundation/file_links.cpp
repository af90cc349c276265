// SPDX-License-Identifier: MIT
#include "desktop/faces/foundation/file_links.h"

#include "desktop/faces/foundation/foundation_options.h"
#include "foundation/file_url.h"

namespace desktop::faces {

std::optional<std::string> fileOnDisk(NSURL link) {
  const auto path = foundation::pathOfFileUrl(link.absoluteString().utf8());
  if (!path) return std::nullopt;
  return currentOptions().root.onDisk(*path);
}

}  // namespace desktop::faces
