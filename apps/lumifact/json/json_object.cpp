// SPDX-License-Identifier: MIT
#include "apps/lumifact/json/json_object.h"

#include "apps/lumifact/json/json.h"

namespace lumifact::tool {

std::string& JsonObject::begin(std::string_view name) {
  if (!_isEmpty) _text += ',';
  _isEmpty = false;
  appendJsonString(_text, name);
  return _text += ':';
}

JsonObject& JsonObject::field(std::string_view name, std::string_view value) {
  appendJsonString(begin(name), value);
  return *this;
}

JsonObject& JsonObject::field(std::string_view name, const model::Dictionary& value) {
  appendJson(begin(name), value);
  return *this;
}

}  // namespace lumifact::tool
