// SPDX-License-Identifier: MIT
#include "lumifact/state/settings.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <type_traits>

#include "model/conversions.h"

namespace lumifact {

namespace {

using enum SettingKind;

constexpr std::array<SettingRow, 13> rows = {{
    // key, kind, default for an absent key, default for a missing file, member
    {"useNavigationButton", flag, 1, 1, &Settings::useNavigationButton},
    {"useLongPressPhoto", flag, 1, 1, &Settings::useLongPressPhoto},
    {"showSelectedSize", flag, 0, 0, &Settings::showSelectedSize},
    {"thumbnailInfoDisplay", integer, 1, 1, &Settings::thumbnailInfoDisplay},
    {"thumbnailInfoDisplaySolid", flag, 1, 1, &Settings::thumbnailInfoDisplaySolid},
    {"thumbnailInfoDisplayOneLine", flag, 0, 0, std::monostate{}},
    {"thumbnailQuickInfo", integer, 0, 0, &Settings::thumbnailQuickInfo},
    {"mapType", integer, 0, 0, &Settings::mapType},
    {"mapZoomLevel", real, 0.0, 19.0, &Settings::mapZoomLevel},
    {"mapViewType", integer, 0, 0, &Settings::mapViewType},
    {"fontSize", integer, 12, 12, &Settings::fontSize},
    {"viewType", integer, 1, 1, &Settings::viewType},
    {"useGridSizeButton", flag, 0, 0, &Settings::useGridSizeButton},
}};

constexpr bool keysAreUnique() {
  for (std::size_t index = 0; index < rows.size(); ++index) {
    for (std::size_t other = 0; other < index; ++other) {
      if (rows[index].key == rows[other].key) return false;
    }
  }
  return true;
}
static_assert(keysAreUnique());

// Calls `use` with the pointer to the member of the row, or not at all where it stores nothing.
template <typename Use>
constexpr void withMember(const SettingRow& row, Use use) {
  if (const auto* member = std::get_if<bool Settings::*>(&row.member)) use(*member);
  if (const auto* member = std::get_if<std::int32_t Settings::*>(&row.member)) use(*member);
  if (const auto* member = std::get_if<double Settings::*>(&row.member)) use(*member);
}

constexpr void store(Settings& settings, const SettingRow& row, double value) {
  withMember(row, [&](auto member) {
    settings.*member = static_cast<std::remove_cvref_t<decltype(settings.*member)>>(value);
  });
}

constexpr Settings settingsOfMissingFile() {
  Settings settings;
  for (const SettingRow& row : rows) store(settings, row, row.defaultForMissingFile);
  return settings;
}
static_assert(settingsOfMissingFile() == Settings{});

// A value converted as the row says. Every result is exact in a double.
double converted(const model::Value& value, SettingKind kind) {
  switch (kind) {
    case flag:
      return model::boolValue(value) ? 1 : 0;
    case integer:
      return model::intValue(value);
    case real:
      return model::floatValue(value);
  }
  return 0;
}

bool hasConversion(const model::Value& value) {
  switch (value.kind()) {
    case model::Kind::boolean:
    case model::Kind::integer:
    case model::Kind::largeInteger:
    case model::Kind::real:
    case model::Kind::string:
      return true;
    default:
      return false;
  }
}

}  // namespace

std::span<const SettingRow> settingRows() {
  return rows;
}

Settings settingsFromFile(const model::Dictionary* file) {
  if (file == nullptr) return settingsOfMissingFile();
  Settings settings;
  for (const SettingRow& row : rows) {
    const model::Value* value = model::find(*file, row.key);
    const bool present = value != nullptr && hasConversion(*value);
    store(settings, row, present ? converted(*value, row.kind) : row.defaultForAbsentKey);
  }
  settings.thumbnailInfoDisplaySolid = true;
  return settings;
}

model::Value settingValue(const Settings& settings, std::string_view key) {
  model::Value value;
  const auto* row = std::ranges::find(rows, key, &SettingRow::key);
  if (row == rows.end()) return value;
  withMember(*row, [&](auto member) { value = model::Value(settings.*member); });
  return value;
}

double infoLineHeightFor(double measuredHeight) {
  return std::ceil(measuredHeight) + 1.0;
}

}  // namespace lumifact
