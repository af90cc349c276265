// SPDX-License-Identifier: MIT
//
// What one folder holds, for whoever walks folders: the photo library and the command-line tool.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/result.h"

namespace foundation {

enum class FolderEntryKind { file, folder };

struct FolderEntry {
  std::string name;  // bytes as on disk
  FolderEntryKind kind;
  std::uint64_t inode;  // as the folder tells it; another one behind a name is another thing
  bool isLink = false;
};

// The entries sorted by name (by bytes), files and folders alike. Hidden ones are left out, and so
// are links to folders, so that a walk never comes to a place twice; a link to anything else, or to
// nothing, is a file. Errors: what the system says of opening or reading the folder.
model::Result<std::vector<FolderEntry>> readFolder(const std::string& path);

// The path of an entry of a folder; one slash between them.
std::string pathInFolder(std::string_view folder, std::string_view name);

}  // namespace foundation
