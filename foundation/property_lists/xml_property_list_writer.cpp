// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "foundation/property_lists/base64.h"
#include "foundation/property_lists/xml_property_list.h"
#include "model/civil_time.h"
#include "model/number_text.h"

namespace foundation {

namespace {

constexpr std::string_view prologue =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n";

std::string realText(double real) {
  if (std::isinf(real)) return real < 0 ? "-infinity" : "+infinity";
  return model::realText(real);
}

std::string dateText(model::Date date) {
  const model::CivilTime time = model::civilTimeInUtc(date);
  const auto two = [](int number) { return model::paddedIntegerText(number, 2); };
  return model::paddedIntegerText(time.year, 4) + "-" + two(time.month) + "-" + two(time.day) +
         "T" + two(time.hour) + ":" + two(time.minute) + ":" + two(time.second) + "Z";
}

class Writer {
 public:
  // Writes an element on lines of its own, indented by `level` tabs.
  void value(const model::Value& value, std::size_t level) {
    switch (value.kind()) {
      case model::Kind::null:
        fail("a null has no form in a property list");
        break;
      case model::Kind::boolean:
        line(level, *value.asBoolean() ? "<true/>" : "<false/>");
        break;
      case model::Kind::integer:
        element(level, "integer", model::integerText(*value.asInteger()));
        break;
      case model::Kind::largeInteger:
        element(level, "integer", model::largeIntegerText(*value.asLargeInteger()));
        break;
      case model::Kind::real:
        element(level, "real", realText(*value.asReal()));
        break;
      case model::Kind::string:
        element(level, "string", *value.asString());
        break;
      case model::Kind::date:
        element(level, "date", dateText(*value.asDate()));
        break;
      case model::Kind::data:
        data(*value.asData(), level);
        break;
      case model::Kind::array:
        array(*value.asArray(), level);
        break;
      case model::Kind::dictionary:
        dictionary(*value.asDictionary(), level);
        break;
    }
  }

  model::Result<std::string> document() && {
    if (_failure) return *_failure;
    return std::string(prologue).append(_text).append("</plist>\n");
  }

 private:
  void fail(std::string_view reason) {
    if (!_failure) _failure = model::Error{std::string(reason)};
  }

  void line(std::size_t level, std::string_view content) {
    _text.append(level, '\t').append(content).append("\n");
  }

  void element(std::size_t level, std::string_view name, std::string_view content) {
    _text.append(level, '\t').append("<").append(name).append(">");
    escape(content);
    _text.append("</").append(name).append(">\n");
  }

  void escape(std::string_view content) {
    for (const char character : content) {
      const bool control = static_cast<unsigned char>(character) < ' ';
      if (character == '&') {
        _text.append("&amp;");
      } else if (character == '<') {
        _text.append("&lt;");
      } else if (character == '>') {
        _text.append("&gt;");
      } else if (character == '\r') {
        _text.append("&#13;");  // a bare one would be read as a line feed
      } else if (control && character != '\t' && character != '\n') {
        fail("a text with control characters has no form in an XML property list");
      } else {
        _text += character;
      }
    }
  }

  // Lines of 76 columns, a tab counting as eight, with at most eight tabs.
  void data(const model::Data& data, std::size_t level) {
    const std::size_t tabs = std::min<std::size_t>(level, 8);
    const std::size_t width = 76 - 8 * tabs;
    const std::string text = base64Text(data);
    line(level, "<data>");
    for (std::size_t offset = 0; offset < text.size(); offset += width) {
      line(tabs, std::string_view(text).substr(offset, width));
    }
    line(level, "</data>");
  }

  void array(const model::Array& elements, std::size_t level) {
    if (elements.empty()) return line(level, "<array/>");
    line(level, "<array>");
    for (const model::Value& element : elements) value(element, level + 1);
    line(level, "</array>");
  }

  void dictionary(const model::Dictionary& entries, std::size_t level) {
    if (entries.empty()) return line(level, "<dict/>");
    line(level, "<dict>");
    for (const auto& [key, entry] : entries) {
      element(level + 1, "key", key);
      value(entry, level + 1);
    }
    line(level, "</dict>");
  }

  std::string _text;
  std::optional<model::Error> _failure;
};

}  // namespace

model::Result<std::string> xmlPropertyList(const model::Value& root) {
  Writer writer;
  writer.value(root, 0);
  return std::move(writer).document();
}

}  // namespace foundation
