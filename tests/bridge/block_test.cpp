// SPDX-License-Identifier: MIT
#include "bridge/block.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "tests/bridge/victims.h"

namespace bridge {
namespace {

using Tokens = std::weak_ptr<int>;

TEST(Block, CallsTheCallable) {
  int calls = 0;
  const Block<int(int, bool)> block([&calls](int number, bool negate) {
    ++calls;
    return negate ? -number : number;
  });
  EXPECT_EQ(block(3, true), -3);
  EXPECT_EQ(block(3, false), 3);
  EXPECT_EQ(calls, 2);
}

TEST(Block, NoBlockDoesNothing) {
  const Block<double()> none;
  EXPECT_FALSE(none);
  EXPECT_EQ(none(), 0.0);
  EXPECT_EQ(none.get(), nullptr);
  EXPECT_EQ(_Block_copy(nullptr), nullptr);
  _Block_release(nullptr);
}

TEST(Block, SurvivesInItsReceiverAndFreesItsCapturesWithTheLastCopy) {
  auto token = std::make_shared<int>(5);
  const Tokens watched = token;
  void* received = nullptr;
  {
    const Block<int()> block([token] { return *token; });
    received = _Block_copy(block.get());
  }
  token.reset();
  ASSERT_FALSE(watched.expired());
  {
    const auto shared = Block<int()>::retain(static_cast<const BlockHeader*>(received));
    EXPECT_EQ(shared(), 5);
    _Block_release(received);
    EXPECT_EQ(shared(), 5);
  }
  EXPECT_TRUE(watched.expired());
}

TEST(Block, IsCopiedEvenWithTheFlagThatFoundationAsksForClear) {
  const Block<void()> block([] {});
  EXPECT_EQ(block.get()->flags & (1 << 29), 0);
  EXPECT_EQ(block.get()->isa, static_cast<void*>(_NSConcreteMallocBlock));
}

TEST(Block, TellsItsTypes) {
  const Block<void(bool)> block([](bool) {});
  EXPECT_STREQ(block.get()->descriptor->signature, "v@?C");
}

TEST(Block, CopiesAndMovesAsAValue) {
  const Block<int()> one([] { return 1; });
  Block<int()> two([] { return 2; });
  two = one;
  EXPECT_EQ(two(), 1);
  const Block<int()> moved = std::move(two);
  EXPECT_EQ(moved(), 1);
}

TEST(Block, KeepsAnExceptionOfItsOwnFromTheCaller) {
  const Block<int()> block([]() -> int { throw std::runtime_error("own"); });
  EXPECT_EQ(block(), 0);
}

TEST(Block, LeavesNothingBehindInManyCopies) {
  const auto token = std::make_shared<int>(0);
  for (int round = 0; round < 100'000; ++round) {
    const Block<void()> block([token] { ++*token; });
    Block<void()> copy;
    copy = block;
    copy();
  }
  EXPECT_EQ(*token, 100'000);
  EXPECT_EQ(token.use_count(), 1);
}

TEST(Block, IsAnArgumentOfAMethod) {
  static std::vector<Block<void(int)>> kept;
  static const Class keeper = victims::ClassMaker("BlockKeeper")
                                  .method(
                                      "keep:",
                                      +[](id, SEL, const BlockHeader* block) {
                                        kept.push_back(Block<void(int)>::retain(block));
                                      })
                                  .build();
  int seen = 0;
  send<void, "keep:">(victims::make(keeper),
                      Block<void(int)>([&seen](int number) { seen = number; }));
  kept.at(0)(9);
  EXPECT_EQ(seen, 9);
  kept.clear();
}

}  // namespace
}  // namespace bridge
