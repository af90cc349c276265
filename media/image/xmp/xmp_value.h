// SPDX-License-Identifier: MIT
//
// The values of XMP properties, out of the several spellings that RDF has for each of them.
// ISO 16684-1, clauses 6.3 and 7.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "media/image/xmp/xmp_names.h"

namespace pugi {
class xml_node;
}

namespace media::image {

struct XmpField;

// A simple value has a text; an array, items; a structure, fields.
struct XmpValue {
  std::string text;  // valid UTF-8
  std::vector<XmpValue> items;
  bool isAlternative = false;  // the items say the same in several languages
  std::vector<XmpField> fields;
  bool isCut = false;  // of a whole property: a text in it is longer than the limit

  // The text of a simple value; of an array, its first simple item's; empty for structures.
  // Alternatives in several languages have their default in front.
  std::string_view simpleText() const;
  // The texts of an array, or of a simple value as of an array of one.
  std::vector<std::string_view> texts() const;
  // The items of an array, or this value alone.
  const XmpValue* begin() const;
  const XmpValue* end() const;
  // A field of a structure, or null.
  const XmpValue* field(XmpName name) const;
};

struct XmpField {
  XmpName name;  // borrowed from the document
  XmpValue value;
};

// The value of a property element that stands in the given scope. What nests deeper than the
// limits allow is left out.
XmpValue readXmpValue(const pugi::xml_node& property, const XmpScope& around);

// The value of a property that stands as an attribute.
XmpValue simpleXmpValue(const char* text);

}  // namespace media::image
