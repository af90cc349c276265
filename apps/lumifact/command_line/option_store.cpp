// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/option_store.h"

#include "apps/lumifact/command_line/number_text.h"

namespace lumifact::tool {

namespace {

template <typename Number>
std::optional<model::Error> readNumber(const Given& given, const std::string& text,
                                       std::string_view kind, Number& into) {
  const auto number = numberFromText<Number>(text);
  if (!number) return notTaken(given, kind, text);
  into = *number;
  return std::nullopt;
}

}  // namespace

model::Error notTaken(const Given& given, std::string_view kind, std::string_view text) {
  std::string reason = given.written;
  reason.append(" takes ").append(kind).append(", not \"").append(text).append("\"");
  return {std::move(reason)};
}

std::optional<model::Error> readValue(const Given& given, std::string& into) {
  into = given.values[0];
  return std::nullopt;
}

std::optional<model::Error> readValue(const Given& given, std::int32_t& into) {
  return readNumber(given, given.values[0], "an integer", into);
}

std::optional<model::Error> readValue(const Given& given, double& into) {
  return readNumber(given, given.values[0], "a number", into);
}

std::optional<model::Error> readValue(const Given& given, model::Location& into) {
  auto error = readNumber(given, given.values[0], "numbers", into.latitude);
  return error ? error : readNumber(given, given.values[1], "numbers", into.longitude);
}

}  // namespace lumifact::tool
