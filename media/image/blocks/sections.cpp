// SPDX-License-Identifier: MIT
//
// The sections of a properties dictionary.
#include "media/image/blocks/metadata_blocks.h"

namespace media::image {

model::Dictionary& section(model::Dictionary& properties, std::string_view name) {
  auto entry = properties.lower_bound(name);
  if (entry == properties.end() || entry->first != name) {
    entry = properties.emplace_hint(entry, std::string(name), model::Dictionary());
  }
  if (!entry->second.asDictionary()) entry->second = model::Dictionary();
  return *entry->second.asDictionary();
}

std::string_view sectionText(const model::Dictionary& properties, std::string_view name,
                             std::string_view key) {
  const model::Value* found = model::find(properties, name);
  const model::Value* value =
      found && found->asDictionary() ? model::find(*found->asDictionary(), key) : nullptr;
  return value && value->asString() ? std::string_view(*value->asString()) : std::string_view();
}

void setIfAbsent(model::Dictionary& dictionary, std::string_view key, model::Value value) {
  const auto entry = dictionary.lower_bound(key);
  if (entry != dictionary.end() && entry->first == key) return;
  dictionary.emplace_hint(entry, std::string(key), std::move(value));
}

}  // namespace media::image
