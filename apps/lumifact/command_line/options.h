// SPDX-License-Identifier: MIT
//
// What a command line asks for, after it has been read and checked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "apps/lumifact/json/parse_answer.h"
#include "model/geometry.h"

namespace lumifact::tool {

enum class SettingsAction { list, get, set, unset, reset };

// The choices of one run. What is none was not given.
struct Options {
  // Common to all commands.
  std::optional<std::string> settingsFile;
  std::optional<std::string> root;
  std::optional<std::int32_t> mapType;
  std::optional<double> mapZoomLevel;
  std::optional<std::int32_t> mapViewType;
  std::optional<std::string> locale;
  std::optional<std::string> timeZone;

  // Which files, and on how many threads.
  std::vector<std::string> files;
  bool isRecursive = false;
  std::optional<std::string> filesFrom;
  bool listsEndInZero = false;
  std::optional<unsigned> jobs;

  // The commands' own.
  bool json = false;                             // report
  bool compact = false;                          // quick-info
  std::optional<std::int32_t> display;           // caption
  std::optional<std::string> coordinates;        // map-link
  std::optional<model::Location> location;       // map-link
  ParseKind parseKind = ParseKind::image;        // parse
  std::optional<std::string> propertyList;       // parse
  std::vector<std::string> words;                // parse, browse and settings, as they stand
  bool unset = false;                            // settings
  SettingsAction action = SettingsAction::list;  // settings
  std::string key;                               // settings
  std::string value;                             // settings
};

}  // namespace lumifact::tool
