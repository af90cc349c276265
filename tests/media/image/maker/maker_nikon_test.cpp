// SPDX-License-Identifier: MIT
#include "media/image/maker/maker_nikon.h"

#include <gtest/gtest.h>

#include "media/image/maker/nikon_cipher.h"
#include "model/description.h"
#include "tests/support/tiff_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;
using model::Array;
using model::Dictionary;
using model::Value;

constexpr std::uint32_t exposures = 8458;

std::string nikonNote(const std::vector<FieldToWrite>& fields,
                      io::ByteOrder order = io::ByteOrder::big) {
  return "Nikon\0\2\x10\0\0"s + std::string(asText(buildTiff(order, {fields})));
}

// The section that a note is read into; empty where there is none.
Dictionary readNote(std::string_view note, const Dictionary& tiff = {}) {
  Dictionary properties = {{"{TIFF}", tiff}};
  const Bytes bytes(note.begin(), note.end());
  readNikonMakerNote(io::ByteView(bytes), properties);
  const Value* section = model::find(properties, "{ExifAux}");
  return section ? *section->asDictionary() : Dictionary();
}

FieldToWrite lensOf(std::uint32_t shortest, std::uint32_t longest) {
  return rationals(0x0084, {{shortest, 1}, {longest, 1}, {4, 1}, {4, 1}});
}

// What a lens from 24 mm on says of itself, with its number at the offset.
std::string lensData(std::string_view version, std::size_t idOffset, char id) {
  std::string bytes = std::string(version) + std::string(28, '\1');
  bytes[idOffset] = id;
  bytes[idOffset + 2] = 54;  // 5 mm doubled 54 / 24 times
  return bytes;
}

std::string coded(std::string bytes, std::uint8_t serial) {
  const std::span all(reinterpret_cast<std::uint8_t*>(bytes.data()), bytes.size());
  decodeNikon(all.subspan(4), serial, exposures);
  return bytes;
}

TEST(NikonMakerNote, showsWhatCameraAndLensAre) {
  const std::vector<FieldToWrite> fields = {
      undefined(0x0012, "\xFF\1\3\0"s), ascii(0x001D, "6001440  "), lensOf(24, 120),
      undefined(0x0098, coded(lensData("0204", 12, '\xAA'), 6001440 & 0xFF)),
      longs(0x00A7, {exposures})};
  const Dictionary expected = {{"Firmware", "Ver.1.01"},
                               {"FlashCompensation", -1.0 / 3},
                               {"ImageNumber", 8458},
                               {"LensID", 170},
                               {"LensInfo", Array{24.0, 120.0, 4.0, 4.0}},
                               {"LensModel", "24.0-120.0 mm f/4.0"},
                               {"SerialNumber", "6001440"}};
  for (const io::ByteOrder order : {io::ByteOrder::big, io::ByteOrder::little}) {
    const Dictionary section = readNote(nikonNote(fields, order), {{"Software", "Ver.1.01 "}});
    EXPECT_EQ(section, expected) << model::description(section);
  }
}

TEST(NikonMakerNote, everyLayoutOfLensDataIsRead) {
  struct Case {
    const char* version;
    std::size_t idOffset;
    bool isCoded;
  };
  const Case cases[] = {{"0100", 6, false}, {"0101", 11, false}, {"0201", 11, true},
                        {"0202", 11, true}, {"0203", 11, true},  {"0204", 12, true},
                        {"0800", 13, true}, {"0801", 13, true},  {"0802", 13, true}};
  struct Serial {
    const char* text;
    const char* model;
    std::uint8_t key;
  };
  const Serial serials[] = {{"300", "NIKON D90", 300 & 0xFF},
                            {"NO= 20025585", "NIKON D200", 0x60},
                            {"No. A1", "NIKON D50", 0x22}};
  for (const Case& each : cases) {
    for (const Serial& serial : serials) {
      std::string data = lensData(each.version, each.idOffset, '\x7F');
      if (each.isCoded) data = coded(data, serial.key);
      const std::string note = nikonNote({ascii(0x001D, serial.text), lensOf(24, 70),
                                          undefined(0x0098, data), longs(0x00A7, {exposures})});
      const Dictionary section = readNote(note, {{"Model", serial.model}});
      ASSERT_TRUE(section.contains("LensID")) << each.version << " " << serial.text;
      EXPECT_EQ(section.at("LensID"), 127) << each.version << " " << serial.text;
    }
  }
}

TEST(NikonMakerNote, aLensThatCannotBeToldIsLeftOut) {
  const FieldToWrite serial = ascii(0x001D, "300");
  const FieldToWrite count = longs(0x00A7, {exposures});
  const std::string plain = lensData("0101", 11, '\x7F');
  const std::string cipher = coded(lensData("0204", 12, '\x7F'), 300 & 0xFF);
  const std::vector<FieldToWrite> cases[] = {
      {serial, undefined(0x0098, lensData("0999", 11, '\x7F')), count},
      {serial, undefined(0x0098, plain.substr(0, 12)), count},
      {serial, undefined(0x0098, lensData("0101", 11, '\0')), count},
      {serial, lensOf(50, 50), undefined(0x0098, plain), count},
      {undefined(0x0098, cipher), count},
      {serial, undefined(0x0098, cipher)},
      {ascii(0x001D, "301"), lensOf(24, 70), undefined(0x0098, cipher), count},
      {serial, lensOf(24, 70), undefined(0x0098, cipher), longs(0x00A7, {exposures + 1})},
  };
  int number = 0;
  for (const auto& fields : cases) {
    EXPECT_FALSE(readNote(nikonNote(fields)).contains("LensID")) << number;
    ++number;
  }
}

TEST(NikonMakerNote, whatIsNotKnownIsLeftOut) {
  const std::vector<FieldToWrite> cases[] = {
      {rationals(0x0084, {{0, 0}, {0, 0}, {0, 0}, {0, 0}})},
      {rationals(0x0084, {{24, 1}, {120, 1}})},
      {longs(0x00A7, {4294965247})},
      {longs(0x00A7, {0})},
      {ascii(0x001D, "   ")},
      {undefined(0x0012, "\1\1"s)},
      {shorts(0x0012, {1, 1, 1, 1})},
  };
  int number = 0;
  for (const auto& fields : cases) {
    const Dictionary section = readNote(nikonNote(fields), {{"Software", "Editor 4.3"}});
    EXPECT_TRUE(section.empty()) << number++ << model::description(section);
  }
}

TEST(NikonMakerNote, otherNotesAreLeftOut) {
  const std::string note = nikonNote({ascii(0x001D, "300")});
  for (const std::string& other :
       {""s, "Nikon\0\2"s, note.substr(0, 18), "Nikon\0\1\0"s + note.substr(8), note.substr(10)}) {
    EXPECT_TRUE(readNote(other, {{"Software", "Ver.1.01"}}).empty());
  }
}

TEST(NikonMakerNote, anyByteMayBeWrongOrMissing) {
  const std::string note =
      nikonNote({ascii(0x001D, "6001440"), lensOf(24, 120),
                 undefined(0x0098, lensData("0101", 11, '\x7F')), longs(0x00A7, {exposures})});
  for (std::size_t at = 0; at < note.size(); ++at) {
    EXPECT_LE(readNote(note.substr(0, at)).size(), 5U) << at;
    for (const char wrong : {'\0', '\1', '\x7F', '\x80', '\xFF'}) {
      std::string damaged = note;
      damaged[at] = wrong;
      EXPECT_LE(readNote(damaged).size(), 6U) << at;
    }
  }
}

}  // namespace
}  // namespace media::image
