// SPDX-License-Identifier: MIT
#include "model/value.h"

namespace model {

bool Value::operator==(const Value& other) const {
  return _storage == other._storage;
}

const Value* find(const Dictionary& dictionary, std::string_view key) {
  const auto entry = dictionary.find(key);
  return entry == dictionary.end() ? nullptr : &entry->second;
}

Value* find(Dictionary& dictionary, std::string_view key) {
  const auto entry = dictionary.find(key);
  return entry == dictionary.end() ? nullptr : &entry->second;
}

}  // namespace model
