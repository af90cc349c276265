// SPDX-License-Identifier: MIT
#include "lumifact/report/iso6709.h"

#include <gtest/gtest.h>
#include <regex.h>

#include <array>
#include <random>
#include <string>

namespace lumifact {
namespace {

std::string shown(const std::optional<Iso6709Location>& location) {
  if (!location) return "none";
  return std::string(location->latitude)
      .append("|")
      .append(location->longitude)
      .append("|")
      .append(location->altitude);
}

TEST(Iso6709, FindsTheFirstPlaceWithAltitude) {
  struct Row {
    const char* text;
    const char* found;
  };
  const Row rows[] = {
      {"+48.8577+002.2950+035.000/", "+48.8577|+002.2950|+035.000"},
      {"-33.9-018.4-5/", "-33.9|-018.4|-5"},
      {"+1-2+3/CRSWGS_84/", "+1|-2|+3"},
      {"at +1+2+3/ and +4+5+6/", "+1|+2|+3"},
      {"+9+1+2+3/", "+1|+2|+3"},
      {"++1+2+3/", "+1|+2|+3"},
      {"+1+2+3 +4+5+6/", "+4|+5|+6"},
      {"+1+2/+4+5+6/", "+4|+5|+6"},
      {"7+1+2+3/", "+1|+2|+3"},
      {"+.+..+.../", "+.|+..|+..."},
      {"é+1+2+3/", "+1|+2|+3"},
      {"+48.8577+002.2950/", "none"},
      {"+48.8577+002.2950+035.000", "none"},
      {"+48.8577+002.2950+035.000x/", "none"},
      {"+48,8577+002,2950+035,000/", "none"},
      {"48.8577+002.2950+035.000/", "none"},
      {"+1+2+/", "none"},
      {"+1++2+3/", "none"},
      {"+", "none"},
      {"/", "none"},
      {"", "none"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(shown(findIso6709Location(row.text)), row.found) << row.text;
}

// The C library's matcher of the same expression, an independent model for short texts.
class Pattern {
 public:
  Pattern() { regcomp(&_expression, "([+-][0-9.]+)([+-][0-9.]+)([+-][0-9.]+)/", REG_EXTENDED); }
  ~Pattern() { regfree(&_expression); }
  Pattern(const Pattern&) = delete;
  Pattern& operator=(const Pattern&) = delete;

  std::optional<Iso6709Location> find(std::string_view text) const {
    std::array<regmatch_t, 4> groups{};
    const std::string terminated(text);
    if (regexec(&_expression, terminated.c_str(), groups.size(), groups.data(), 0) != 0) return {};
    const auto group = [&](std::size_t index) {
      const auto start = static_cast<std::size_t>(groups.at(index).rm_so);
      return text.substr(start, static_cast<std::size_t>(groups.at(index).rm_eo) - start);
    };
    return Iso6709Location{group(1), group(2), group(3)};
  }

 private:
  regex_t _expression{};
};

TEST(Iso6709, AgreesWithARegularExpressionOnRandomTexts) {
  constexpr std::string_view alphabet = "++--0012.//x";
  const Pattern pattern;
  std::mt19937 random(6709);
  int found = 0;
  for (int round = 0; round < 100000; ++round) {
    std::string text(random() % 24, ' ');
    for (char& character : text) character = alphabet[random() % alphabet.size()];
    const auto expected = pattern.find(text);
    found += expected ? 1 : 0;
    ASSERT_EQ(shown(findIso6709Location(text)), shown(expected)) << text;
  }
  EXPECT_GT(found, 1000);
}

TEST(Iso6709, TakesLinearTimeOnHostileTexts) {
  constexpr std::size_t length = 3'000'000;
  std::string signsOnly(length, '+');
  std::string digitsOnly = "+" + std::string(length, '1');
  std::string pairs;
  for (std::size_t index = 0; index < length / 2; ++index) pairs += "+1";
  std::string longNumbers;
  for (int index = 0; index < 3; ++index) longNumbers += "-" + std::string(length / 3, '.');
  for (const std::string& text : {signsOnly, digitsOnly, pairs, longNumbers}) {
    EXPECT_FALSE(findIso6709Location(text));
    EXPECT_EQ(findIso6709Location(text + "+1+2+3/")->altitude, "+3");
  }
}

}  // namespace
}  // namespace lumifact
