// SPDX-License-Identifier: MIT
//
// What a command line asks for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/geometry.h"

namespace lumifact::tool {

// The choices of one run. What is none was not given.
struct Options {
  // What stands behind the command without being an option: files, or words of the command's own.
  std::vector<std::string> words;

  // Which files beside those, and on how many threads.
  bool isRecursive = false;
  std::optional<std::string> filesFrom;
  bool listsEndInZero = false;
  std::optional<unsigned> jobs;

  // What the settings are.
  std::optional<std::string> settingsFile;
  std::optional<std::int32_t> mapType;
  std::optional<double> mapZoomLevel;
  std::optional<std::int32_t> mapViewType;

  // Of most commands.
  std::optional<std::string> locale;
  std::optional<std::string> timeZone;
  std::optional<std::string> root;
  bool wantsHelp = false;
  bool wantsVersion = false;

  // The commands' own.
  bool json = false;                        // report
  bool compact = false;                     // quick-info
  std::optional<std::int32_t> display;      // caption
  std::optional<std::string> coordinates;   // map-link
  std::optional<model::Location> location;  // map-link
  std::optional<std::string> propertyList;  // parse
  bool unset = false;                       // settings
};

}  // namespace lumifact::tool
