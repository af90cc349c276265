// SPDX-License-Identifier: MIT
#include "desktop/library/live_photo.h"

#include <algorithm>

#include "media/facts/asset_facts.h"

namespace desktop::library {
namespace {

std::string textOf(const model::Value* value) {
  const std::string* const text = value ? value->asString() : nullptr;
  return text ? *text : std::string();
}

// Tag 17 of the phone's maker note.
std::string identifierOfStill(const model::Dictionary& properties) {
  const model::Value* const note = model::find(properties, "{MakerApple}");
  const model::Dictionary* const values = note ? note->asDictionary() : nullptr;
  return values ? textOf(model::find(*values, "17")) : std::string();
}

std::string identifierOfFilm(const model::MediaAsset& film) {
  const auto item =
      std::ranges::find(film.commonMetadata, "identifier", &model::MetadataItem::commonKey);
  return item != film.commonMetadata.end() && item->value ? textOf(&*item->value) : std::string();
}

}  // namespace

std::string_view stemOf(std::string_view name) {
  return name.substr(0, name.rfind('.'));
}

// Paths of a library are those on disk already.
std::string liveIdentifier(const std::string& path) {
  const auto facts = media::facts::readAssetFacts(path, foundation::DeviceRoot("/"));
  if (!facts) return {};
  if (facts->properties) return identifierOfStill(*facts->properties);
  return facts->asset ? identifierOfFilm(*facts->asset) : std::string();
}

}  // namespace desktop::library
