// SPDX-License-Identifier: MIT
#include "samples/metadata/camera_notes.h"

#include <gtest/gtest.h>

#include <string>

#include "samples/library/cameras.h"

namespace samples {
namespace {

using std::string_literals::operator""s;

std::string notesText(const Bytes& bytes) {
  return {bytes.begin(), bytes.end()};
}

TEST(CameraNotes, CanonsIsADirectoryWithAFooter) {
  const Photo photo{.camera = &cameras::canon6d, .author = "Ada Example"};
  const std::string note = notesText(canonMakerNote(photo));
  // Six entries; the first is a table of 26 16-bit numbers.
  EXPECT_EQ(note.substr(0, 10), "\6\0\1\0\3\0\x1A\0\0\0"s);
  EXPECT_EQ(note.substr(note.size() - 8), "II*\0\0\0\0\0"s);
  EXPECT_NE(note.find("Ada Example\0"s), std::string::npos);
  EXPECT_NE(note.find("EF24-105mm f/4L IS USM\0"s), std::string::npos);
}

TEST(CameraNotes, NikonsIsABlockBehindItsName) {
  const Photo photo{.camera = &cameras::nikonD750, .subsecond = 60};
  const std::string note = notesText(nikonMakerNote(photo));
  EXPECT_EQ(note.substr(0, 14), "Nikon\0\2\x10\0\0MM\0*"s);
  EXPECT_NE(note.find("6098123\0"s), std::string::npos);
  EXPECT_EQ(shutterCount(photo), 8060);
}

}  // namespace
}  // namespace samples
