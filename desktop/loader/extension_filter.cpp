// SPDX-License-Identifier: MIT
#include "desktop/loader/extension_filter.h"

#include <algorithm>

#include "foundation/property_lists/property_list.h"

namespace desktop::loader {

bool ExtensionFilter::matches(std::string_view bundleIdentifier) const {
  return std::ranges::find(bundles, bundleIdentifier) != bundles.end();
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
  return parsed;
}

model::Result<ExtensionFilter> readFilter(const std::string& path) {
  const model::Result<foundation::PropertyList> list = foundation::readPropertyList(path);
  if (!list) return list.error();
  return parseFilter(list->root);
}

}  // namespace desktop::loader
