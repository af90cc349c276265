// SPDX-License-Identifier: MIT
//
// The one way in which an object is written as JSON.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/value.h"

namespace lumifact::tool {

// Writes an object on one line, field by field, at the end of a text; valid UTF-8 and safe on a
// terminal, as everything that json.h writes. The object is whole when the writer is gone.
//
//   std::string line;
//   JsonObject(line).field("path", path).field("table", table);
class JsonObject {
 public:
  // REQUIRES: the text outlives the writer.
  explicit JsonObject(std::string& text) : _text(text) { _text += '{'; }
  ~JsonObject() { _text += '}'; }
  JsonObject(const JsonObject&) = delete;
  JsonObject& operator=(const JsonObject&) = delete;

  JsonObject& field(std::string_view name, std::string_view value);
  JsonObject& field(std::string_view name, const model::Dictionary& value);
  // Null where there is no value.
  template <typename Value>
  JsonObject& field(std::string_view name, const std::optional<Value>& value) {
    if (value) return field(name, *value);
    begin(name) += "null";
    return *this;
  }
  // Begins a field, whose value is then to be appended to the text that is returned.
  std::string& begin(std::string_view name);

 private:
  std::string& _text;
  bool _isEmpty = true;
};

}  // namespace lumifact::tool
