// SPDX-License-Identifier: MIT
#include "media/image/maker/maker_canon.h"

#include <gtest/gtest.h>

#include "model/description.h"
#include "tests/media/image/container_builder.h"
#include "tests/support/tiff_builder.h"

namespace media::image {
namespace {

using io::ByteOrder;
using model::Array;
using model::Dictionary;
using model::Value;

constexpr std::uint64_t place = 900;  // where the camera puts the note

FieldToWrite cameraSettings(std::int64_t lens, std::int64_t longest, std::int64_t shortest,
                            std::int64_t units) {
  std::vector<std::int64_t> values(46);
  values[22] = lens;
  values[23] = longest;
  values[24] = shortest;
  values[25] = units;
  return shorts(0x0001, values);
}

FieldToWrite shotInfo(std::int64_t flashCompensation) {
  std::vector<std::int64_t> values(34);
  values[15] = flashCompensation;
  return shorts(0x0004, values);
}

std::vector<FieldToWrite> wholeCamera() {
  return {cameraSettings(237, 105, 24, 1),
          shotInfo(0xFFEC),
          ascii(0x0007, "Firmware Version 1.0.0"),
          ascii(0x0009, "Ada Example  "),
          longs(0x000C, {3012345678}),
          ascii(0x0095, "EF24-105mm f/4L IS USM")};
}

const Dictionary wholeSection{{"Firmware", "Firmware Version 1.0.0"},
                              {"FlashCompensation", -2.0 / 3},
                              {"LensID", 237},
                              {"LensInfo", Array{24.0, 105.0, 0.0, 0.0}},
                              {"LensModel", "EF24-105mm f/4L IS USM"},
                              {"OwnerName", "Ada Example"},
                              {"SerialNumber", "3012345678"}};

std::string noteOf(const std::vector<FieldToWrite>& fields, ByteOrder order,
                   std::uint64_t offset = place) {
  return std::string(asText(buildIfd(order, fields, static_cast<std::size_t>(offset))));
}

std::string footer(ByteOrder order, std::uint64_t offset) {
  return order == ByteOrder::big ? "MM" + bigEndian(42, 2) + bigEndian(offset, 4)
                                 : "II" + littleEndian(42, 2) + littleEndian(offset, 4);
}

// The section that a note is read into; empty where there is none.
Dictionary readNote(std::string_view note, ByteOrder order, std::uint64_t offset = place) {
  Dictionary properties;
  const Bytes bytes(note.begin(), note.end());
  readCanonMakerNote({io::ByteView(bytes), offset, order}, properties);
  const Value* section = model::find(properties, "{ExifAux}");
  return section ? *section->asDictionary() : Dictionary();
}

constexpr ByteOrder orders[] = {ByteOrder::big, ByteOrder::little};

ByteOrder otherThan(ByteOrder order) {
  return order == ByteOrder::big ? ByteOrder::little : ByteOrder::big;
}

TEST(CanonMakerNote, showsWhatCameraAndLensAre) {
  for (const ByteOrder order : orders) {
    const std::string note = noteOf(wholeCamera(), order);
    const Dictionary section = readNote(note, order);
    EXPECT_EQ(section, wholeSection) << model::description(section);
    EXPECT_EQ(readNote(note + footer(order, place), order), wholeSection);
  }
}

TEST(CanonMakerNote, theStructureAroundItMayHaveTheOtherOrder) {
  for (const ByteOrder order : orders) {
    EXPECT_EQ(readNote(noteOf(wholeCamera(), order), otherThan(order)), wholeSection);
  }
}

TEST(CanonMakerNote, theFooterTellsOfAMove) {
  for (const ByteOrder order : orders) {
    const std::string note = noteOf(wholeCamera(), order) + footer(order, place);
    for (const std::uint64_t offset : {0, 100, 898, 902, 70'000}) {
      EXPECT_EQ(readNote(note, order, offset), wholeSection) << offset;
    }
  }
}

TEST(CanonMakerNote, movedWithoutAFooterItIsLeftOut) {
  for (const ByteOrder order : orders) {
    const std::string note = noteOf(wholeCamera(), order);
    for (const std::uint64_t offset : {0, 100, 898, 902, 1000, 70'000}) {
      EXPECT_TRUE(readNote(note, order, offset).empty()) << offset;
    }
    EXPECT_TRUE(readNote(note + footer(order, 5), order, 100).empty());
  }
}

TEST(CanonMakerNote, aFooterThatDoesNotFitIsNoFooter) {
  for (const ByteOrder order : orders) {
    EXPECT_EQ(readNote(noteOf(wholeCamera(), order) + footer(order, 5), order), wholeSection);
  }
}

TEST(CanonMakerNote, cutShortItShowsWhatIsInside) {
  const std::string note = noteOf(wholeCamera(), ByteOrder::little);
  for (std::size_t size = 0; size < note.size(); ++size) {
    for (const auto& [key, value] : readNote(note.substr(0, size), ByteOrder::little)) {
      ASSERT_TRUE(wholeSection.contains(key)) << key;
      EXPECT_EQ(value, wholeSection.at(key)) << size;
    }
  }
}

TEST(CanonMakerNote, whatIsNotKnownIsLeftOut) {
  const FieldToWrite cases[] = {
      cameraSettings(0xFFFF, 0, 0, 0),
      cameraSettings(0, 105, 24, 0),
      cameraSettings(0, 24, 105, 1),
      shorts(0x0001, {1, 2, 3}),
      undefined(0x0001, std::string(200, 'x')),
      shorts(0x0004, {1, 2, 3}),
      ascii(0x0007, ""),
      ascii(0x0009, "      "),
      longs(0x000C, {0}),
      ascii(0x000C, "text"),
      longs(0x0008, {1181861}),
  };
  int number = 0;
  for (const FieldToWrite& field : cases) {
    const Dictionary section = readNote(noteOf({field}, ByteOrder::little), ByteOrder::little);
    EXPECT_TRUE(section.empty()) << number++ << model::description(section);
  }
}

TEST(CanonMakerNote, flashCompensationIsInThirdsAndHalves) {
  struct Case {
    std::int64_t code;
    double value;
  };
  const Case cases[] = {{0, 0},        {0x0C, 1.0 / 3}, {0x10, 0.5},        {0x14, 2.0 / 3},
                        {0x20, 1},     {0x2C, 4.0 / 3}, {0xFFF4, -1.0 / 3}, {0xFFE0, -1},
                        {0xFFC0, -2.0}};
  for (const Case& each : cases) {
    const Dictionary section =
        readNote(noteOf({shotInfo(each.code)}, ByteOrder::big), ByteOrder::big);
    EXPECT_EQ(section, (Dictionary{{"FlashCompensation", each.value}})) << each.code;
  }
}

TEST(CanonMakerNote, valuesOutsideTheNoteAreLeftOut) {
  const FieldToWrite owner = ascii(0x0009, "Ada Example");
  for (const std::uint32_t lie : {0xFFFFFFF0u, 100'000u}) {
    FieldToWrite field = ascii(0x0095, "EF24-105mm f/4L IS USM");
    field.claimedOffset = lie;
    const std::string note = noteOf({owner, field}, ByteOrder::big);
    EXPECT_EQ(readNote(note, ByteOrder::big), (Dictionary{{"OwnerName", "Ada Example"}}));
  }
  FieldToWrite many = cameraSettings(237, 105, 24, 1);
  many.count = 0xFFFFFFFF;
  EXPECT_EQ(readNote(noteOf({many, owner}, ByteOrder::big), ByteOrder::big).count("LensID"), 0U);
}

TEST(CanonMakerNote, valuesInsideTheDirectoryAreNone) {
  FieldToWrite field = ascii(0x0009, "Ada Example");
  field.claimedOffset = place;
  EXPECT_TRUE(readNote(noteOf({field}, ByteOrder::big), ByteOrder::big).empty());
}

TEST(CanonMakerNote, anyByteMayBeWrong) {
  const std::string note =
      noteOf(wholeCamera(), ByteOrder::little) + footer(ByteOrder::little, place);
  for (std::size_t at = 0; at < note.size(); ++at) {
    for (const char wrong : {'\0', '\1', '\x7F', '\x80', '\xFF'}) {
      std::string damaged = note;
      damaged[at] = wrong;
      EXPECT_LE(readNote(damaged, ByteOrder::little).size(), wholeSection.size()) << at;
    }
  }
}

}  // namespace
}  // namespace media::image
