// SPDX-License-Identifier: MIT
#include "device/emulated/mapped_image.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

#include "tests/device/emulated/mach_recipe.h"

namespace device::emulated {
namespace {

constexpr int target = 0;

const void* onlyA(const std::string& symbol) {
  return symbol == "_a" ? &target : nullptr;
}

model::Result<std::span<std::uint8_t>> map(const MachRecipe& recipe) {
  const Bytes bytes = recipe.build();
  return mapImage(loading::readMachLibrary(io::ByteView(bytes)), onlyA);
}

std::uint64_t pointerAt(std::span<const std::uint8_t> image, std::size_t address) {
  std::uint64_t pointer = 0;
  std::memcpy(&pointer, &image[address], sizeof pointer);
  return pointer;
}

std::uint64_t placeOf(const void* pointer) {
  return reinterpret_cast<std::uint64_t>(pointer);
}

TEST(MappedImage, HasItsPointersCompleted) {
  const auto image = map({.rebases = {0x11, 0x21, 0x00, 0x51, 0x00},
                          .bindings = {0x11, 0x40, '_', 'a', 0, 0x51, 0x71, 0x08, 0x60, 0x04, 0x90},
                          .data = {0x34, 0x12}});
  ASSERT_TRUE(image) << image.error().reason;
  EXPECT_EQ(pointerAt(*image, 0x4000), placeOf(image->data()) + 0x1234);
  EXPECT_EQ(pointerAt(*image, 0x4008), placeOf(&target) + 4);
  EXPECT_EQ(pointerAt(*image, 0x4010), 0U);
  EXPECT_EQ(pointerAt(*image, 0), 0x0100'000C'FEED'FACFU);
}

TEST(MappedImage, BehindWhatTheFileHasAreZeros) {
  MachRecipe recipe{.data = {1, 2, 3, 4}};
  recipe.segments[1].fileSize = 2;
  const auto image = map(recipe);
  ASSERT_TRUE(image) << image.error().reason;
  EXPECT_EQ(pointerAt(*image, 0x4000), 0x0201U);
}

TEST(MappedImage, IsProtectedAsTheFileSays) {
  const auto image = map({});
  ASSERT_TRUE(image) << image.error().reason;
  (*image)[0x4000] = 1;
  EXPECT_DEATH((*image)[0] = 1, "");
  EXPECT_DEATH((*image)[0x8000] = 1, "");
}

TEST(MappedImage, BindsAtOnceWhatThePhoneBindsLater) {
  const auto image = map({.bindings = {0x11, 0x40, '_', 'a', 0, 0x51, 0x71, 0x08, 0x60, 0x04, 0x90},
                          .lazyBindings = {0x71, 0x10, 0x11, 0x40, '_', 'a', 0, 0x90, 0x00}});
  ASSERT_TRUE(image) << image.error().reason;
  EXPECT_EQ(pointerAt(*image, 0x4008), placeOf(&target) + 4);
  EXPECT_EQ(pointerAt(*image, 0x4010), placeOf(&target));
}

TEST(MappedImage, IsOfNoMonstrousSize) {
  MachRecipe recipe;
  recipe.segments[2].address = 1ULL << 40;
  const auto image = map(recipe);
  ASSERT_FALSE(image);
  EXPECT_EQ(image.error().reason, "its addresses reach too far");
}

TEST(MappedImage, NamesAllSymbolsThatNobodyHas) {
  const Bytes bindings = {0x11, 0x51, 0x71, 0x00, 0x40, '_', 'b', 0, 0x90, 0x40,
                          '_',  'a',  0,    0x90, 0x40, '_', 'c', 0, 0x90};
  const auto image = map({.bindings = bindings});
  ASSERT_FALSE(image);
  EXPECT_EQ(image.error().reason, "nobody has _b _c");
}

TEST(MappedImage, ASymbolThatMayBeMissingIsNull) {
  const auto image =
      map({.bindings = {0x11, 0x51, 0x71, 0x00, 0x41, '_', 'b', 0, 0x90}, .data = {1}});
  ASSERT_TRUE(image) << image.error().reason;
  EXPECT_EQ(pointerAt(*image, 0x4000), 0U);
}

}  // namespace
}  // namespace device::emulated
