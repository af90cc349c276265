// SPDX-License-Identifier: MIT
#include "media/image/tiff/tiff_section.h"

#include <gtest/gtest.h>

#include "tests/media/image/tag_rows.h"

namespace media::image {
namespace {

using namespace std::string_view_literals;
using model::Array;

void expectTiff(std::span<const TagCase> cases) {
  expectShown(cases, readTiffSection, "{TIFF}");
}

TEST(TiffSection, showsEveryTagUnderItsKey) {
  const TagCase cases[] = {
      {"Compression", shorts(0x0103, {5}), 5},
      {"PhotometricInterpretation", shorts(0x0106, {2}), 2},
      {"DocumentName", ascii(0x010D, "page"), "page"},
      {"ImageDescription", ascii(0x010E, ""), ""},
      {"Make", ascii(0x010F, "Maker"), "Maker"},
      {"Model", ascii(0x0110, "MD-100  "), "MD-100  "},
      {"Orientation", shorts(0x0112, {6}), 6},
      {"XResolution", rationals(0x011A, {{72, 1}}), 72.0},
      {"YResolution", rationals(0x011B, {{300, 4}}), 75.0},
      {"ResolutionUnit", shorts(0x0128, {2}), 2},
      {"TransferFunction", shorts(0x012D, {0, 500, 65535}), Array{0, 500, 65535}},
      {"Software", ascii(0x0131, "12.4"), "12.4"},
      {"DateTime", ascii(0x0132, "2019:08:08 14:39:59"), "2019:08:08 14:39:59"},
      {"Artist", ascii(0x013B, "Ada; Grace"), "Ada; Grace"},
      {"HostComputer", ascii(0x013C, "host"), "host"},
      {"WhitePoint", rationals(0x013E, {{1, 4}, {1, 2}}), Array{0.25, 0.5}},
      {"PrimaryChromaticities", rationals(0x013F, {{1, 2}, {1, 4}, {1, 8}, {3, 4}, {1, 5}, {0, 1}}),
       Array{0.5, 0.25, 0.125, 0.75, 0.2, 0.0}},
      {"TileWidth", longs(0x0142, {512}), 512},
      {"TileLength", shorts(0x0143, {512}), 512},
      {"Copyright", ascii(0x8298, "Ada"), "Ada"},
  };
  expectTiff(cases);
  expectEveryRowIn(tiffTags(), cases);
}

TEST(TiffSection, bothPartsOfACopyrightAreShown) {
  const TagCase cases[] = {
      {"Copyright", ascii(0x8298, "Ada\0Grace"sv), "Ada, Grace"},
      {"Copyright", ascii(0x8298, " \0Grace"sv), "Grace"},
      {"Copyright", ascii(0x8298, "Ada\0"sv), "Ada"},
      {"Copyright", ascii(0x8298, "Ada\0  "sv), "Ada"},
      {"Copyright", ascii(0x8298, "   "), "   "},
      {"Copyright", ascii(0x8298, ""), ""},
  };
  expectTiff(cases);
}

TEST(TiffSection, whatDescribesThePixelsIsLeftOut) {
  const TagCase cases[] = {
      {"", longs(0x00FE, {1}), std::nullopt},   {"", longs(0x0100, {640}), std::nullopt},
      {"", longs(0x0101, {480}), std::nullopt}, {"", shorts(0x0102, {8, 8, 8}), std::nullopt},
      {"", longs(0x0111, {8}), std::nullopt},   {"", shorts(0x0115, {3}), std::nullopt},
      {"", longs(0x0117, {80}), std::nullopt},  {"", shorts(0x011C, {1}), std::nullopt},
      {"", shorts(0x0213, {1}), std::nullopt},
  };
  expectTiff(cases);
}

struct OrientationCase {
  std::vector<std::int64_t> stored;
  std::optional<int> shown;
};

TEST(TiffSection, theTopLevelHasTheOrientationToo) {
  const OrientationCase cases[] = {{{1}, 1}, {{8}, 8}, {{0}, {}}, {{9}, {}}, {{6, 6}, {}}};
  for (const OrientationCase& one : cases) {
    const Bytes bytes = buildTiff(io::ByteOrder::little, {{shorts(0x0112, one.stored)}});
    auto structure = TiffStructure::open(io::ByteView(bytes));
    ASSERT_TRUE(structure);
    model::Dictionary properties;
    readTiffSection(*structure, *structure->readIfd(8), properties);
    const model::Value* shown = model::find(properties, "Orientation");
    const model::Value expected = one.shown ? model::Value(*one.shown) : model::Value();
    EXPECT_EQ(shown ? *shown : model::Value(), expected) << one.stored[0];
  }
}

}  // namespace
}  // namespace media::image
