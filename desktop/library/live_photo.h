// SPDX-License-Identifier: MIT
//
// What joins the two files of a Live Photo: a still and a film with one name and one identifier.
#pragma once

#include <string>
#include <string_view>

namespace desktop::library {

// The name without its extension: what the two files have in common.
std::string_view stemOf(std::string_view name);

// The identifier in the metadata of either half. Empty where the file is no half, or cannot be
// read.
std::string liveIdentifier(const std::string& path);

}  // namespace desktop::library
