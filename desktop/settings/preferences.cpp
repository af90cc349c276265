// SPDX-License-Identifier: MIT
#include "desktop/settings/preferences.h"

#include <algorithm>

#include "foundation/notification_core.h"
#include "foundation/property_lists/property_list.h"
#include "foundation/property_lists/property_list_edit.h"

namespace desktop::settings {
namespace {

model::Dictionary contentsOf(const std::string& file) {
  auto list = foundation::readPropertyList(file);
  model::Dictionary* const entries = list ? list->root.asDictionary() : nullptr;
  return entries ? std::move(*entries) : model::Dictionary();
}

}  // namespace

bool isDomain(std::string_view name) {
  return !name.empty() && name.front() != '.' && std::ranges::none_of(name, [](char letter) {
    return letter == '/' || static_cast<unsigned char>(letter) < ' ';
  });
}

std::string preferenceFile(const foundation::DeviceRoot& root, std::string_view domain) {
  return root.onDisk("/var/mobile/Library/Preferences/" + std::string(domain) + ".plist");
}

model::Dictionary& Preferences::fileOf(const std::string& domain) {
  const auto known = _files.find(domain);
  if (known != _files.end()) return known->second;
  return _files[domain] = contentsOf(preferenceFile(_root, domain));
}

model::Value Preferences::valueOf(const Row& row) {
  if (row.place.key.empty()) return row.standard;
  const model::Value* const stored = model::find(fileOf(row.place.domain), row.place.key);
  return stored && (isNumber(*stored) || stored->asString()) ? *stored : row.standard;
}

std::optional<model::Error> Preferences::store(const Place& place, const model::Value& value) {
  const std::string file = preferenceFile(_root, place.domain);
  const auto failed = foundation::editPropertyListFile(
      file, [&](model::Dictionary& entries) { entries.insert_or_assign(place.key, value); });
  if (failed) return model::Error{file + ": " + failed->reason};
  fileOf(place.domain).insert_or_assign(place.key, value);
  if (place.notification.empty()) return std::nullopt;
  const auto posted = foundation::postNotification(foundation::notificationFolder(_root.folder()),
                                                   place.notification);
  if (posted) return std::nullopt;
  return model::Error{"written, but not announced: " + posted.error().reason};
}

}  // namespace desktop::settings
