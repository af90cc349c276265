// SPDX-License-Identifier: MIT
//
// The file behind an item of the library: which of its files can be read, and its facts.
#pragma once

#include "bridge/imageio.h"
#include "bridge/photos.h"
#include "lumifact/details/file_facts.h"
#include "lumifact/platform.h"

namespace lumifact {

// A file of an item that was opened.
struct ItemFile {
  ImageSource source;    // null where none of the item's files can be opened
  Owned<NSString> path;  // of the last file that was tried
};

// Opens the item's main file. In the place of a still's main file its previews are tried too: the
// full-size one, the large one, the medium one, and the medium one under its "large" name.
ItemFile openItemFile(PHAsset asset);

// The facts of the file at a path and of its item, as the platform words them. A file that cannot
// be looked at has 0 bytes and no date.
FileFacts factsOf(NSString path, PHAsset asset);

}  // namespace lumifact
