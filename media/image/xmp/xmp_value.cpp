// SPDX-License-Identifier: MIT
#include "media/image/xmp/xmp_value.h"

#include <algorithm>
#include <pugixml.hpp>

#include "media/image/blocks/limits.h"
#include "model/utf8.h"

namespace media::image {

namespace {

constexpr XmpName languageName{XmpNamespace::xml, "lang"};

// Whether a name is of XML or RDF itself, and so no field of a structure.
bool isSyntax(XmpName name) {
  return name.space == XmpNamespace::rdf || name.space == XmpNamespace::xml ||
         name.local.starts_with("xmlns");
}

class ValueReader {
 public:
  XmpValue readProperty(const pugi::xml_node& property, const XmpScope& around) {
    XmpValue value = read(property, around, 0);
    value.isCut = _isCut;
    return value;
  }

  XmpValue readSimple(const char* text) {
    XmpValue value;
    value.text = textOf(text);
    value.isCut = _isCut;
    return value;
  }

 private:
  XmpValue read(const pugi::xml_node& property, const XmpScope& around, std::size_t depth) {
    if (depth > limits.xmpDepth) return {};
    const XmpScope scope(property, around);
    XmpValue value;
    readAttributes(property, scope, value);
    for (const pugi::xml_node& child : property.children()) {
      if (child.type() == pugi::node_element) readChild(child, scope, depth, value);
    }
    if (value.items.empty() && value.text.empty()) value.text = textOf(property.text().get());
    return value;
  }

  std::string textOf(const char* bytes) {
    const std::string_view text = bytes;
    _isCut = _isCut || text.size() > limits.textBytes;
    return model::utf8OrLatin1(text.substr(0, limits.textBytes));
  }

  // Fields of a structure in its short form, and the link of a value that is one.
  void readAttributes(const pugi::xml_node& element, const XmpScope& scope, XmpValue& value) {
    for (const pugi::xml_attribute& attribute : element.attributes()) {
      const XmpName name = scope.resolve(attribute.name());
      if (name == XmpName{XmpNamespace::rdf, "resource"}) value.text = textOf(attribute.value());
      if (!isSyntax(name)) addField(name, readSimple(attribute.value()), value);
    }
  }

  void readChild(const pugi::xml_node& child, const XmpScope& scope, std::size_t depth,
                 XmpValue& value) {
    const XmpScope childScope(child, scope);
    const XmpName name = childScope.resolve(child.name());
    if (name.space != XmpNamespace::rdf) {
      addField(name, read(child, scope, depth + 1), value);
    } else if (name.local == "Description") {
      value.fields = read(child, scope, depth + 1).fields;
    } else if (name.local == "value") {  // a value with qualifiers beside it
      value = read(child, scope, depth + 1);
    } else if (name.local == "Seq" || name.local == "Bag" || name.local == "Alt") {
      value.isAlternative = name.local == "Alt";
      readItems(child, childScope, depth, value);
    }
  }

  void readItems(const pugi::xml_node& list, const XmpScope& scope, std::size_t depth,
                 XmpValue& value) {
    for (const pugi::xml_node& item : list.children()) {
      if (value.items.size() == limits.valuesPerField) return;
      const bool isItem = item.type() == pugi::node_element &&
                          XmpScope(item, scope).resolve(item.name()).local == "li";
      if (!isItem) continue;
      value.items.push_back(read(item, scope, depth + 1));
      if (isDefaultLanguage(item, scope)) std::swap(value.items.front(), value.items.back());
    }
  }

  static bool isDefaultLanguage(const pugi::xml_node& item, const XmpScope& scope) {
    for (const pugi::xml_attribute& attribute : item.attributes()) {
      if (scope.resolve(attribute.name()) == languageName) {
        return std::string_view(attribute.value()) == "x-default";
      }
    }
    return false;
  }

  static void addField(XmpName name, XmpValue field, XmpValue& value) {
    if (value.fields.size() < limits.valuesPerField) {
      value.fields.push_back({name, std::move(field)});
    }
  }

  bool _isCut = false;
};

}  // namespace

std::string_view XmpValue::simpleText() const {
  return items.empty() ? std::string_view(text) : std::string_view(items.front().text);
}

std::vector<std::string_view> XmpValue::texts() const {
  std::vector<std::string_view> all;
  for (const XmpValue& each : *this) {
    if (!each.text.empty()) all.emplace_back(each.text);
  }
  return all;
}

const XmpValue* XmpValue::begin() const {
  return items.empty() ? this : items.data();
}

const XmpValue* XmpValue::end() const {
  return items.empty() ? this + 1 : items.data() + items.size();
}

const XmpValue* XmpValue::field(XmpName name) const {
  const auto found = std::ranges::find(fields, name, &XmpField::name);
  return found == fields.end() ? nullptr : &found->value;
}

XmpValue simpleXmpValue(const char* text) {
  return ValueReader().readSimple(text);
}

XmpValue readXmpValue(const pugi::xml_node& property, const XmpScope& around) {
  return ValueReader().readProperty(property, around);
}

}  // namespace media::image
