// SPDX-License-Identifier: MIT
//
// Image sources and videos that tests say the contents of, under the platform's names.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "model/value.h"

namespace lumifact::host {

// The files of the platform, by link.
struct FakeMedia {
  // Files that can be opened: an image's properties, or none of a file that is no image.
  std::map<std::string, std::optional<model::Dictionary>> files;
  std::vector<std::string> tried;  // the links that were opened or not, in order
  // The common metadata of every video, key and value.
  std::vector<std::pair<std::string, std::string>> videoMetadata;
};

// What there is; registers AVURLAsset when first asked for.
FakeMedia& fakeMedia();

}  // namespace lumifact::host
