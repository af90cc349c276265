// SPDX-License-Identifier: MIT
//
// A host process for the extension: a device root of its own, Foundation as on the phone, and a
// record of what happens while the extension is loaded.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "lumifact/state/settings.h"

namespace lumifact::host {

class ExtensionHost {
 public:
  // Once a process: the classes of Foundation are changed for good.
  explicit ExtensionHost(const std::string& bundleIdentifier);
  ~ExtensionHost();
  ExtensionHost(const ExtensionHost&) = delete;
  ExtensionHost& operator=(const ExtensionHost&) = delete;

  const std::string& root() const { return _root; }
  // Where the settings file lies on disk.
  std::string settingsFile() const;
  void writeSettings(std::string_view bytes) const;
  // Takes away whatever lies there.
  void removeSettings() const;

  // Runs `load` and answers what happened in it, an event a line: pools opened and closed, the
  // file size cache made, property lists read, observers added, the host's identifier asked for,
  // frameworks loaded ("load PATH MODE"), methods given to classes ("method CLASS SELECTOR
  // ENCODING").
  std::vector<std::string> eventsOf(const std::function<void()>& load) const;

  // Posts the notification and lets the main loop turn once.
  void notify(std::string_view name) const;

 private:
  std::string _root;
};

// Runs when a framework is loaded during eventsOf, in the place of what it brings.
void onFrameworkLoad(std::function<void()> action);

}  // namespace lumifact::host
