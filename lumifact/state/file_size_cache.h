// SPDX-License-Identifier: MIT
//
// The file size cache: one for the process, from an asset's uuid to the low 32 bits of its file's
// size in bytes.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "bridge/foundation.h"
#include "lumifact/platform.h"

namespace lumifact {

// Puts a new empty cache into the process's slot and lets go of the one that was there.
void createFileSizeCache();

// The size of an asset's file. A cached one is the entry widened with its sign, so files of 2 GiB
// and more show wrong, even negative sizes once cached. On a miss `read` is asked: its size is
// cached (the low 32 bits) and answered in full; where it has none, nothing is cached and none is
// answered. Without a uuid, or before the cache was created, every look-up is a miss and nothing is
// kept.
std::optional<std::int64_t> cachedFileSize(
    NSString uuid, const std::function<std::optional<std::uint64_t>()>& read);

}  // namespace lumifact
