// SPDX-License-Identifier: MIT
#include "desktop/script/system_commands.h"

#include <charconv>

#include "desktop/runtime/darwin_notifications.h"
#include "desktop/settings/preferences.h"
#include "foundation/notification_core.h"
#include "foundation/property_lists/property_list_edit.h"

namespace desktop::script {
namespace {

using Arguments = ScriptRunner::Arguments;
using Outcome = ScriptRunner::Outcome;

model::Value preferenceValue(const Word& word) {
  if (word.isQuoted) return word.text;
  if (word.text == "true") return true;
  if (word.text == "false") return false;
  std::int64_t integer = 0;
  const char* const end = word.text.data() + word.text.size();
  const auto [last, error] = std::from_chars(word.text.data(), end, integer);
  if (error == std::errc() && last == end) return integer;
  if (const auto real = numberOf(word)) return *real;
  return word.text;
}

Outcome preference(const foundation::DeviceRoot& root, Arguments words) {
  if (words.size() != 3) return model::Error{"preference takes DOMAIN KEY VALUE"};
  if (!settings::isDomain(words[0].text))
    return model::Error{"'" + words[0].text + "' is not a preference domain"};
  const std::string file = settings::preferenceFile(root, words[0].text);
  auto failed = foundation::editPropertyListFile(file, [&](model::Dictionary& preferences) {
    preferences.insert_or_assign(words[1].text, preferenceValue(words[2]));
  });
  if (failed) failed->reason = file + ": " + failed->reason;
  return failed;
}

Outcome notify(const foundation::DeviceRoot& root, Arguments words) {
  if (words.size() != 1) return model::Error{"notify takes a name"};
  const auto posted =
      foundation::postNotification(foundation::notificationFolder(root.folder()), words[0].text);
  if (!posted) return posted.error();
  runtime::deliverDarwinNotifications();
  return std::nullopt;
}

}  // namespace

void addSystemCommands(ScriptRunner& runner, const foundation::DeviceRoot& root) {
  runner.add("preference", [root](Arguments words) { return preference(root, words); });
  runner.add("notify", [root](Arguments words) { return notify(root, words); });
}

}  // namespace desktop::script
