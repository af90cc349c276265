// SPDX-License-Identifier: MIT
#include "bridge/convert.h"

#include "bridge/foundation/ns_data.h"
#include "bridge/foundation/ns_number.h"
#include "model/number_text.h"

namespace bridge {
namespace {

model::Value valueOf(Object object, int depth);

// The platform has one object for each truth value.
bool isBoolean(NSNumber number) {
  return number == NSNumber::withBool(true) || number == NSNumber::withBool(false);
}

model::Value numberValue(NSNumber number) {
  if (isBoolean(number)) return number.boolValue();
  const char type = number.objCType()[0];
  if (type == 'f') return model::widenedByText(number.floatValue());
  if (type == 'd') return number.doubleValue();
  if (type == 'Q') return number.unsignedLongLongValue();
  return number.longLongValue();
}

model::Data bytesOf(NSData data) {
  const std::string_view bytes = data.view();
  return {bytes.begin(), bytes.end()};
}

model::Array elementsOf(NSArray array, int depth) {
  model::Array elements;
  const NSUInteger count = array.count();
  elements.reserve(count);
  for (NSUInteger index = 0; index < count; ++index)
    elements.push_back(valueOf(array.at(index), depth + 1));
  return elements;
}

std::string keyText(Object key) {
  const auto text = as<NSString>(key);
  return text ? text.utf8() : NSObject(key.get()).description().utf8();
}

model::Dictionary entriesOf(NSDictionary dictionary, int depth) {
  model::Dictionary entries;
  const NSArray keys = dictionary.allKeys();
  const NSUInteger count = keys.count();
  for (NSUInteger index = 0; index < count; ++index) {
    const Object key = keys.at(index);
    entries.insert_or_assign(keyText(key), valueOf(dictionary.at(key), depth + 1));
  }
  return entries;
}

model::Value valueOf(Object object, int depth) {
  if (!object || depth > model::maximumNesting) return {};
  if (const auto text = as<NSString>(object)) return text.utf8();
  if (const auto number = as<NSNumber>(object)) return numberValue(number);
  if (const auto dictionary = as<NSDictionary>(object)) return entriesOf(dictionary, depth);
  if (const auto array = as<NSArray>(object)) return elementsOf(array, depth);
  if (const auto date = as<NSDate>(object)) return model::Date{date.timeIntervalSince1970()};
  if (const auto data = as<NSData>(object)) return bytesOf(data);
  if (as<NSNull>(object)) return {};
  return NSObject(object.get()).description().utf8();
}

Owned<Object> shared(Object object) {
  return Owned<Object>::retain(object);
}

Owned<Object> arrayObject(const model::Array& elements) {
  const auto array = makeNew<NSMutableArray>();
  for (const model::Value& element : elements) array->add(toObject(element));
  return shared(array);
}

Owned<Object> dictionaryObject(const model::Dictionary& entries) {
  const auto dictionary = makeNew<NSMutableDictionary>();
  for (const auto& [key, value] : entries) dictionary->set(toObject(value), NSString::make(key));
  return shared(dictionary);
}

void writeChange(NSMutableDictionary target, NSString key, const model::Value* before,
                 const model::Value& after, int level) {
  if (before && *before == after) return;
  const model::Dictionary* entriesBefore = before ? before->asDictionary() : nullptr;
  const model::Dictionary* entriesAfter = after.asDictionary();
  if (level > 0 || !entriesBefore || !entriesAfter) return target.set(toObject(after), key);
  const auto copy = mutableCopy(as<NSDictionary>(target.at(key)));
  for (const auto& [nestedKey, value] : *entriesAfter)
    writeChange(copy, NSString::make(nestedKey), model::find(*entriesBefore, nestedKey), value,
                level + 1);
  for (const auto& [nestedKey, value] : *entriesBefore)
    if (!model::find(*entriesAfter, nestedKey)) copy->remove(NSString::make(nestedKey));
  target.set(copy, key);
}

}  // namespace

model::Value toValue(Object object) {
  const AutoreleasePool pool;
  return valueOf(object, 0);
}

Owned<Object> toObject(const model::Value& value) {
  const AutoreleasePool pool;
  switch (value.kind()) {
    case model::Kind::null:
      return shared(NSNull::null());
    case model::Kind::boolean:
      return shared(NSNumber::withBool(*value.asBoolean()));
    case model::Kind::integer:
      return shared(NSNumber::withLongLong(*value.asInteger()));
    case model::Kind::largeInteger:
      return shared(NSNumber::withUnsignedLongLong(*value.asLargeInteger()));
    case model::Kind::real:
      return shared(NSNumber::withDouble(*value.asReal()));
    case model::Kind::string:
      return shared(NSString::make(*value.asString()));
    case model::Kind::date:
      return shared(NSDate::withTimeIntervalSince1970(value.asDate()->secondsSince1970));
    case model::Kind::data:
      return shared(NSData::make(value.asData()->data(), value.asData()->size()));
    case model::Kind::array:
      return arrayObject(*value.asArray());
    case model::Kind::dictionary:
      return dictionaryObject(*value.asDictionary());
  }
  return {};
}

void writeChanges(NSMutableDictionary target, const model::Dictionary& before,
                  const model::Dictionary& after) {
  const AutoreleasePool pool;
  for (const auto& [key, value] : after)
    writeChange(target, NSString::make(key), model::find(before, key), value, 0);
  for (const auto& [key, value] : before)
    if (!model::find(after, key)) target.remove(NSString::make(key));
}

}  // namespace bridge
