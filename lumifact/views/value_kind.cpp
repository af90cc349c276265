// SPDX-License-Identifier: MIT
#include "lumifact/views/value_kind.h"

namespace lumifact {
namespace {

struct KindRow {
  Class (*classObject)();
  ValueKind kind;
};

constexpr KindRow kinds[] = {
    {&NSNumber::classObject, ValueKind::number},
    {&NSString::classObject, ValueKind::string},
    {&NSDate::classObject, ValueKind::date},
    {&NSData::classObject, ValueKind::data},
    {&NSArray::classObject, ValueKind::array},
    {&NSDictionary::classObject, ValueKind::dictionary},
};

NSString dataText(NSData data) {
  if (auto text = NSString::makeOfUtf8(data)) return text.autorelease();
  return data.description();
}

NSString dateText(NSDate date) {
  const auto formatter = makeNew<NSDateFormatter>();
  formatter->setDateStyle(NSDateFormatter::shortStyle);
  formatter->setTimeStyle(NSDateFormatter::mediumStyle);
  return formatter->string(date);
}

}  // namespace

ValueKind kindOf(Object value) {
  for (const KindRow& row : kinds)
    if (isKindOf(value, row.classObject())) return row.kind;
  return ValueKind::unknown;
}

bool isContainer(ValueKind kind) {
  return kind == ValueKind::array || kind == ValueKind::dictionary;
}

NSString displayText(Object value) {
  switch (kindOf(value)) {
    case ValueKind::string:
      return NSString(value.get());
    case ValueKind::number:
      return NSNumber(value.get()).stringValue();
    case ValueKind::data:
      return dataText(NSData(value.get()));
    case ValueKind::date:
      return dateText(NSDate(value.get()));
    case ValueKind::array:
    case ValueKind::dictionary:
    case ValueKind::unknown:
      break;
  }
  return {};
}

}  // namespace lumifact
