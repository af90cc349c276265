// SPDX-License-Identifier: MIT
#include "media/image/maker/maker_apple.h"

#include <gtest/gtest.h>

#include "foundation/property_lists/property_list.h"
#include "media/image/blocks/limits.h"
#include "model/description.h"
#include "tests/support/tiff_builder.h"

namespace media::image {
namespace {

using namespace std::string_view_literals;
using model::Array;
using model::Data;
using model::Dictionary;
using model::Value;

// The section that a note is read into; empty where there is none.
Dictionary readNote(const Bytes& note) {
  Dictionary properties;
  readAppleMakerNote(io::ByteView(note), properties);
  const Value* section = model::find(properties, "{MakerApple}");
  return section ? *section->asDictionary() : Dictionary();
}

FieldToWrite propertyList(std::uint16_t tag, const Value& root) {
  const auto bytes =
      foundation::serializePropertyList(root, foundation::PropertyListFormat::binary);
  return undefined(tag, bytes ? *bytes : std::string());
}

struct NoteCase {
  const char* name;
  FieldToWrite field;
  Dictionary shown;
};

TEST(AppleMakerNote, showsEveryKindOfField) {
  const Dictionary runTime{
      {"epoch", 0}, {"flags", 1}, {"timescale", 1000000000}, {"value", 90061000000000}};
  const NoteCase cases[] = {
      {"integer", integers(1, FieldType::signedLong, {10}), {{"1", 10}}},
      {"negative integer", integers(13, FieldType::signedLong, {-73}), {{"13", -73}}},
      {"integers", integers(35, FieldType::signedLong, {7, -8}), {{"35", Array{7, -8}}}},
      {"wide integer", integers(23, FieldType::signedLong64, {1LL << 40}), {{"23", 1LL << 40}}},
      {"text", ascii(17, "9F0A-11"), {{"17", "9F0A-11"}}},
      {"fraction", signedRationals(33, {{0, 1}}), {{"33", 0.0}}},
      {"fractions", signedRationals(12, {{1, 4}, {-1, 2}}), {{"12", Array{0.25, -0.5}}}},
      {"data", undefined(50, "\1\2\3\4\5"), {{"50", Data{1, 2, 3, 4, 5}}}},
      {"list of data", propertyList(2, Data{9, 8, 7}), {{"2", Data{9, 8, 7}}}},
      {"list of entries", propertyList(3, runTime), {{"3", runTime}}},
      {"damaged list",
       undefined(3, "bplist00???"),
       {{"3", Data{'b', 'p', 'l', 'i', 's', 't', '0', '0', '?', '?', '?'}}}},
      {"division by zero", signedRationals(39, {{0, 0}}), {}},
      {"no values", FieldToWrite{.tag = 1, .type = FieldType::signedLong}, {}},
  };
  for (const NoteCase& one : cases) {
    for (const io::ByteOrder order : {io::ByteOrder::big, io::ByteOrder::little}) {
      const Dictionary section = readNote(buildAppleNote(order, {one.field}));
      EXPECT_EQ(section, one.shown) << one.name << ": " << model::description(section);
    }
  }
}

TEST(AppleMakerNote, fractionsAreOfSinglePrecision) {
  const auto vector = signedRationals(8, {{-1, 7}, {1, 3}, {2147483647, 1}});
  const Dictionary section = readNote(buildAppleNote(io::ByteOrder::big, {vector}));
  EXPECT_EQ(section, (Dictionary{{"8", Array{-0.14285715, 0.33333334, 2147483600.0}}}))
      << model::description(section);
}

TEST(AppleMakerNote, notesOfOtherMakersAreLeftOut) {
  const std::string_view notes[] = {""sv,
                                    "Apple iOS"sv,
                                    "Apple iOS\0"sv,
                                    "Apple iOS\0\0\1"sv,
                                    "Apple iOS\0\0\1XX\0\1"sv,
                                    "Apple iOS\0\0\1MM"sv,
                                    "Apple iOS\0\0\1MM\0\0"sv,
                                    "Nikon\0\2\1\0\0MM\0*\0\0\0\10"sv};
  for (const std::string_view note : notes) {
    EXPECT_TRUE(readNote(Bytes(note.begin(), note.end())).empty()) << note;
  }
}

TEST(AppleMakerNote, fieldsOutsideTheNoteAreLeftOut) {
  FieldToWrite lie = integers(8, FieldType::signedRational, {1, 2, 3});
  lie.claimedOffset = 0xFFFFFFF0;
  const Bytes note =
      buildAppleNote(io::ByteOrder::big, {lie, integers(1, FieldType::signedLong, {4})});
  EXPECT_EQ(readNote(note), (Dictionary{{"1", 4}}));
}

TEST(AppleMakerNote, theFirstFieldOfATagCounts) {
  const Bytes note = buildAppleNote(io::ByteOrder::big, {integers(1, FieldType::signedLong, {4}),
                                                         integers(1, FieldType::signedLong, {5})});
  EXPECT_EQ(readNote(note), (Dictionary{{"1", 4}}));
}

std::size_t nodeCount(const Value& value) {
  std::size_t count = 1;
  if (value.asArray()) {
    for (const Value& element : *value.asArray()) count += nodeCount(element);
  }
  if (value.asDictionary()) {
    for (const auto& [key, element] : *value.asDictionary()) count += nodeCount(element);
  }
  return count;
}

// A binary list whose arrays each hold the next one twice: `levels` doublings.
std::string doublingList(int levels) {
  std::string bytes = "bplist00";
  std::string offsets;
  for (int level = 0; level < levels; ++level) {
    offsets += static_cast<char>(bytes.size());
    bytes += '\xA2';
    bytes += static_cast<char>(level + 1);
    bytes += static_cast<char>(level + 1);
  }
  offsets += static_cast<char>(bytes.size());
  bytes += '\x09';
  const std::size_t table = bytes.size();
  bytes += offsets;
  bytes += "\0\0\0\0\0\0\1\1\0\0\0\0\0\0\0"sv;
  bytes += static_cast<char>(levels + 1);
  bytes += "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0"sv;
  bytes += static_cast<char>(table);
  return bytes;
}

TEST(AppleMakerNote, doublingPropertyListsStayInBounds) {
  std::vector<FieldToWrite> fields;
  for (std::uint16_t tag = 100; tag < 200; ++tag)
    fields.push_back(undefined(tag, doublingList(13)));
  fields.push_back(undefined(200, doublingList(40)));
  const Dictionary section = readNote(buildAppleNote(io::ByteOrder::big, fields));
  EXPECT_EQ(section.size(), fields.size());
  EXPECT_NE(section.at("100").asArray(), nullptr);
  EXPECT_NE(section.at("200").asData(), nullptr);
  EXPECT_LE(nodeCount(Value(section)), 3 * limits.makerNoteTreeNodes);
}

TEST(AppleMakerNote, fieldsThatShareBytesStayInBounds) {
  std::vector<FieldToWrite> fields;
  for (std::uint16_t tag = 0; tag < 1000; ++tag) {
    fields.push_back(FieldToWrite{
        .tag = tag, .type = FieldType::undefined, .count = 60'000, .claimedOffset = 16});
  }
  Bytes note = buildAppleNote(io::ByteOrder::big, fields);
  note.resize(65'536);
  std::size_t total = 0;
  for (const auto& [key, value] : readNote(note)) total += value.asData()->size();
  EXPECT_GT(total, 0u);
  EXPECT_LE(total, limits.embeddedBytes);
}

}  // namespace
}  // namespace media::image
