// SPDX-License-Identifier: MIT
//
// The user's thirteen choices: their keys, how each is read, and what holds when nothing is said.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <variant>

#include "model/value.h"

namespace lumifact {

// The settings file of the phone, and the notification that says that it changed.
inline constexpr std::string_view settingsPath =
    "/var/mobile/Library/Preferences/net.korvu.lumifact.plist";
inline constexpr std::string_view settingsChangedNotification = "net.korvu.lumifact/preferences";

// The effective values, named by their keys. The defaults are those of a missing file.
struct Settings {
  bool useNavigationButton = true;
  bool useLongPressPhoto = true;
  bool showSelectedSize = false;
  std::int32_t thumbnailInfoDisplay = 1;
  bool thumbnailInfoDisplaySolid = true;  // forced: whatever the file says, it is true
  std::int32_t thumbnailQuickInfo = 0;
  std::int32_t mapType = 0;
  double mapZoomLevel = 19.0;  // a file without the key means 0, no zoom
  std::int32_t mapViewType = 0;
  std::int32_t fontSize = 12;
  std::int32_t viewType = 1;
  bool useGridSizeButton = false;

  bool operator==(const Settings&) const = default;
};

// How a setting's value is read from the file.
enum class SettingKind { flag, integer, real };

// Where a setting's value is stored: nowhere for a key that is read and dropped.
using SettingMember =
    std::variant<std::monostate, bool Settings::*, std::int32_t Settings::*, double Settings::*>;

// One row of the settings table, for whoever reads, lists, checks or writes settings. A default is
// given as a number, 1 and 0 for a flag that is on or off.
struct SettingRow {
  std::string_view key;
  SettingKind kind;
  double defaultForAbsentKey;
  double defaultForMissingFile;
  SettingMember member;
};

// The thirteen keys in the order in which they are read (thumbnailInfoDisplayOneLine, which is
// read and dropped, included).
std::span<const SettingRow> settingRows();

// The settings that a file holds, or those of a missing or unreadable file for null. Nothing is
// range-checked. A value of a kind without a conversion (array, dictionary, data, date, null)
// counts as an absent key.
Settings settingsFromFile(const model::Dictionary* file);

// The effective value of a key, for showing; null for a key that stores nothing
// (thumbnailInfoDisplayOneLine) or is unknown.
model::Value settingValue(const Settings& settings, std::string_view key);

// infoLineHeight in points: the height of "0000x0000, mgj" in the 12-point system font, rounded
// up to a whole point, plus 1.
double infoLineHeightFor(double measuredHeight);

}  // namespace lumifact
