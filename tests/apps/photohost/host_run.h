// SPDX-License-Identifier: MIT
//
// Runs the built photo application without a display, as scripts drive it, and reads what it tells
// of its screen.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace photohost {

using Json = nlohmann::ordered_json;

struct HostResult {
  int status = -1;
  std::string output;
  std::string messages;
};

// One run at a time; what it writes lies in a folder of its own.
class Host {
 public:
  Host();

  // With the extension or without any; the sample library unless told otherwise.
  Host& withoutExtensions();
  Host& library(std::string folder);
  Host& size(int width, int height);
  // Files may not grow beyond so many blocks, as on a full disk.
  Host& fileLimit(int blocks);

  // Runs the lines of a script and expects them all to succeed.
  HostResult run(const std::string& script);
  // The same for one that may fail.
  HostResult tryToRun(const std::string& script, const std::string& options = "");
  // What "dump NAME.json" wrote in the last run.
  Json dumped(const std::string& name) const;

  std::string root() const { return _folder.file("root"); }
  std::string file(const std::string& name) const { return _folder.file(name); }

 private:
  support::TemporaryFolder _folder;
  std::string _library;
  bool _hasExtensions = true;
  std::string _size;
  std::string _limits;
};

// The program's own sample library.
std::string sampleLibrary();

// What the command-line tool prints.
std::string toolOutput(const std::string& arguments);

// What it says on standard error, however it ends.
std::string toolMessages(const std::string& arguments);

// Starts the application through the tool, on a display that shows nothing, and ends it after some
// seconds; whether it was running until then.
bool toolBrowses(const std::string& folder);

// Every node of a dumped tree for which a test holds.
std::vector<Json> nodesOfClass(const Json& screen, const std::string& className);
// The texts of all nodes that have one.
std::vector<std::string> textsOf(const Json& screen);
// How many bar items on the right have a button of their own.
int customButtons(const Json& screen);

// The script's lines that change a setting of the extension: "viewType 1".
std::string setting(const std::string& keyAndValue);

// Presses the details button of the single photo, and waits for the page.
inline constexpr char pressInfo[] = "tap 328 42\nwait 1\n";

}  // namespace photohost
