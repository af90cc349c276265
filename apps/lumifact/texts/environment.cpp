// SPDX-License-Identifier: MIT
#include "apps/lumifact/texts/environment.h"

#include "foundation/collation.h"
#include "foundation/paths.h"
#include "foundation/property_lists/property_list.h"

namespace lumifact::tool {

namespace {

using foundation::DeviceRoot;
using foundation::Locale;

Locale localeOf(const Options& options, Reader reader, const char* category) {
  if (options.locale) return Locale(*options.locale);
  return reader == Reader::person ? Locale::ofUser(category) : Locale();
}

}  // namespace

DeviceRoot rootOf(const Options& options) {
  if (!options.root) return DeviceRoot::ofUser();
  return DeviceRoot(foundation::absolutePath(*options.root));
}

std::string settingsFileOf(const Options& options) {
  return options.settingsFile ? *options.settingsFile : rootOf(options).onDisk(settingsPath);
}

Settings settingsOf(const Options& options) {
  const auto list = foundation::readPropertyList(settingsFileOf(options));
  Settings settings = settingsFromFile(list ? list->root.asDictionary() : nullptr);
  settings.mapType = options.mapType.value_or(settings.mapType);
  settings.mapZoomLevel = options.mapZoomLevel.value_or(settings.mapZoomLevel);
  settings.mapViewType = options.mapViewType.value_or(settings.mapViewType);
  return settings;
}

Environment environmentOf(const Options& options, Reader reader) {
  return {.root = rootOf(options),
          .settings = settingsOf(options),
          .dates = localeOf(options, reader, "LC_TIME"),
          .numbers = localeOf(options, reader, "LC_NUMERIC"),
          .keyOrder = foundation::keyComparison(localeOf(options, reader, "LC_COLLATE"))};
}

}  // namespace lumifact::tool
