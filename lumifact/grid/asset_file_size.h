// SPDX-License-Identifier: MIT
//
// The size of an asset's file in bytes, through the file size cache: the disk is read once.
#pragma once

#include <cstdint>
#include <optional>

#include "bridge/photos.h"
#include "lumifact/platform.h"

namespace lumifact {

// Of the main file alone; none where that cannot be read.
std::optional<std::int64_t> mainFileSize(PHAsset asset);

// Of the main file or, of a still without one, of the first preview that is there; none where no
// file is, or the one that is cannot be read.
std::optional<std::int64_t> mainOrPreviewFileSize(PHAsset asset);

}  // namespace lumifact
