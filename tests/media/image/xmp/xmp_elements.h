// SPDX-License-Identifier: MIT
//
// XMP packets put together from elements, for the tests of what is read from them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "media/image/blocks/metadata_blocks.h"
#include "tests/media/image/container_builder.h"

namespace media::image {

inline model::Dictionary readPacket(std::string_view packet) {
  model::Dictionary properties;
  readXmpPacket(viewOf(packet), properties);
  return properties;
}

inline model::Dictionary readElements(std::string_view elements) {
  return readPacket(xmpPacket(elements));
}

inline std::string list(std::string_view kind, const std::vector<std::string>& items) {
  std::string text = "<rdf:" + std::string(kind) + ">";
  for (const std::string& item : items) text += "<rdf:li>" + item + "</rdf:li>";
  return text + "</rdf:" + std::string(kind) + ">";
}

inline std::string element(std::string_view name, std::string_view content) {
  return "<" + std::string(name) + ">" + std::string(content) + "</" + std::string(name) + ">";
}

}  // namespace media::image
