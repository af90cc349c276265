// SPDX-License-Identifier: MIT
#include "foundation/locale.h"

#include <algorithm>
#include <cstdlib>

namespace foundation {

namespace {

constexpr std::string_view fallback = "en_US";

bool isLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

std::string lowered(std::string_view text) {
  std::string result(text);
  for (char& character : result) {
    if (character >= 'A' && character <= 'Z') character = static_cast<char>(character + 32);
  }
  return result;
}

std::string raised(std::string_view text) {
  std::string result(text);
  for (char& character : result) {
    if (character >= 'a' && character <= 'z') character = static_cast<char>(character - 32);
  }
  return result;
}

bool isLanguage(std::string_view part) {
  return (part.size() == 2 || part.size() == 3) && std::ranges::all_of(part, isLetter);
}

bool isScript(std::string_view part) {
  return part.size() == 4 && std::ranges::all_of(part, isLetter);
}

bool isRegion(std::string_view part) {
  return (part.size() == 2 && std::ranges::all_of(part, isLetter)) ||
         (part.size() == 3 && std::ranges::all_of(part, isDigit));
}

bool isVariant(std::string_view part) {
  return part.size() >= 4 && part.size() <= 8 &&
         std::ranges::all_of(part, [](char c) { return isLetter(c) || isDigit(c); });
}

// Takes the front of the text up to the next "_" or "-".
std::string_view takePart(std::string_view& text) {
  const std::size_t end = std::min(text.find_first_of("_-"), text.size());
  const std::string_view part = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return part;
}

std::string_view withoutEncoding(std::string_view name) {
  return name.substr(0, name.find_first_of(".@"));
}

// "de_DE.UTF-8@euro" as "de_DE". A name of another make, "C" and "POSIX" among them, counts as
// none, so that nothing odd from the environment reaches the locale data.
std::string normalised(std::string_view name) {
  name = withoutEncoding(name);
  std::string_view part = takePart(name);
  if (!isLanguage(part)) return std::string(fallback);
  std::string result = lowered(part);
  part = takePart(name);
  if (isScript(part)) {
    result.append("_").append(raised(part.substr(0, 1))).append(lowered(part.substr(1)));
    part = takePart(name);
  }
  if (isRegion(part)) result.append("_").append(raised(part));
  return result;
}

}  // namespace

Locale::Locale(std::string_view name) : _name(normalised(name)) {}

bool Locale::isName(std::string_view text) {
  text = withoutEncoding(text);
  if (text == "C" || text == "POSIX") return true;
  if (text.ends_with('_') || text.ends_with('-') || !isLanguage(takePart(text))) return false;
  std::string_view part = takePart(text);
  if (isScript(part)) part = takePart(text);
  if (isRegion(part)) part = takePart(text);
  while (isVariant(part)) part = takePart(text);
  return part.empty() && text.empty();
}

Locale Locale::ofUser(const char* category) {
  for (const char* variable : {"LC_ALL", category, "LANG"}) {
    const char* value = std::getenv(variable);
    if (value != nullptr && *value != '\0') return Locale(value);
  }
  return Locale();
}

}  // namespace foundation
