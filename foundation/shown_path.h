// SPDX-License-Identifier: MIT
//
// Files whose names are no valid UTF-8, found again by the path that is shown of them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace foundation {

// The path of an existing file or folder, bytes as on disk, whose invalid bytes are U+FFFD in the
// shown path; the first by name where there are several. None where there is none, and where the
// shown path holds no U+FFFD. REQUIRES: the path is absolute.
std::optional<std::string> fileOfShownPath(std::string_view shownPath);

}  // namespace foundation
