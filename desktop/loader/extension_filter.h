// SPDX-License-Identifier: MIT
//
// Which hosts an extension is for: the property list beside its library.
#pragma once

#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "model/result.h"
#include "model/value.h"

namespace desktop::loader {

// What filters know of a host: who it is, and the version of its CoreFoundation, which tells the
// system's.
struct Host {
  std::string_view bundleIdentifier;
  double coreFoundationVersion = 0;
};

// The bundle identifiers that a filter names, and the versions: from the first to below the second.
struct ExtensionFilter {
  std::vector<std::string> bundles;
  double firstVersion = std::numeric_limits<double>::lowest();
  double endOfVersions = std::numeric_limits<double>::infinity();

  bool matches(const Host& host) const;
};

// The filter in a property list:
//
//   { Filter = { Bundles = ( "com.example.host" ); CoreFoundationVersion = ( 1556, 1600 ); }; }
//
// Without its second version it is for all from the first one on, without any for every version.
// Other kinds of filter and other keys are passed over.
//
// Errors: no dictionary; no "Filter" that is one; no "Bundles" in it that is an array of strings; a
// "CoreFoundationVersion" that is no array of one number or two.
model::Result<ExtensionFilter> parseFilter(const model::Value& list);

// The filter in a file. Errors: as above, and why the file cannot be read as a property list.
model::Result<ExtensionFilter> readFilter(const std::string& path);

}  // namespace desktop::loader
