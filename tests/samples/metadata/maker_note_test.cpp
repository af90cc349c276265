// SPDX-License-Identifier: MIT
#include "samples/metadata/maker_note.h"

#include <gtest/gtest.h>

#include <string>

namespace samples {
namespace {

constexpr Camera phone{.makerNoteVersion = 10};
constexpr Photo photo{.path = "IMG_0001.JPG", .camera = &phone};

TEST(MakerNote, BeginsWithItsNameAndIsBigEndian) {
  const Bytes note = phoneMakerNote(photo, {});
  using std::string_literals::operator""s;
  EXPECT_EQ(std::string(note.begin(), note.begin() + 14), "Apple iOS\0\0\1MM"s);
  // The first entry: tag 1, SLONG, one value, which is the version.
  EXPECT_EQ(Bytes(note.begin() + 16, note.begin() + 28),
            (Bytes{0, 1, 0, 9, 0, 0, 0, 1, 0, 0, 0, 10}));
}

TEST(MakerNote, CountsOffsetsFromItsFirstByte) {
  const Bytes note = phoneMakerNote(photo, {});
  // The second entry: tag 2, UNDEFINED, a property list elsewhere in the note.
  EXPECT_EQ(note[29], 2);
  const std::size_t offset = note[36] * 16777216u + note[37] * 65536u + note[38] * 256u + note[39];
  ASSERT_LT(offset + 8, note.size());
  EXPECT_EQ(std::string(note.begin() + static_cast<std::ptrdiff_t>(offset),
                        note.begin() + static_cast<std::ptrdiff_t>(offset) + 8),
            "bplist00");
}

TEST(MakerNote, MeasuresTheBrightnessOfThePicture) {
  Picture picture(32, 32);
  picture.at(31, 0) = {1, 1, 1};
  const BrightnessGrid grid = brightnessGrid(picture);
  EXPECT_EQ(grid[0], 0);
  EXPECT_NEAR(grid[15], 16383.75, 1);
}

}  // namespace
}  // namespace samples
