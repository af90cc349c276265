// SPDX-License-Identifier: MIT
//
// Which hosts an extension is for: the property list beside its library.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/result.h"
#include "model/value.h"

namespace desktop::loader {

// The bundle identifiers that a filter names.
struct ExtensionFilter {
  std::vector<std::string> bundles;

  bool matches(std::string_view bundleIdentifier) const;
};

// The filter in a property list: { Filter = { Bundles = ( "com.example.host", ... ); }; }. Other
// kinds of filter and other keys are passed over.
//
// Errors: no dictionary; no "Filter" that is one; no "Bundles" in it that is an array of strings.
model::Result<ExtensionFilter> parseFilter(const model::Value& list);

// The filter in a file. Errors: as above, and why the file cannot be read as a property list.
model::Result<ExtensionFilter> readFilter(const std::string& path);

}  // namespace desktop::loader
