// SPDX-License-Identifier: MIT
#include "lumifact/state/current_settings.h"

#include "bridge/convert.h"
#include "bridge/foundation.h"
#include "bridge/guard.h"
#include "bridge/uikit.h"
#include "lumifact/platform.h"

namespace lumifact {

constinit Settings settings;
constinit double infoLineHeight = 16;

namespace {

// What the file says of our keys. Whatever else it holds is left alone.
model::Dictionary knownEntries(NSMutableDictionary file) {
  model::Dictionary entries;
  for (const SettingRow& row : settingRows()) {
    if (const Object value = file.at(NSString::make(row.key)))
      entries.emplace(row.key, toValue(value));
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
  if (!UIFont::classObject()) return;
  const auto attributes = makeNew<NSMutableDictionary>();
  attributes->set(UIFont::systemFont(12.0), fontAttributeName());
  const CGSize size = sizeWithAttributes(NSString::make("0000x0000, mgj"), attributes.get());
  infoLineHeight = infoLineHeightFor(size.height);
}

}  // namespace

void loadSettings() {
  guarded([] { settings = readSettings(); });
  guarded([] { measureInfoLine(); });
}

void settingsChanged(CFNotificationCenterRef, void*, CFStringRef name, const void*,
                     CFDictionaryRef) {
  guarded([name] {
    const NSString posted(fromCFString(name).get());
    if (posted.isEqualToString(NSString::make(settingsChangedNotification))) loadSettings();
  });
}

}  // namespace lumifact
