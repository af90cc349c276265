// SPDX-License-Identifier: MIT
#include "apps/lumifact/command_line/time_zone.h"

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <system_error>

namespace lumifact::tool {

namespace {

constexpr const char* dataBase = "/usr/share/zoneinfo";

// "CET-1CEST", "<+03>-3": a name of three characters or more, then hours.
bool looksLikeRule(const std::string& name) {
  const std::size_t hours = name[0] == '<' ? name.find('>') : name.find_first_of("+-0123456789");
  if (hours == std::string::npos || hours < 3) return false;
  const std::size_t digits = name.find_first_of("0123456789", hours);
  return digits != std::string::npos && digits <= hours + 2;
}

}  // namespace

bool timeZoneExists(const std::string& name) {
  if (name.empty() || name[0] == '/' || name.find("..") != std::string::npos) return false;
  std::error_code error;
  if (!std::filesystem::is_directory(dataBase, error)) return true;
  const std::filesystem::path file = std::filesystem::path(dataBase) / name;
  return std::filesystem::is_regular_file(file, error) || looksLikeRule(name);
}

void setTimeZone(const std::string& name) {
  ::setenv("TZ", name.c_str(), 1);
  ::tzset();
}

}  // namespace lumifact::tool
