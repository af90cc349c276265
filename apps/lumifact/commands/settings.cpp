// SPDX-License-Identifier: MIT
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/texts/environment.h"
#include "apps/lumifact/texts/setting_text.h"
#include "foundation/notification_core.h"
#include "foundation/property_list_edit.h"
#include "model/description.h"

namespace lumifact::tool {

namespace {

using foundation::AfterEdit;

// The value in effect, as it is shown.
std::string shownValue(const Settings& settings, std::string_view key) {
  const model::Value value = settingValue(settings, key);
  return value.isNull() ? "(no effect)" : model::valueText(value);
}

void list(const Options& options, Console& console) {
  const Settings settings = settingsOf(options);
  for (const SettingRow& row : settingRows()) {
    console.write(std::string(row.key) + " = " + shownValue(settings, row.key) + "\n");
  }
}

// Has the hosts of this device root read their settings file anew.
void announceChange(const Options& options, const std::string& file, Console& console) {
  using namespace foundation;
  const auto posted =
      postNotification(notificationFolder(rootOf(options).folder()), settingsChangedNotification);
  if (!posted) console.fail(file, "written, but not announced: " + posted.error().reason);
}

void edit(const Options& options, Console& console, AfterEdit after,
          const std::function<void(model::Dictionary&)>& change) {
  const std::string file = settingsFileOf(options);
  if (const auto error = foundation::editPropertyListFile(file, change, after))
    return console.fail(file, error->reason);
  announceChange(options, file, console);
}

void set(const Options& options, Console& console) {
  const auto value = settingFromText(options.key, options.value);
  if (!value) return console.failUsage(value.error().reason);
  edit(options, console, AfterEdit::write,
       [&](model::Dictionary& settings) { settings.insert_or_assign(options.key, *value); });
}

void unset(const Options& options, Console& console) {
  edit(options, console, AfterEdit::write,
       [&](model::Dictionary& settings) { settings.erase(options.key); });
}

void reset(const Options& options, Console& console) {
  edit(options, console, AfterEdit::removeIfEmpty, [](model::Dictionary& settings) {
    for (const SettingRow& row : settingRows()) settings.erase(std::string(row.key));
  });
}

}  // namespace

void runSettings(const Options& options, Console& console) {
  const bool namesKey = options.action == SettingsAction::get ||
                        options.action == SettingsAction::set ||
                        options.action == SettingsAction::unset;
  const auto error = namesKey ? checkSettingKey(options.key) : std::nullopt;
  if (error) return console.failUsage(error->reason);
  switch (options.action) {
    case SettingsAction::list:
      return list(options, console);
    case SettingsAction::get:
      return console.write(shownValue(settingsOf(options), options.key) + "\n");
    case SettingsAction::set:
      return set(options, console);
    case SettingsAction::unset:
      return unset(options, console);
    case SettingsAction::reset:
      return reset(options, console);
  }
}

}  // namespace lumifact::tool
