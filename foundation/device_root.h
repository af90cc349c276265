// SPDX-License-Identifier: MIT
//
// The folder that stands for the phone's file system: "/var/mobile/..." lies below it.
#pragma once

#include <string>
#include <string_view>

namespace foundation {

// A device root. Paths are absolute, without a trailing slash; links on the way to the root are
// followed, as they are on the way to a file.
class DeviceRoot {
 public:
  explicit DeviceRoot(const std::string& folder);

  // The user's: "photohost" below XDG_DATA_HOME, else below ~/.local/share.
  static DeviceRoot ofUser();

  const std::string& folder() const { return _folder; }

  // Where a path lies on disk: paths that are or begin with "/var/mobile/" lie below the root,
  // all others are as they are.
  std::string onDisk(std::string_view path) const;

  // The path as the phone's programs know it: below the root's "/var/mobile" the root is dropped.
  std::string onDevice(std::string_view path) const;

 private:
  std::string _folder;
};

}  // namespace foundation
