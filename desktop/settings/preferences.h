// SPDX-License-Identifier: MIT
//
// What is stored of the rows of pages, in the preference files of a device root.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "desktop/settings/page.h"
#include "foundation/device_root.h"
#include "model/result.h"

namespace desktop::settings {

// Whether a preference file can have this name.
bool isDomain(std::string_view name);
// Where the preference file of a domain lies on disk.
std::string preferenceFile(const foundation::DeviceRoot& root, std::string_view domain);

class Preferences {
 public:
  explicit Preferences(foundation::DeviceRoot root) : _root(std::move(root)) {}

  // Files are read when they are first asked for, and anew after this.
  void refresh() { _files.clear(); }

  // What is stored of a row, else what it shows meanwhile. A file that is missing or damaged holds
  // nothing; what is no flag, number or text counts as not stored.
  model::Value valueOf(const Row& row);

  // Writes a value and posts the place's notification. Errors: the file and what is wrong with it,
  // which is then as it was; that nobody could be told of what is written.
  std::optional<model::Error> store(const Place& place, const model::Value& value);

 private:
  model::Dictionary& fileOf(const std::string& domain);

  foundation::DeviceRoot _root;
  std::map<std::string, model::Dictionary> _files;  // what they hold, by domain
};

}  // namespace desktop::settings
