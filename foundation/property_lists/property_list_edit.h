// SPDX-License-Identifier: MIT
//
// Changing a property list file, such as a preference file, so that whoever reads it at any moment
// sees the old or the new one, whole.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "model/result.h"
#include "model/value.h"

namespace foundation {

enum class AfterEdit { write, removeIfEmpty };

// Changes what a file with a dictionary holds. The new file takes the old one's place in one step
// and keeps its format, mode and, where the system allows, its owner; a link is followed to the
// file that it leads to. A missing file is made, with its folders, as XML. Runs of this function
// wait for each other.
//
// Errors: a file that is no property list, which is left as it is; what the system says of a file
// or folder that cannot be read or written.
std::optional<model::Error> editPropertyListFile(
    const std::string& path, const std::function<void(model::Dictionary&)>& edit,
    AfterEdit after = AfterEdit::write);

}  // namespace foundation
