// SPDX-License-Identifier: MIT
#include "lumifact/report/flash_codes.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "lumifact/report/label.h"

namespace lumifact {
namespace {

// The text of 95 ends in a blank of its own.
constexpr Label rows[] = {
    {0, "Flash did not fire"},
    {1, "Flash fired"},
    {5, "Strobe return light not detected"},
    {7, "Strobe return light detected"},
    {9, "Flash fired, compulsory flash mode"},
    {13, "Flash fired, compulsory flash mode, return light not detected"},
    {15, "Flash fired, compulsory flash mode, return light detected"},
    {16, "Flash did not fire, compulsory flash mode"},
    {24, "Flash did not fire, auto mode"},
    {25, "Flash fired, auto mode"},
    {29, "Flash fired, auto mode, return light not detected"},
    {31, "Flash fired, auto mode, return light detected"},
    {32, "No flash function"},
    {65, "Flash fired, red-eye reduction mode"},
    {69, "Flash fired, red-eye reduction mode, return light not detected"},
    {71, "Flash fired, red-eye reduction mode, return light detected"},
    {73, "Flash fired, compulsory flash mode, red-eye reduction mode"},
    {77, "Flash fired, compulsory flash mode, red-eye reduction mode, return light not detected"},
    {79, "Flash fired, compulsory flash mode, red-eye reduction mode, return light detected"},
    {89, "Flash fired, auto mode, red-eye reduction mode"},
    {93, "Flash fired, auto mode, return light not detected, red-eye reduction mode"},
    {95, "Flash fired, auto mode, return light detected, red-eye reduction mode "},
};

TEST(FlashCodes, NameEveryKnownMode) {
  for (const Label& row : rows) EXPECT_EQ(flashMode(row.code), row.text) << row.code;
}

TEST(FlashCodes, CallEveryOtherCodeUnknown) {
  for (std::int64_t code = -2; code < 300; ++code) {
    if (std::ranges::count(rows, code, &Label::code) > 0) continue;
    EXPECT_EQ(flashMode(code), "Unkown Flash mode") << code;
  }
}

}  // namespace
}  // namespace lumifact
