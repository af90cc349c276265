// SPDX-License-Identifier: MIT
#include "media/image/ifd/tiff_ifd.h"

#include <gtest/gtest.h>

#include "tests/support/tiff_builder.h"

namespace media::image {
namespace {

using namespace std::string_view_literals;

io::ByteView viewOf(std::string_view text) {
  return std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
}

// The integers of the first field of the first IFD.
std::vector<std::int64_t> firstField(TiffStructure& structure) {
  const auto ifd = structure.readIfd(structure.firstIfd());
  if (!ifd || ifd->entries.empty()) return {};
  const auto field = structure.field(ifd->entries[0]);
  std::vector<std::int64_t> values;
  for (std::size_t index = 0; field && index < field->count; ++index) {
    values.push_back(field->integer(index).value_or(-1));
  }
  return values;
}

TEST(TiffStructure, opensHeadersOfItsKindOnly) {
  struct HeaderCase {
    std::string_view bytes;
    bool opens;
  };
  const HeaderCase cases[] = {
      {"II*\0\10\0\0\0"sv, true},
      {"MM\0*\0\0\0\10"sv, true},
      {"IIRO\10\0\0\0"sv, true},
      {"IIRS\10\0\0\0"sv, true},
      {"IIU\0\10\0\0\0"sv, true},
      {"II+\0\10\0\0\0\20\0\0\0\0\0\0\0"sv, true},
      {"II+\0\4\0\0\0\20\0\0\0\0\0\0\0"sv, false},
      {"II+\0\10\0\0\0"sv, false},
      {"II\0*\10\0\0\0"sv, false},
      {"MM*\0\0\0\0\10"sv, false},
      {"IM*\0\10\0\0\0"sv, false},
      {"II*\0\10\0\0"sv, false},
      {""sv, false},
  };
  for (const HeaderCase& one : cases) {
    EXPECT_EQ(TiffStructure::open(viewOf(one.bytes)).has_value(), one.opens) << one.bytes;
  }
}

TEST(TiffStructure, readsValuesInsideAndBehindEntriesInBothOrders) {
  for (const io::ByteOrder order : {io::ByteOrder::big, io::ByteOrder::little}) {
    for (const std::vector<std::int64_t>& values :
         {std::vector<std::int64_t>{1}, {1, 2}, {1, 2, 3}, {7, 8, 9, 10, 11}}) {
      const Bytes bytes = buildTiff(order, {{shorts(0x8827, values)}});
      auto block = TiffStructure::open(io::ByteView(bytes));
      ASSERT_TRUE(block);
      EXPECT_EQ(firstField(*block), values);
      io::MemorySource source(bytes);
      io::SourceReader reader(source);
      auto file = TiffStructure::open(reader);
      ASSERT_TRUE(file);
      EXPECT_EQ(firstField(*file), values);
    }
  }
}

TEST(TiffStructure, readsBigTiff) {
  for (const io::ByteOrder order : {io::ByteOrder::big, io::ByteOrder::little}) {
    const Bytes bytes = buildBigTiff(order, {shorts(0x0102, {8, 8, 8, 8})});
    auto structure = TiffStructure::open(io::ByteView(bytes));
    ASSERT_TRUE(structure);
    EXPECT_EQ(firstField(*structure), (std::vector<std::int64_t>{8, 8, 8, 8}));
  }
}

TEST(TiffStructure, readsEveryIfdOnce) {
  const Bytes bytes = buildTiff(io::ByteOrder::big, {{pointerTo(0x8769, 0)}});
  auto structure = TiffStructure::open(io::ByteView(bytes));
  const auto ifd = structure->readIfd(structure->firstIfd());
  ASSERT_TRUE(ifd);
  EXPECT_FALSE(structure->readIfdAt(ifd->find(0x8769)));
  EXPECT_FALSE(structure->readIfd(structure->firstIfd()));
}

TEST(TiffStructure, readsNoMoreIfdsThanTheLimit) {
  const Bytes bytes(1024, 0);
  TiffStructure structure(io::ByteView(bytes), io::ByteOrder::big);
  std::size_t readCount = 0;
  for (std::uint64_t offset = 0; offset < 200; ++offset) {
    readCount += structure.readIfd(offset) ? 1 : 0;
  }
  EXPECT_EQ(readCount, limits.ifdsPerStructure);
}

TEST(TiffStructure, anIfdThatIsCutKeepsItsWholeEntries) {
  Bytes bytes = buildTiff(io::ByteOrder::big, {{shorts(1, {5}), shorts(2, {6}), shorts(3, {7})}});
  bytes.resize(8 + 2 + 2 * 12 + 5);
  auto structure = TiffStructure::open(io::ByteView(bytes));
  const auto ifd = structure->readIfd(8);
  ASSERT_TRUE(ifd);
  EXPECT_EQ(ifd->entries.size(), 2u);
}

TEST(TiffStructure, anIfdOf65535EntriesIsReadUpToTheLimit) {
  Bytes bytes = buildTiff(io::ByteOrder::little, {{shorts(1, {5})}});
  bytes[8] = bytes[9] = 0xFF;
  bytes.resize(786'420, 1);
  auto structure = TiffStructure::open(io::ByteView(bytes));
  const auto ifd = structure->readIfd(8);
  ASSERT_TRUE(ifd);
  EXPECT_LE(ifd->entries.size(), limits.entriesPerIfd);
}

TEST(TiffStructure, anIfdOutsideIsNone) {
  const Bytes bytes = buildTiff(io::ByteOrder::big, {{shorts(1, {5})}});
  for (const std::uint64_t offset :
       {bytes.size() - 1, bytes.size(), std::size_t{0xFFFFFFFF}, ~std::size_t{0}}) {
    auto structure = TiffStructure::open(io::ByteView(bytes));
    EXPECT_FALSE(structure->readIfd(offset)) << offset;
  }
}

struct LieCase {
  const char* name;
  FieldType type;
  std::uint32_t count;
  std::uint32_t offset;
};

TEST(TiffStructure, lyingCountsAndOffsetsGiveNoField) {
  const LieCase cases[] = {
      {"largest count of bytes", FieldType::undefined, 0xFFFFFFFF, 8},
      {"largest count of texts", FieldType::ascii, 0xFFFFFFFF, 8},
      {"largest count of fractions", FieldType::rational, 0xFFFFFFFF, 8},
      {"offset behind the end", FieldType::rational, 1, 4000},
      {"largest offset", FieldType::rational, 1, 0xFFFFFFFF},
      {"value across the end", FieldType::rational, 1, 20},
  };
  for (const LieCase& one : cases) {
    const FieldToWrite field{
        .tag = 1, .type = one.type, .count = one.count, .claimedOffset = one.offset};
    const Bytes bytes = buildTiff(io::ByteOrder::big, {{field}});
    auto structure = TiffStructure::open(io::ByteView(bytes));
    const auto ifd = structure->readIfd(8);
    ASSERT_TRUE(ifd && ifd->entries.size() == 1) << one.name;
    EXPECT_FALSE(structure->field(ifd->entries[0])) << one.name;
    EXPECT_FALSE(structure->block(&ifd->entries[0])) << one.name;
  }
}

TEST(TiffStructure, entriesOfUnknownTypesAreLeftOut) {
  const Bytes bytes = buildTiff(
      io::ByteOrder::big,
      {{FieldToWrite{.tag = 1, .type = static_cast<FieldType>(14), .count = 1}, shorts(2, {6})}});
  auto structure = TiffStructure::open(io::ByteView(bytes));
  const auto ifd = structure->readIfd(8);
  ASSERT_TRUE(ifd);
  EXPECT_EQ(ifd->find(1), nullptr);
  EXPECT_NE(ifd->find(2), nullptr);
}

TEST(TiffStructure, longTextsAreCutAndLongArraysLeftOut) {
  const std::string text(limits.textBytes + 10, 'x');
  const std::vector<std::int64_t> values(limits.valuesPerField + 1, 1);
  const Bytes bytes = buildTiff(io::ByteOrder::big, {{undefined(1, text), shorts(2, values)}});
  auto structure = TiffStructure::open(io::ByteView(bytes));
  const auto ifd = structure->readIfd(8);
  ASSERT_TRUE(ifd && ifd->entries.size() == 2);
  EXPECT_EQ(structure->field(ifd->entries[0])->bytes.size(), limits.textBytes);
  EXPECT_FALSE(structure->field(ifd->entries[1]));
  EXPECT_EQ(structure->block(&ifd->entries[0])->size(), text.size());
}

TEST(TiffStructure, aFileIsReadWhereItsDirectoriesAreOnly) {
  Bytes bytes = buildTiff(io::ByteOrder::big, {{shorts(0x0112, {6})}});
  bytes.resize(8 << 20);
  io::MemorySource source(bytes);
  io::SourceReader reader(source);
  auto structure = TiffStructure::open(reader);
  ASSERT_TRUE(structure);
  EXPECT_EQ(firstField(*structure), std::vector<std::int64_t>{6});
  EXPECT_LE(source.bytesRead(), io::SourceReader::headSize);
}

}  // namespace
}  // namespace media::image
