// SPDX-License-Identifier: MIT
//
// The command line of the photo application.
#pragma once

#include <string>
#include <vector>

#include "bridge/geometry.h"
#include "model/result.h"

namespace photohost {

struct Options {
  std::string library;     // the folder of photos; empty: the user's pictures
  std::string extensions;  // the folder of extensions; empty: none
  std::string bundleIdentifier = "com.apple.mobileslideshow";
  std::string root;          // the device root; empty: the user's
  CGSize size = {375, 667};  // of the screen, in points
  double scale = 2;          // pixels a point of screenshots, 1 to 3
  bool isHeadless = false;
  std::string script;  // a file, or "-" for standard input; empty: none
};

// What the arguments, without the program's name, ask for.
struct CommandLine {
  Options options;
  std::string text;        // to print instead of running: help, version
  std::string usageError;  // empty where there is none
};

CommandLine readCommandLine(const std::vector<std::string>& arguments);

}  // namespace photohost
