// SPDX-License-Identifier: MIT
//
// The file size cache: one for the process, from an asset's uuid to the low 32 bits of its file's
// size in bytes.
#pragma once

#include "lumifact/assets/file_size.h"

namespace lumifact {

// Puts a new empty cache into the process's slot and lets go of the one that was there.
void createFileSizeCache();

// The cache for cachedFileSize. A miss everywhere, and stores nothing, before it was created.
FileSizeCacheAccess fileSizeCache();

}  // namespace lumifact
