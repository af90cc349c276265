// SPDX-License-Identifier: MIT
#include "device/emulated/compact_unwind.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "tests/device/emulated/unwind_recipe.h"

namespace device::emulated {
namespace {

using testing::ElementsAre;

constexpr std::uint32_t leaf = 0x0200'0000;
constexpr std::uint32_t frame = 0x0400'0001;
constexpr std::uint32_t guardedFrame = 0x5400'0003;  // with handlers and the first personality

// Each as "BEGIN..END ENCODING HANDLERS", in decimal.
std::vector<std::string> functionsOf(const UnwindRecipe& recipe) {
  const auto bytes = recipe.build();
  const auto unwind = readCompactUnwind(io::ByteView(bytes));
  if (!unwind) return {unwind.error().reason};
  std::vector<std::string> texts;
  for (const UnwindFunction& function : unwind->functions)
    texts.push_back(std::to_string(function.begin) + ".." + std::to_string(function.end) + " " +
                    std::to_string(function.encoding >> 24) + " " +
                    std::to_string(function.handlers));
  return texts;
}

TEST(CompactUnwind, ListsTheFunctionsOfAPlainPage) {
  EXPECT_THAT(functionsOf({.personalities = {0x9000},
                           .functions = {{100, frame}, {140, guardedFrame}, {160, leaf}},
                           .handlers = {{140, 700}},
                           .end = 200}),
              ElementsAre("100..140 4 0", "140..160 84 700", "160..200 2 0"));
}

TEST(CompactUnwind, FindsTheEncodingsOfACompressedPage) {
  EXPECT_THAT(functionsOf({.pageKind = 3,
                           .shared = {frame, leaf},
                           .own = {guardedFrame},
                           .functions = {{0x4000, 1}, {0x4100, 2}, {0x4200, 0}},
                           .handlers = {{0x4100, 9}},
                           .end = 0x4300}),
              ElementsAre("16384..16640 2 0", "16640..16896 84 9", "16896..17152 4 0"));
}

TEST(CompactUnwind, TellsThePersonalities) {
  const auto bytes = UnwindRecipe{.personalities = {0x9000, 0x9008}}.build();
  const auto unwind = readCompactUnwind(io::ByteView(bytes));
  ASSERT_TRUE(unwind);
  EXPECT_THAT(unwind->personalities, ElementsAre(0x9000, 0x9008));
  EXPECT_EQ(personalityOf(guardedFrame), 1U);
  EXPECT_EQ(personalityOf(frame), 0U);
  EXPECT_EQ(frameKind(guardedFrame), FrameKind::framePointer);
}

TEST(CompactUnwind, DamageIsRefused) {
  const struct {
    const char* what;
    UnwindRecipe recipe;
  } cases[] = {
      {"an unknown page", {.pageKind = 4, .functions = {{1, leaf}}, .end = 9}},
      {"an encoding that is not there",
       {.pageKind = 3, .shared = {leaf}, .functions = {{1, 1}}, .end = 9}},
      {"functions that descend", {.functions = {{9, leaf}, {8, leaf}}, .end = 20}},
      {"a function twice", {.functions = {{9, leaf}, {9, leaf}}, .end = 20}},
      {"an end before the last function", {.functions = {{9, leaf}}, .end = 9}},
  };
  for (const auto& [what, recipe] : cases)
    EXPECT_THAT(functionsOf(recipe), ElementsAre("damaged unwind information")) << what;
  EXPECT_THAT(functionsOf({.version = 2}), ElementsAre("unwind information of another version"));
}

TEST(CompactUnwind, ASectionThatIsCutOffIsRefused) {
  const auto bytes = UnwindRecipe{.personalities = {0x9000},
                                  .functions = {{100, frame}, {140, guardedFrame}},
                                  .handlers = {{140, 700}},
                                  .end = 200}
                         .build();
  for (std::size_t size = 0; size < bytes.size(); ++size)
    EXPECT_FALSE(readCompactUnwind(io::ByteView(std::span(bytes).first(size)))) << size;
}

TEST(CompactUnwind, DamagedBytesDoNoHarm) {
  constexpr unsigned seed = 11;
  constexpr int rounds = 20'000;
  std::mt19937 random(seed);
  const auto sound = UnwindRecipe{.pageKind = 3,
                                  .shared = {frame, leaf},
                                  .functions = {{16, 0}, {32, 1}, {48, 0}},
                                  .handlers = {{16, 99}},
                                  .end = 64}
                         .build();
  int refused = 0;
  for (int round = 0; round < rounds; ++round) {
    auto bytes = sound;
    for (int change = 0; change < 3; ++change)
      bytes[random() % bytes.size()] = static_cast<std::uint8_t>(random());
    const auto unwind = readCompactUnwind(io::ByteView(bytes));
    refused += unwind ? 0 : 1;
    if (!unwind) continue;
    for (const UnwindFunction& function : unwind->functions)
      EXPECT_LT(function.begin, function.end) << "round " << round;
  }
  EXPECT_GT(refused, 100);
}

}  // namespace
}  // namespace device::emulated
