// SPDX-License-Identifier: MIT
#include "apps/lumifact/texts/setting_text.h"

#include <utility>

#include "apps/lumifact/command_line/number_text.h"
#include "lumifact/state/settings.h"

namespace lumifact::tool {

namespace {

const SettingRow* rowOf(std::string_view key) {
  for (const SettingRow& row : settingRows()) {
    if (row.key == key) return &row;
  }
  return nullptr;
}

// In any case of letters.
std::optional<model::Value> flagFromText(std::string text) {
  for (char& letter : text) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  if (text == "true" || text == "yes" || text == "1") return true;
  if (text == "false" || text == "no" || text == "0") return false;
  return std::nullopt;
}

template <typename Number>
std::optional<model::Value> valueFromText(std::string_view text) {
  const auto number = numberFromText<Number>(text);
  return number ? std::optional<model::Value>(*number) : std::nullopt;
}

}  // namespace

std::optional<model::Error> checkSettingKey(std::string_view key) {
  if (rowOf(key) != nullptr) return std::nullopt;
  std::string reason = "unknown setting \"" + std::string(key) + "\"; the settings are";
  const char* separator = " ";
  for (const SettingRow& row : settingRows()) {
    reason.append(separator).append(row.key);
    separator = ", ";
  }
  return model::Error{reason};
}

model::Result<model::Value> settingFromText(std::string_view key, std::string_view text) {
  if (auto error = checkSettingKey(key)) return *std::move(error);
  const auto reading = [&](std::optional<model::Value> value,
                           const char* kind) -> model::Result<model::Value> {
    if (value) return *std::move(value);
    return model::Error{std::string(key) + " takes " + kind + ", not \"" + std::string(text) +
                        "\""};
  };
  switch (rowOf(key)->kind) {
    case SettingKind::flag:
      return reading(flagFromText(std::string(text)), "true or false (or yes, no, 1, 0)");
    case SettingKind::integer:
      return reading(valueFromText<std::int64_t>(text), "an integer");
    case SettingKind::real:
      break;
  }
  return reading(valueFromText<double>(text), "a number");
}

}  // namespace lumifact::tool
