// SPDX-License-Identifier: MIT
#include "desktop/loader/extension_filter.h"

#include <algorithm>
#include <optional>

#include "foundation/property_lists/property_list.h"

namespace desktop::loader {
namespace {

std::optional<double> numberIn(const model::Value& value) {
  if (const double* real = value.asReal()) return *real;
  if (const std::int64_t* integer = value.asInteger()) return static_cast<double>(*integer);
  return std::nullopt;
}

bool readVersions(const model::Value& versions, ExtensionFilter& filter) {
  const model::Array* array = versions.asArray();
  if (!array || array->empty() || array->size() > 2) return false;
  const auto first = numberIn(array->front());
  const auto second = numberIn(array->back());
  if (!first || !second) return false;
  filter.firstVersion = *first;
  if (array->size() == 2) filter.endOfVersions = *second;
  return true;
}

}  // namespace

bool ExtensionFilter::matches(const Host& host) const {
  return std::ranges::find(bundles, host.bundleIdentifier) != bundles.end() &&
         host.coreFoundationVersion >= firstVersion && host.coreFoundationVersion < endOfVersions;
}

model::Result<ExtensionFilter> parseFilter(const model::Value& list) {
  const model::Dictionary* root = list.asDictionary();
  if (!root) return model::Error{"filter is no dictionary"};
  const model::Value* filter = model::find(*root, "Filter");
  if (!filter || !filter->asDictionary()) return model::Error{"filter has no \"Filter\""};
  const model::Value* bundles = model::find(*filter->asDictionary(), "Bundles");
  if (!bundles || !bundles->asArray()) return model::Error{"filter has no \"Bundles\""};
  ExtensionFilter parsed;
  for (const model::Value& bundle : *bundles->asArray()) {
    if (!bundle.asString()) return model::Error{"\"Bundles\" holds something else than text"};
    parsed.bundles.push_back(*bundle.asString());
  }
  const model::Value* versions = model::find(*filter->asDictionary(), "CoreFoundationVersion");
  if (versions && !readVersions(*versions, parsed))
    return model::Error{"\"CoreFoundationVersion\" is no range of numbers"};
  return parsed;
}

model::Result<ExtensionFilter> readFilter(const std::string& path) {
  const model::Result<foundation::PropertyList> list = foundation::readPropertyList(path);
  if (!list) return list.error();
  return parseFilter(list->root);
}

}  // namespace desktop::loader
