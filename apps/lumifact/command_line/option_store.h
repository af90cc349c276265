// SPDX-License-Identifier: MIT
//
// How a row says where its option is stored: flag<&Options::json> or value<&Options::jobs>, with a
// reader of its own where the kind of the value does not tell what may be given.
#pragma once

#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include "apps/lumifact/command_line/option.h"

namespace lumifact::tool {

// Read the values that were given; each answers what is wrong with them.
std::optional<model::Error> readValue(const Given& given, std::string& into);
std::optional<model::Error> readValue(const Given& given, std::int32_t& into);
std::optional<model::Error> readValue(const Given& given, double& into);
std::optional<model::Error> readValue(const Given& given, model::Location& into);  // two values

// "--jobs takes a number, not "many"".
model::Error notTaken(const Given& given, std::string_view kind, std::string_view text);

template <bool Options::*member>
constexpr Store flag = [](const Given&, Options& options) -> std::optional<model::Error> {
  options.*member = true;
  return std::nullopt;
};

template <auto member>
using ValueOf =
    typename std::remove_reference_t<decltype(std::declval<Options&>().*member)>::value_type;

template <typename Value>
using ValueReader = std::optional<model::Error> (*)(const Given& given, Value& into);

template <auto member, ValueReader<ValueOf<member>> read = readValue>
constexpr Store value = [](const Given& given, Options& options) -> std::optional<model::Error> {
  if (options.*member) return model::Error{given.written + " is given twice"};
  return read(given, (options.*member).emplace());
};

}  // namespace lumifact::tool
