// SPDX-License-Identifier: MIT
#include "workers/greeting.h"

#include <mutex>

#include "model/utf8.h"
#include "workers/fields.h"

namespace workers {

namespace {

// Another one with every change of what either side says.
constexpr std::uint32_t language = 0x4C57'0002;

struct Refused {
  std::mutex mutex;
  std::string text;
  bool isTaken = false;
};

Refused& refusedProtections() {
  static Refused refused;
  return refused;
}

}  // namespace

std::vector<std::uint8_t> greetingOf(const std::string& refused) {
  return FieldWriter().number(language).text(refused.substr(0, longestGreeting / 2)).take();
}

bool acceptGreeting(std::span<const std::uint8_t> bytes) {
  FieldReader fields(bytes);
  if (fields.number<std::uint32_t>() != language) return false;
  const std::string text = fields.text(longestGreeting);
  if (!fields.isWhole() || !model::isValidUtf8(text)) return false;
  Refused& refused = refusedProtections();
  const std::lock_guard lock(refused.mutex);
  if (!text.empty()) refused.text = text;
  return true;
}

std::optional<std::string> takeRefusedProtections() {
  Refused& refused = refusedProtections();
  const std::lock_guard lock(refused.mutex);
  if (refused.text.empty() || refused.isTaken) return std::nullopt;
  refused.isTaken = true;
  return refused.text;
}

}  // namespace workers
