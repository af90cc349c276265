// SPDX-License-Identifier: MIT
//
// The one tree type of the project: what a photo's properties, a property list or a JSON line is
// read into, and what the reports read and rewrite.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "model/utf8.h"

namespace model {

class Value;

// Elements in their order.
using Array = std::vector<Value>;

// Entries by key, in literal UTF-16 order of the keys (the order of the description form).
// Keys are valid UTF-8.
using Dictionary = std::map<std::string, Value, LiteralLess>;

// Bytes without a meaning of their own.
using Data = std::vector<std::uint8_t>;

// A point in time, in seconds since 1970-01-01 00:00:00 UTC; fractions are kept.
struct Date {
  double secondsSince1970 = 0;
  bool operator==(const Date&) const = default;
};

// What a value is. A boolean is no integer: settings tell them apart by kind.
enum class Kind {
  null,
  boolean,
  integer,
  largeInteger,
  real,
  string,
  date,
  data,
  array,
  dictionary
};

// A null, boolean, 64-bit integer, integer from 2^63 to 2^64 - 1 (of its own kind, so that all else
// deals with signed ones), double, string (valid UTF-8), date, data, array or dictionary.
// Copying copies the whole tree. Readers bound the nesting (at most maximumNesting containers
// inside each other), so walking a tree recursively is safe.
class Value {
 public:
  Value() = default;  // null
  template <typename T>
  requires std::same_as<T, bool> Value(T boolean) : _storage(boolean) {}
  template <typename T>
  requires(std::integral<T> && !std::same_as<T, bool>) Value(T integer)
      : _storage(storageOf(integer)) {}
  Value(double real) : _storage(real) {}
  Value(std::string text) : _storage(std::move(text)) {}
  Value(std::string_view text) : _storage(std::string(text)) {}
  Value(const char* text) : _storage(std::string(text)) {}
  Value(Date date) : _storage(date) {}
  Value(Data data) : _storage(std::move(data)) {}
  Value(Array elements) : _storage(std::move(elements)) {}
  Value(Dictionary entries) : _storage(std::move(entries)) {}

  Kind kind() const { return static_cast<Kind>(_storage.index()); }
  bool isNull() const { return kind() == Kind::null; }

  // The value as the named kind, or null where it is of another kind. Borrowed: valid until the
  // value is assigned to or destroyed.
  const bool* asBoolean() const { return std::get_if<bool>(&_storage); }
  const std::int64_t* asInteger() const { return std::get_if<std::int64_t>(&_storage); }
  const std::uint64_t* asLargeInteger() const { return std::get_if<std::uint64_t>(&_storage); }
  const double* asReal() const { return std::get_if<double>(&_storage); }
  const std::string* asString() const { return std::get_if<std::string>(&_storage); }
  const Date* asDate() const { return std::get_if<Date>(&_storage); }
  const Data* asData() const { return std::get_if<Data>(&_storage); }
  const Array* asArray() const { return std::get_if<Array>(&_storage); }
  const Dictionary* asDictionary() const { return std::get_if<Dictionary>(&_storage); }
  Array* asArray() { return std::get_if<Array>(&_storage); }
  Dictionary* asDictionary() { return std::get_if<Dictionary>(&_storage); }

  // Same kind and same content; 72 and 72.0 differ, as do true and 1. NaN equals nothing.
  bool operator==(const Value& other) const;

 private:
  // The order of the alternatives is the order of Kind.
  using Storage = std::variant<std::monostate, bool, std::int64_t, std::uint64_t, double,
                               std::string, Date, Data, Array, Dictionary>;

  template <typename T>
  static Storage storageOf(T integer) {
    const auto number = static_cast<std::int64_t>(integer);
    if (std::unsigned_integral<T> && number < 0) return static_cast<std::uint64_t>(integer);
    return number;
  }

  Storage _storage;
};

// How many containers may stand inside each other in any tree that is read from a file or a line.
inline constexpr int maximumNesting = 256;

// The value under a key, or null where the dictionary has none. Borrowed.
const Value* find(const Dictionary& dictionary, std::string_view key);
Value* find(Dictionary& dictionary, std::string_view key);

}  // namespace model
