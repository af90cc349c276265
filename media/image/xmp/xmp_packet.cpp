// SPDX-License-Identifier: MIT
//
// The properties stand as elements or attributes of the rdf:Description elements of one rdf:RDF,
// which may have other elements around it. The parser expands no entities but the five of XML and
// character references, and neither it nor this walk recurses with the depth of the document.
#include <algorithm>
#include <pugixml.hpp>

#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/xmp/xmp_properties.h"
#include "media/image/xmp/xmp_value.h"

namespace media::image {

namespace {

// Whether the tree would stay small: nodes are counted by the characters that begin them.
bool isWithinLimits(std::string_view text) {
  const auto count = [&](char character) {
    return static_cast<std::size_t>(std::ranges::count(text, character));
  };
  return text.size() <= limits.embeddedBytes && count('<') <= limits.xmpElements &&
         count('=') <= limits.xmpElements;
}

void readDescription(const pugi::xml_node& description, const XmpScope& outer,
                     model::Dictionary& properties) {
  const XmpScope scope(description, outer);
  for (const pugi::xml_attribute& attribute : description.attributes()) {
    const XmpName name = scope.resolve(attribute.name());
    if (const XmpRow* row = xmpRow(name)) {
      row->store(simpleXmpValue(attribute.value()), *row, properties);
    }
  }
  for (const pugi::xml_node& element : description.children()) {
    const XmpName name = XmpScope(element, scope).resolve(element.name());
    if (const XmpRow* row = xmpRow(name)) {
      row->store(readXmpValue(element, scope), *row, properties);
    }
  }
}

// Looks for rdf:RDF in an element, and below it down to a few levels.
void readRdf(const pugi::xml_node& element, const XmpScope& outer, int levels,
             model::Dictionary& properties) {
  const XmpScope scope(element, outer);
  const bool isRdf = scope.resolve(element.name()) == XmpName{XmpNamespace::rdf, "RDF"};
  for (const pugi::xml_node& child : element.children()) {
    if (child.type() != pugi::node_element) continue;
    if (isRdf) {
      readDescription(child, scope, properties);
    } else if (levels > 0) {
      readRdf(child, scope, levels - 1, properties);
    }
  }
}

}  // namespace

void readXmpPacket(io::ByteView packet, model::Dictionary& properties) {
  const std::string_view text = packet.text();
  if (!isWithinLimits(text)) return;
  pugi::xml_document document;
  // A packet that breaks off is read as far as it goes.
  document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_auto);
  readRdf(document, XmpScope(), 2, properties);
}

}  // namespace media::image
