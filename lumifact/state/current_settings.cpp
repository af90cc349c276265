// SPDX-License-Identifier: MIT
#include "lumifact/state/current_settings.h"

#include "bridge/convert.h"
#include "bridge/foundation.h"
#include "bridge/guard.h"
#include "bridge/uikit.h"

namespace lumifact {

constinit Settings settings;
constinit double infoLineHeight = 16;

namespace {

using bridge::NSMutableDictionary;
using bridge::NSString;

// What the file says of our keys. Whatever else it holds is left alone.
model::Dictionary knownEntries(NSMutableDictionary file) {
  model::Dictionary entries;
  for (const SettingRow& row : settingRows()) {
    if (const bridge::Object value = file.at(NSString::make(row.key)))
      entries.emplace(row.key, bridge::toValue(value));
  }
  return entries;
}

Settings readSettings() {
  const auto file = NSMutableDictionary::withContentsOfFile(NSString::make(settingsPath));
  if (!file) return settingsFromFile(nullptr);
  const model::Dictionary entries = knownEntries(file);
  return settingsFromFile(&entries);
}

// The widest digits, the "x" of a pixel size, a comma and letters that reach below the line.
void measureInfoLine() {
  if (!bridge::UIFont::classObject()) return;
  const auto attributes = bridge::makeNew<NSMutableDictionary>();
  attributes->set(bridge::UIFont::systemFont(12.0), bridge::fontAttributeName());
  const CGSize size =
      bridge::sizeWithAttributes(NSString::make("0000x0000, mgj"), attributes.get());
  infoLineHeight = infoLineHeightFor(size.height);
}

}  // namespace

void loadSettings() {
  bridge::guarded([] { settings = readSettings(); });
  bridge::guarded([] { measureInfoLine(); });
}

void settingsChanged(CFNotificationCenterRef, void*, CFStringRef name, const void*,
                     CFDictionaryRef) {
  bridge::guarded([name] {
    const NSString posted(bridge::fromCFString(name).get());
    if (posted.isEqualToString(NSString::make(settingsChangedNotification))) loadSettings();
  });
}

}  // namespace lumifact
