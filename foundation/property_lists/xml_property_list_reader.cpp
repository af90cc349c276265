// SPDX-License-Identifier: MIT
//
// pugixml takes the text apart; here elements become values by their names. The tree of elements is
// walked with a budget of depth and entries, and what no list may hold (an unknown element, a key
// without a value, text between elements) makes all of it damaged rather than partly read.
#include <charconv>
#include <pugixml.hpp>
#include <utility>

#include "foundation/property_lists/base64.h"
#include "foundation/property_lists/property_list_budget.h"
#include "foundation/property_lists/xml_property_list.h"
#include "model/civil_time.h"
#include "model/number_text.h"
#include "model/utf8.h"

namespace foundation {

namespace {

model::Error damaged() {
  return {"damaged XML property list"};
}

bool isBlank(char character) {
  return character == ' ' || character == '\t' || character == '\n' || character == '\r';
}

bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

// The text inside an element, in one piece or around comments; none where elements stand in it.
std::optional<std::string> textOf(const pugi::xml_node& element) {
  std::string text;
  for (const pugi::xml_node& child : element.children()) {
    if (child.type() == pugi::node_element) return std::nullopt;
    text += child.value();
  }
  return model::replacingInvalidUtf8(text);
}

model::Result<model::Value> integerFrom(std::string_view text) {
  text = trimmed(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
  if (hexadecimal) text.remove_prefix(2);
  std::uint64_t magnitude = 0;
  const char* end = text.data() + text.size();
  const auto parsed = std::from_chars(text.data(), end, magnitude, hexadecimal ? 16 : 10);
  if (parsed.ec == std::errc::invalid_argument || parsed.ptr != end) return damaged();
  const bool isTooSmall = negative && magnitude > std::uint64_t{1} << 63;
  if (parsed.ec != std::errc() || isTooSmall) {
    return model::Error{"property list with an integer beyond 64 bits"};
  }
  return negative ? model::Value(static_cast<std::int64_t>(0 - magnitude))
                  : model::Value(magnitude);
}

// "nan" and the infinities count as numbers.
model::Result<model::Value> realFrom(std::string_view text) {
  text = trimmed(text);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  double real = 0;
  const char* end = text.data() + text.size();
  const auto parsed = std::from_chars(text.data(), end, real);
  if (parsed.ec == std::errc::invalid_argument || parsed.ptr != end) return damaged();
  // Out of range: from_chars leaves the number alone, the nearest one is wanted.
  return model::Value(parsed.ec == std::errc() ? real : model::parseRealPrefix(text));
}

// "2018-09-30T12:03:11Z", always in UTC.
model::Result<model::Value> dateFrom(std::string_view text) {
  constexpr std::string_view form = "0000-00-00T00:00:00Z";
  text = trimmed(text);
  if (text.size() != form.size()) return damaged();
  for (std::size_t index = 0; index < form.size(); ++index) {
    const bool fits = form[index] == '0' ? isDigit(text[index]) : text[index] == form[index];
    if (!fits) return damaged();
  }
  const auto number = [&](std::size_t offset, std::size_t digits) {
    int value = 0;
    std::from_chars(text.data() + offset, text.data() + offset + digits, value);
    return value;
  };
  const model::CivilTime time = {.year = number(0, 4),
                                 .month = number(5, 2),
                                 .day = number(8, 2),
                                 .hour = number(11, 2),
                                 .minute = number(14, 2),
                                 .second = number(17, 2)};
  const bool inRange = time.month >= 1 && time.month <= 12 && time.day >= 1 && time.day <= 31 &&
                       time.hour <= 24 && time.minute <= 59 && time.second <= 60;
  if (!inRange) return damaged();
  return model::Value(model::dateFromUtc(time));
}

model::Result<model::Value> dataFrom(std::string text) {
  std::erase_if(text, isBlank);
  auto data = dataFromBase64(text);
  if (!data) return damaged();
  return model::Value(std::move(*data));
}

// Reads elements; REQUIRES: the document outlives it.
class Reader {
 public:
  model::Result<model::Value> element(const pugi::xml_node& node, int depth) {
    if (!_budget.takeValue()) return overBudget();
    const std::string_view name = node.name();
    if (name == "dict") return dictionary(node, depth);
    if (name == "array") return array(node, depth);
    if (name == "true") return model::Value(true);
    if (name == "false") return model::Value(false);
    return scalar(name, textOf(node));
  }

 private:
  static model::Result<model::Value> scalar(std::string_view name,
                                            std::optional<std::string> text) {
    if (!text) return damaged();
    if (name == "string") return model::Value(std::move(*text));
    if (name == "integer") return integerFrom(*text);
    if (name == "real") return realFrom(*text);
    if (name == "date") return dateFrom(*text);
    if (name == "data") return dataFrom(std::move(*text));
    return damaged();
  }

  model::Result<model::Value> array(const pugi::xml_node& node, int depth) {
    if (!PropertyListBudget::allowsContainer(depth)) return overBudget();
    model::Array elements;
    for (const pugi::xml_node& child : node.children()) {
      if (isBetweenElements(child)) continue;
      auto value = element(child, depth + 1);
      if (!value) return value.error();
      elements.push_back(std::move(*value));
    }
    return model::Value(std::move(elements));
  }

  model::Result<model::Value> dictionary(const pugi::xml_node& node, int depth) {
    if (!PropertyListBudget::allowsContainer(depth)) return overBudget();
    model::Dictionary entries;
    std::optional<std::string> key;
    for (const pugi::xml_node& child : node.children()) {
      if (isBetweenElements(child)) continue;
      if (!key) {
        key = keyOf(child);
        if (!key) return damaged();
        continue;
      }
      auto value = element(child, depth + 1);
      if (!value) return value.error();
      entries.insert_or_assign(std::move(*key), std::move(*value));
      key.reset();
    }
    if (key) return damaged();
    return model::Value(std::move(entries));
  }

  std::optional<std::string> keyOf(const pugi::xml_node& node) {
    if (std::string_view(node.name()) != "key" || !_budget.takeValue()) return std::nullopt;
    return textOf(node);
  }

  // The blanks that indent a container's elements. Other text is left to fail as an element.
  static bool isBetweenElements(const pugi::xml_node& node) {
    return node.type() == pugi::node_pcdata && trimmed(node.value()).empty();
  }

  PropertyListBudget _budget;
};

pugi::xml_node firstElement(const pugi::xml_node& parent) {
  for (const pugi::xml_node& child : parent.children()) {
    if (child.type() == pugi::node_element) return child;
  }
  return {};
}

}  // namespace

model::Result<model::Value> parseXmlPropertyList(io::ByteView bytes) {
  pugi::xml_document document;
  const unsigned int options =
      pugi::parse_cdata | pugi::parse_escapes | pugi::parse_eol | pugi::parse_ws_pcdata;
  const pugi::xml_parse_result parsed =
      document.load_buffer(bytes.bytes().data(), bytes.size(), options);
  const pugi::xml_node root = firstElement(document);
  if (std::string_view(root.name()) != "plist") return model::Error{"no property list"};
  if (!parsed) return damaged();
  const pugi::xml_node value = firstElement(root);
  if (!value) return damaged();
  return Reader().element(value, 0);
}

}  // namespace foundation
