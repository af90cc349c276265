// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/option_store.h"
#include "apps/lumifact/commands/commands.h"
#include "apps/lumifact/terminal/console.h"
#include "apps/lumifact/texts/environment.h"
#include "apps/lumifact/texts/setting_text.h"
#include "foundation/notification_core.h"
#include "foundation/property_lists/property_list_edit.h"
#include "model/description.h"

namespace lumifact::tool {

namespace {

using foundation::AfterEdit;

constexpr Option unsetOption{.name = "unset",
                             .help = "with set KEY: take the setting out of the file",
                             .store = flag<&Options::unset>};

constexpr const Option* takenOptions[] = {&unsetOption,     &option::settings, &option::mapType,
                                          &option::mapZoom, &option::mapView,  &option::root};

// The words behind the command: what to do, with which key and value.
std::string wordAt(const Options& options, std::size_t index) {
  return index < options.words.size() ? options.words[index] : std::string();
}

std::string keyOf(const Options& options) {
  return wordAt(options, 1);
}

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

void get(const Options& options, Console& console) {
  console.write(shownValue(settingsOf(options), keyOf(options)) + "\n");
}

void set(const Options& options, Console& console) {
  const std::string key = keyOf(options);
  const auto value = settingFromText(key, wordAt(options, 2));
  if (!value) return console.failUsage(value.error().reason);
  edit(options, console, AfterEdit::write,
       [&](model::Dictionary& settings) { settings.insert_or_assign(key, *value); });
}

void unset(const Options& options, Console& console) {
  edit(options, console, AfterEdit::write,
       [&](model::Dictionary& settings) { settings.erase(keyOf(options)); });
}

void reset(const Options& options, Console& console) {
  edit(options, console, AfterEdit::removeIfEmpty, [](model::Dictionary& settings) {
    for (const SettingRow& row : settingRows()) settings.erase(std::string(row.key));
  });
}

struct Action {
  std::string_view word;  // none lists
  std::size_t words;      // with what stands behind it
  bool unsets;
  void (*run)(const Options& options, Console& console);
};

constexpr Action actions[] = {{"", 0, false, list},
                              {"get", 2, false, get},
                              {"set", 2, true, unset},
                              {"set", 3, false, set},
                              {"reset", 1, false, reset}};

// What the words ask for, or null where they make no sense.
const Action* actionOf(const Options& options) {
  for (const Action& action : actions) {
    if (action.word == wordAt(options, 0) && action.words == options.words.size() &&
        action.unsets == options.unset)
      return &action;
  }
  return nullptr;
}

std::optional<model::Error> check(const Options& options) {
  if (actionOf(options) != nullptr) return std::nullopt;
  if (options.unset) return model::Error{"--unset goes with set KEY"};
  if (wordAt(options, 0) == "set" && options.words.size() == 2)
    return model::Error{"set takes KEY and VALUE, or KEY --unset"};
  return model::Error{"takes get KEY, set KEY VALUE, set KEY --unset, reset, or nothing"};
}

void run(const Options& options, Console& console) {
  const bool namesKey = options.words.size() > 1;
  const auto error = namesKey ? checkSettingKey(keyOf(options)) : std::nullopt;
  if (error) return console.failUsage(error->reason);
  actionOf(options)->run(options, console);
}

}  // namespace

constinit const Command settingsCommand{
    .name = "settings",
    .summary = "show or change the settings",
    .usage =
        "[OPTIONS]\n"
        "[OPTIONS] get KEY\n"
        "[OPTIONS] set KEY VALUE\n"
        "[OPTIONS] set KEY --unset\n"
        "[OPTIONS] reset",
    .description =
        "Without words, lists the settings in effect, 'key = value'. 'get' prints the value of "
        "one. 'set' writes it to the settings file, with --unset takes it out of the file, and "
        "'reset' takes out all of them. A flag is true, false, yes, no, 1 or 0; numbers are not "
        "checked for their range.\n"
        "\n"
        "The file is replaced in one step and keeps its format, its mode and what else it holds; a "
        "file that is no property list is left alone. A new one is XML. While there is no file, "
        "mapZoomLevel is 19; in a file without it, it is 0.",
    .options = takenOptions,
    .check = check,
    .run = run};

}  // namespace lumifact::tool
