// SPDX-License-Identifier: MIT
#include "lumifact/views/table_row.h"

namespace lumifact {
namespace {

// "LF742J" and two digits stand before the names of the file summary record, so that these sort
// first and in their order.
constexpr std::string_view recordPrefix = "LF742J";
constexpr NSUInteger recordPrefixLength = 8;

NSString shownKey(NSString key) {
  if (!key.hasPrefix(NSString::make(recordPrefix)) || key.length() < recordPrefixLength) return key;
  return key.substringFrom(recordPrefixLength);
}

TableRow arrayRow(NSArray array, NSUInteger index) {
  const Object item = array.at(index);
  return {{}, displayText(item), item};
}

TableRow dictionaryRow(NSDictionary dictionary, SortedKeys& keys, NSUInteger index) {
  const NSString key(keys.of(dictionary).at(index).get());
  const Object value = dictionary.at(key);
  return {shownKey(key), displayText(value), value};
}

}  // namespace

NSUInteger rowCount(Object data) {
  switch (kindOf(data)) {
    case ValueKind::array:
      return NSArray(data.get()).count();
    case ValueKind::dictionary:
      return NSDictionary(data.get()).count();
    case ValueKind::unknown:
      return 0;
    default:
      return 1;
  }
}

TableRow tableRow(Object data, SortedKeys& keys, NSInteger index, NSString pageTitle) {
  const auto position = static_cast<NSUInteger>(index);
  switch (kindOf(data)) {
    case ValueKind::array:
      return arrayRow(NSArray(data.get()), position);
    case ValueKind::dictionary:
      return dictionaryRow(NSDictionary(data.get()), keys, position);
    case ValueKind::unknown:
      return {};
    default:
      return {pageTitle, {}, {}};
  }
}

NSString sharedText(const TableRow& row) {
  const Object value = row.value ? row.value : row.detail;
  return printed(row.title).appending(NSString::make(" = ")).appending(printed(value));
}

}  // namespace lumifact
