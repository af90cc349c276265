// SPDX-License-Identifier: MIT
#include "lumifact/report/sorted_entries.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumifact {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> keysOf(const model::Dictionary& dictionary,
                                const model::KeyComparison& comparison = model::compareKeys) {
  std::vector<std::string> keys;
  for (const auto* entry : sortedEntries(dictionary, comparison)) keys.push_back(entry->first);
  return keys;
}

TEST(SortedEntries, StandInTheOrderOfTheComparison) {
  const model::Dictionary dictionary = {{"b", 1}, {"A", 2}, {"{C}", 3}};
  EXPECT_THAT(keysOf(dictionary), ElementsAre("{C}", "A", "b"));
  EXPECT_THAT(keysOf(dictionary, [](auto left, auto right) { return right.compare(left); }),
              ElementsAre("{C}", "b", "A"));
}

TEST(SortedEntries, KeepLiteralOrderWhereKeysCompareEqual) {
  EXPECT_THAT(keysOf({{"make", 1}, {"Make", 2}, {"MAKE", 3}}), ElementsAre("MAKE", "Make", "make"));
}

TEST(SortedEntries, CanBeRewritten) {
  model::Dictionary dictionary = {{"a", 1}, {"b", 2}};
  for (auto* entry : sortedEntries(dictionary, model::compareKeys)) entry->second = "x";
  EXPECT_EQ(dictionary, (model::Dictionary{{"a", "x"}, {"b", "x"}}));
}

}  // namespace
}  // namespace lumifact
