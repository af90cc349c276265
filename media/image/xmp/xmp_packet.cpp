// SPDX-License-Identifier: MIT
//
// The properties stand as elements or attributes of the rdf:Description elements of one rdf:RDF,
// which may have other elements around it. The parser expands no entities but the five of XML and
// character references, and neither it nor this walk recurses with the depth of the document.
#include <algorithm>
#include <pugixml.hpp>
#include <vector>

#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/blocks/shortfall.h"
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

// Puts what the packet says into the properties: each property where it is met, and those that
// stand in for others when all are known.
class PacketReader {
 public:
  explicit PacketReader(model::Dictionary& properties) : _properties(properties) {}

  void read(const pugi::xml_document& document) {
    readRdf(document, XmpScope(), 2);
    for (const auto& [row, value] : _substitutes) row.store(value, row, _properties);
  }

 private:
  struct Substitute {
    XmpRow row;
    XmpValue value;
  };

  // Looks for rdf:RDF in an element, and below it down to a few levels.
  void readRdf(const pugi::xml_node& element, const XmpScope& outer, int levels) {
    const XmpScope scope(element, outer);
    const bool isRdf = scope.resolve(element.name()) == XmpName{XmpNamespace::rdf, "RDF"};
    for (const pugi::xml_node& child : element.children()) {
      if (child.type() != pugi::node_element) continue;
      if (isRdf) {
        readDescription(child, scope);
      } else if (levels > 0) {
        readRdf(child, scope, levels - 1);
      }
    }
  }

  void readDescription(const pugi::xml_node& description, const XmpScope& outer) {
    const XmpScope scope(description, outer);
    for (const pugi::xml_attribute& attribute : description.attributes()) {
      take(scope.resolve(attribute.name()), [&] { return simpleXmpValue(attribute.value()); });
    }
    for (const pugi::xml_node& element : description.children()) {
      take(XmpScope(element, scope).resolve(element.name()),
           [&] { return readXmpValue(element, scope); });
    }
  }

  // Only values that are shown are read.
  template <typename ReadValue>
  void take(XmpName name, ReadValue readValue) {
    const auto row = xmpRow(name);
    const auto substitute = xmpSubstituteRow(name);
    if (!row && !substitute) return;
    XmpValue value = readValue();
    if (value.isCut) noteShortfall(_properties, cutText);
    if (row) row->store(value, *row, _properties);
    if (substitute) _substitutes.push_back({*substitute, std::move(value)});
  }

  model::Dictionary& _properties;
  std::vector<Substitute> _substitutes;
};

}  // namespace

void readXmpPacket(io::ByteView packet, model::Dictionary& properties) {
  const std::string_view text = packet.text();
  if (!isWithinLimits(text)) return noteShortfall(properties, droppedMetadata);
  pugi::xml_document document;
  // A packet that breaks off is read as far as it goes.
  document.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_auto);
  PacketReader(properties).read(document);
}

}  // namespace media::image
