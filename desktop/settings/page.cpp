// SPDX-License-Identifier: MIT
#include "desktop/settings/page.h"

#include <algorithm>

#include "model/conversions.h"
#include "model/number_text.h"

namespace desktop::settings {
namespace {

bool isSame(const model::Value& left, const model::Value& right) {
  if (isNumber(left) && isNumber(right)) return numberOf(left) == numberOf(right);
  return left == right;
}

// At most two decimals, and none that says nothing: 12, 12.5, 0.25.
std::string numberText(double number) {
  constexpr int decimals = 2;
  std::string text = model::fixedText(number, decimals);
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace

Page explainedPage(const std::string& title, const std::string& why) {
  return {.name = title, .title = title, .groups = {{.footer = why}}};
}

const Choice* choiceOf(const Row& row, const model::Value& value) {
  const auto found = std::ranges::find_if(
      row.choices, [&](const Choice& choice) { return isSame(choice.value, value); });
  return found == row.choices.end() ? nullptr : &*found;
}

std::string shownText(const Row& row, const model::Value& value) {
  if (const Choice* const choice = choiceOf(row, value)) return choice->title;
  if (const std::string* const text = value.asString()) return *text;
  if (const bool* const flag = value.asBoolean()) return *flag ? "On" : "Off";
  return isNumber(value) ? numberText(numberOf(value)) : std::string();
}

bool isNumber(const model::Value& value) {
  return value.asBoolean() || value.asInteger() || value.asLargeInteger() || value.asReal();
}

double numberOf(const model::Value& value) {
  if (const double* const real = value.asReal()) return *real;
  if (const std::int64_t* const integer = value.asInteger()) return static_cast<double>(*integer);
  if (const std::uint64_t* const large = value.asLargeInteger()) return static_cast<double>(*large);
  return model::floatValue(value);
}

}  // namespace desktop::settings
