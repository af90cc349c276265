// SPDX-License-Identifier: MIT
#include "apps/lumifact/json/field_reader.h"

#include "model/conversions.h"
#include "model/number_text.h"
#include "model/utf8.h"

namespace lumifact::tool {

namespace {

bool isNumber(const model::Value& value) {
  return value.asInteger() != nullptr || value.asLargeInteger() != nullptr ||
         value.asReal() != nullptr;
}

double realOf(const model::Value& number) {
  if (const auto* integer = number.asInteger()) return static_cast<double>(*integer);
  if (const auto* large = number.asLargeInteger()) return static_cast<double>(*large);
  return *number.asReal();
}

std::optional<model::FourCharCode> codeOfText(std::string_view text) {
  model::FourCharCode code = 0;
  int shift = 32;
  for (std::size_t offset = 0; offset < text.size();) {
    const model::CodePoint character = model::codePointAt(text, offset);
    shift -= 8;
    if (shift < 0 || character.value > 0xFF) return std::nullopt;
    code |= static_cast<model::FourCharCode>(character.value) << shift;
    offset += character.bytes;
  }
  return code;
}

std::optional<model::FourCharCode> codeOf(const model::Value& value) {
  if (value.asString() != nullptr) return codeOfText(*value.asString());
  if (value.asInteger() == nullptr) return std::nullopt;
  return static_cast<model::FourCharCode>(*value.asInteger());
}

}  // namespace

FieldReader::FieldReader(const model::Value& tree, std::string_view what)
    : _fields(tree.asDictionary()) {
  if (_fields == nullptr) fail(what, "is no object");
}

void FieldReader::fail(const model::Error& error) {
  if (!_error) _error = error;
}

void FieldReader::fail(std::string_view name, std::string_view problem) {
  fail(model::Error{std::string(name).append(" ").append(problem)});
}

const model::Value* FieldReader::present(std::string_view name) const {
  const model::Value* field = _error ? nullptr : model::find(*_fields, name);
  return field == nullptr || field->isNull() ? nullptr : field;
}

const model::Value* FieldReader::presentNumber(std::string_view name) {
  const model::Value* field = present(name);
  if (field == nullptr || isNumber(*field)) return field;
  fail(name, "is no number");
  return nullptr;
}

void FieldReader::real(std::string_view name, double& into) {
  if (const model::Value* number = presentNumber(name)) into = realOf(*number);
}

void FieldReader::single(std::string_view name, float& into) {
  if (const model::Value* number = presentNumber(name)) into = model::floatValue(*number);
}

void FieldReader::signed32(std::string_view name, std::int32_t& into) {
  if (const model::Value* number = presentNumber(name)) into = model::intValue(*number);
}

void FieldReader::unsigned32(std::string_view name, std::uint32_t& into) {
  if (const model::Value* number = presentNumber(name)) {
    into = static_cast<std::uint32_t>(model::integerValue(*number));
  }
}

void FieldReader::text(std::string_view name, std::string& into) {
  const model::Value* field = present(name);
  if (field == nullptr) return;
  if (field->asString() == nullptr) return fail(name, "is no string");
  into = *field->asString();
}

void FieldReader::dictionary(std::string_view name, model::Dictionary& into) {
  const model::Value* field = present(name);
  if (field == nullptr) return;
  if (field->asDictionary() == nullptr) return fail(name, "is no object");
  into = *field->asDictionary();
}

void FieldReader::fourCharCode(std::string_view name, model::FourCharCode& into) {
  const model::Value* field = present(name);
  if (field == nullptr) return;
  const auto code = codeOf(*field);
  if (!code) return fail(name, "is no four-character code");
  into = *code;
}

std::vector<double> FieldReader::numbers(std::string_view name, std::size_t length,
                                         std::size_t otherLength) {
  const model::Value* field = present(name);
  if (field == nullptr) return {};
  const model::Array* elements = field->asArray();
  std::vector<double> list;
  if (elements != nullptr && (elements->size() == length || elements->size() == otherLength)) {
    for (const model::Value& element : *elements) {
      if (isNumber(element)) list.push_back(realOf(element));
    }
  }
  if (elements != nullptr && !list.empty() && list.size() == elements->size()) return list;
  const auto count = static_cast<std::int64_t>(length);
  fail(name, "is no list of " + model::integerText(count) + " numbers");
  return {};
}

}  // namespace lumifact::tool
