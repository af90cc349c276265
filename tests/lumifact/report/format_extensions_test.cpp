// SPDX-License-Identifier: MIT
#include "lumifact/report/format_extensions.h"

#include <gtest/gtest.h>

namespace lumifact {
namespace {

using model::Array;
using model::Dictionary;

std::string textOf(const Dictionary& extensions) {
  std::string text;
  appendExtensions(text, extensions, model::compareKeys);
  return text;
}

TEST(FormatExtensions, PrintALineAnEntryInSortedOrder) {
  EXPECT_EQ(textOf({{"Version", 0},
                    {"depth", 24},
                    {"FormatName", "H.264"},
                    {"FullRangeVideo", false},
                    {"Verbatim", model::Data{0, 0, 1, 0x39, 0x61}}}),
            "\n  depth = 24\n  FormatName = H.264\n  FullRangeVideo = 0\n  Verbatim = <00000139 61>"
            "\n  Version = 0");
}

TEST(FormatExtensions, JoinArraysWithoutBlanks) {
  EXPECT_EQ(textOf({{"Range", Array{1, 2.5, "x y"}}, {"Empty", Array{}}}),
            "\n  Empty = []\n  Range = [1,2.5,x y]");
}

TEST(FormatExtensions, ShowTheLastArrayOfADictionary) {
  EXPECT_EQ(textOf({{"CVCleanAperture", Dictionary{{"HeightRational", Array{1080, 1}},
                                                   {"widthRational", Array{1920, 1}},
                                                   {"Width", 1920},
                                                   {"Zoom", Dictionary{{"a", Array{9}}}}}}}),
            "\n  CVCleanAperture\n  {\n    widthRational = 1920,1\n  }");
}

TEST(FormatExtensions, LeaveOutADictionaryWithoutArrays) {
  EXPECT_EQ(textOf({{"CVPixelAspectRatio", Dictionary{{"HorizontalSpacing", 1}}},
                    {"Empty", Dictionary{}}}),
            "");
}

}  // namespace
}  // namespace lumifact
