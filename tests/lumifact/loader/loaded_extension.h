// SPDX-License-Identifier: MIT
//
// The photo application with the extension loaded, once for the tests of a process. The class
// PUPhotosPanoramaViewController is missing from it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/lumifact/loader/extension_host.h"
#include "tests/lumifact/loader/host_classes.h"
#include "tests/lumifact/loader/probe.h"

namespace lumifact::host {

inline constexpr const char* missingClass = "PUPhotosPanoramaViewController";

struct LoadedExtension {
  ExtensionHost host{"com.apple.mobileslideshow"};
  std::vector<std::string> events;  // of the loading
  const Probe* probe = nullptr;
  Settings settingsAfter;       // as the loading left them
  IMP siblingBefore = nullptr;  // viewWillAppear: of HostSiblingViewController before the loading
};

// REQUIRES: the first call finds the library; a settings file with "fontSize" 21 is there then.
const LoadedExtension& loadedExtension();

// The rows of one kind.
std::vector<bridge::HookRow> rowsOf(bridge::HookKind kind);

// The host's description of a replaced row's method.
const HostMethod& hostMethodOf(const bridge::HookRow& row);

// A new object of the row's class; its making leaves no trace in hostCalls.
bridge::Owned<bridge::Object> makeReceiver(const bridge::HookRow& row);

}  // namespace lumifact::host
