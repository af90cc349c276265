// SPDX-License-Identifier: MIT
#include "apps/lumifact/texts/table_text.h"

#include "foundation/date_text.h"
#include "model/description.h"
#include "model/utf8.h"

namespace lumifact::tool {

namespace {

// The keys of the file summary record sort first by a prefix and a number, which are not shown.
constexpr std::string_view summaryPrefix = "LF742J";
constexpr std::size_t hiddenCharacters = 8;

class TableWriter {
 public:
  TableWriter(const model::KeyComparison& keyOrder, const foundation::Locale& dates)
      : _keyOrder(keyOrder), _dates(dates) {}

  void appendDictionary(const model::Dictionary& dictionary, std::size_t depth) {
    for (const std::string_view key : model::sortedKeys(dictionary, _keyOrder)) {
      appendIndentation(depth);
      _text += shownTitle(key);
      appendValue(*model::find(dictionary, key), " = ", depth);
    }
  }
  std::string text() { return std::move(_text); }

 private:
  static std::string_view shownTitle(std::string_view key) {
    if (!key.starts_with(summaryPrefix)) return key;
    return key.substr(std::min(hiddenCharacters, key.size()));
  }

  void appendIndentation(std::size_t depth) { _text.append(2 * depth, ' '); }

  void appendValue(const model::Value& value, std::string_view separator, std::size_t depth) {
    if (const model::Dictionary* dictionary = value.asDictionary()) {
      _text += '\n';
      appendDictionary(*dictionary, depth + 1);
    } else if (const model::Array* elements = value.asArray()) {
      _text += '\n';
      appendElements(*elements, depth + 1);
    } else {
      _text.append(separator).append(shownValue(value)) += '\n';
    }
  }

  void appendElements(const model::Array& elements, std::size_t depth) {
    for (const model::Value& element : elements) {
      appendIndentation(depth);
      _text += '-';
      appendValue(element, " ", depth);
    }
  }

  std::string shownValue(const model::Value& value) const {
    if (const model::Date* date = value.asDate()) {
      return foundation::dateText(*date, foundation::DateStyle::shortDate, _dates);
    }
    if (const model::Data* data = value.asData()) {
      std::string text(data->begin(), data->end());
      if (model::isValidUtf8(text)) return text;
    }
    return value.isNull() ? std::string() : model::valueText(value);
  }

  const model::KeyComparison& _keyOrder;
  const foundation::Locale& _dates;
  std::string _text;
};

}  // namespace

std::string tableText(const model::Dictionary& summaryRecord, const model::Dictionary& table,
                      const model::KeyComparison& keyOrder, const foundation::Locale& dates) {
  TableWriter writer(keyOrder, dates);
  writer.appendDictionary(summaryRecord, 0);
  writer.appendDictionary(table, 0);
  return writer.text();
}

}  // namespace lumifact::tool
