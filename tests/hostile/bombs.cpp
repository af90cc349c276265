// SPDX-License-Identifier: MIT
//
// Each bomb is what its format's documentation allows, with the largest numbers that fit; none is
// larger than a few megabytes.
#include "tests/hostile/bombs.h"

#include <zlib.h>

#include <algorithm>
#include <string_view>

#include "samples/formats/box_writer.h"
#include "samples/formats/deflate.h"
#include "tests/support/crowded_containers.h"

namespace hostile {

namespace {

using namespace std::string_literals;
using namespace std::string_view_literals;
using samples::BoxWriter;
using samples::ByteOrder;
using samples::ByteWriter;

// A zlib stream of so many zero bytes, at a thousandth of their size.
Bytes deflatedZeros(std::uint64_t count) {
  z_stream stream{};
  deflateInit(&stream, Z_BEST_COMPRESSION);
  Bytes result;
  Bytes zeros(1 << 16);
  Bytes part(1 << 16);
  int end = Z_OK;
  while (end == Z_OK) {
    const auto size = std::min<std::uint64_t>(count, zeros.size());
    count -= size;
    stream.next_in = zeros.data();
    stream.avail_in = static_cast<uInt>(size);
    do {
      stream.next_out = part.data();
      stream.avail_out = static_cast<uInt>(part.size());
      end = deflate(&stream, count == 0 ? Z_FINISH : Z_NO_FLUSH);
      result.insert(result.end(), part.data(), stream.next_out);
    } while (stream.avail_out == 0);
  }
  deflateEnd(&stream);
  return result;
}

const Bytes& packedGigabyte() {
  static const Bytes packed = deflatedZeros(std::uint64_t{1} << 30);
  return packed;
}

// PNG: ISO/IEC 15948.
void addChunk(ByteWriter& png, std::string_view type, const Bytes& content) {
  ByteWriter checked;
  checked.text(type);
  checked.append(content);
  png.u32(content.size());
  png.append(checked.bytes());
  png.u32(samples::crc32Of(checked.bytes()));
}

struct PngBomb {
  std::uint32_t width = 1;
  std::uint32_t height = 1;
  int depth = 8;
  int colours = 2;
  bool isInterlaced = false;
  std::string_view chunkType = {};  // another chunk in front of the pixels
  Bytes chunk = {};
  Bytes pixels = {};  // deflated
};

Bytes pngBytes(const PngBomb& bomb) {
  ByteWriter header;
  header.u32(bomb.width);
  header.u32(bomb.height);
  for (const int value : {bomb.depth, bomb.colours, 0, 0, bomb.isInterlaced ? 1 : 0})
    header.u8(value);
  ByteWriter png;
  png.text("\x89PNG\r\n\x1A\n");
  addChunk(png, "IHDR", header.bytes());
  if (!bomb.chunkType.empty()) addChunk(png, bomb.chunkType, bomb.chunk);
  addChunk(png, "IDAT", bomb.pixels);
  addChunk(png, "IEND", {});
  return png.take();
}

// A chunk's text or profile: what stands in front of the deflated bytes, and a gigabyte of them.
Bytes gigabyteBehind(std::string_view head) {
  ByteWriter content;
  content.text(head);
  content.append(packedGigabyte());
  return content.take();
}

// GIF89a.
Bytes gifBytes(std::uint32_t width, std::uint32_t height, int frames) {
  ByteWriter gif(ByteOrder::little);
  gif.text("GIF89a");
  gif.u16(width);
  gif.u16(height);
  gif.text("\x80\0\0\0\0\0\xFF\xFF\xFF"sv);
  for (int frame = 0; frame < frames; ++frame) {
    gif.text(",\0\0\0\0"sv);
    gif.u16(width);
    gif.u16(height);
    gif.text("\0\2\2\x44\1\0"sv);
  }
  gif.text(";");
  return gif.take();
}

// TIFF 6.0: one directory of entries with a number each.
struct Entry {
  std::uint16_t tag;
  std::uint32_t value;
  std::uint32_t count = 1;
};

Bytes tiffBytes(const std::vector<Entry>& entries, std::uint32_t nextDirectory = 0,
                const Bytes& data = {}) {
  ByteWriter tiff(ByteOrder::little);
  tiff.text("II*\0\x08\0\0\0"sv);
  tiff.u16(entries.size());
  for (const Entry& entry : entries) {
    tiff.u16(entry.tag);
    tiff.u16(4);
    tiff.u32(entry.count);
    tiff.u32(entry.value);
  }
  tiff.u32(nextDirectory);
  tiff.append(data);
  return tiff.take();
}

// A gray picture in one strip, of a gigabyte.
Bytes tiffOfGigabyte(std::uint32_t side) {
  constexpr std::uint32_t dataOffset = 8 + 2 + 9 * 12 + 4;
  const Bytes& data = packedGigabyte();
  return tiffBytes({{256, side},
                    {257, side},
                    {258, 8},
                    {259, 8},
                    {262, 1},
                    {273, dataOffset},
                    {277, 1},
                    {278, side},
                    {279, static_cast<std::uint32_t>(data.size())}},
                   0, data);
}

Bytes tiffOfTiles(std::uint32_t side, std::uint32_t tile) {
  return tiffBytes({{256, side},
                    {257, side},
                    {258, 8},
                    {259, 1},
                    {262, 1},
                    {277, 1},
                    {322, tile},
                    {323, tile},
                    {324, 8, 0x3FFFFFFF},
                    {325, 8, 0x3FFFFFFF}});
}

// A bitmap with its header alone, or with runs that say nothing.
Bytes bmpBytes(std::uint32_t width, std::uint32_t height, int depth, int packing) {
  ByteWriter bmp(ByteOrder::little);
  bmp.text("BM");
  bmp.u32(0x7FFFFFFF);
  bmp.u32(0);
  bmp.u32(54 + 1024);
  bmp.u32(40);
  bmp.u32(width);
  bmp.u32(height);
  bmp.u16(1);
  bmp.u16(depth);
  bmp.u32(packing);
  bmp.u32(0);
  bmp.zeros(8);
  bmp.u32(0xFFFFFFFF);  // colours
  bmp.u32(0);
  bmp.zeros(1024);
  bmp.text("\0\1"sv);
  return bmp.take();
}

// JPEG: ITU-T T.81.
void addSegment(ByteWriter& jpeg, int marker, std::string_view payload) {
  jpeg.u8(0xFF);
  jpeg.u8(marker);
  jpeg.u16(payload.size() + 2);
  jpeg.text(payload);
}

Bytes jpegBytes(int marker, std::uint32_t width, std::uint32_t height, int scans) {
  ByteWriter jpeg;
  jpeg.text("\xFF\xD8");
  addSegment(jpeg, 0xDB, std::string(1, '\0') + std::string(64, '\1'));
  ByteWriter frame;
  frame.u8(8);
  frame.u16(height);
  frame.u16(width);
  frame.text("\1\1\x11\0"sv);
  addSegment(jpeg, marker, {reinterpret_cast<const char*>(frame.bytes().data()), frame.size()});
  // One code of one bit, for a difference of zero.
  const std::string code = "\1"s + std::string(15, '\0') + std::string(1, '\0');
  addSegment(jpeg, 0xC4, std::string(1, '\0') + code);
  addSegment(jpeg, 0xC4, "\x10" + code);
  for (int scan = 0; scan < scans; ++scan) {
    addSegment(jpeg, 0xDA, marker == 0xC2 ? "\1\1\0\0\0\0"sv : "\1\1\0\0\x3F\0"sv);
    jpeg.zeros(32);
  }
  jpeg.text("\xFF\xD9");
  return jpeg.take();
}

// WebP with the largest canvas of all, around a picture that is none.
Bytes webpOfLargeCanvas() {
  ByteWriter webp(ByteOrder::little);
  webp.text("RIFF");
  webp.u32(4 + 18 + 8);
  webp.text("WEBPVP8X");
  webp.u32(10);
  webp.u32(0);
  webp.text("\xFF\xFF\xFF\xFF\xFF\xFF");
  webp.text("VP8L");
  webp.u32(0);
  return webp.take();
}

// HEIF: ISO/IEC 23008-12. A grid of as many tiles as a grid may have, all of them one item that
// holds nothing, or one coded picture with a configuration that is not there.
struct HeifBomb {
  std::string_view type = "grid";
  std::uint32_t side = 0xFFFFFFFF;
  int tiles = 0;
  std::uint64_t itemBytes = 12;  // claimed
  bool isItsOwnTile = false;
  int parameterSets = 0;  // claimed; there are none
};

Bytes heifBytes(const HeifBomb& bomb) {
  BoxWriter heif;
  heif.begin("ftyp");
  heif.text("heic\0\0\0\0mif1heic"sv);
  heif.end();
  heif.begin("meta", 0);
  heif.begin("hdlr", 0);
  heif.u32(0);
  heif.text("pict");
  heif.zeros(13);
  heif.end();
  heif.begin("pitm", 0);
  heif.u16(1);
  heif.end();
  heif.begin("iinf", 0);
  heif.u16(2);
  for (const int item : {1, 2}) {
    heif.begin("infe", 0x02000000);
    heif.u16(item);
    heif.u16(0);
    heif.text(item == 1 ? bomb.type : "hvc1"sv);
    heif.u8(0);
    heif.end();
  }
  heif.end();
  heif.begin("iref", 0);
  heif.begin("dimg");
  heif.u16(1);
  heif.u16(bomb.tiles);
  for (int tile = 0; tile < bomb.tiles; ++tile) heif.u16(bomb.isItsOwnTile ? 1 : 2);
  heif.end();
  heif.end();
  heif.begin("iprp");
  heif.begin("ipco");
  heif.begin("ispe", 0);
  heif.u32(bomb.side);
  heif.u32(bomb.side);
  heif.end();
  heif.begin("hvcC");
  heif.text("\1\x01\x60\0\0\0\x90\0\0\0\0\0\x5D\xF0\0\xFC\xFD\xF8\xF8\0\0\x0F"sv);
  heif.u8(bomb.parameterSets);
  heif.end();
  heif.end();
  heif.begin("ipma", 0);
  heif.u32(2);
  for (const int item : {1, 2}) {
    heif.u16(item);
    heif.text("\2\x81\x82"sv);
  }
  heif.end();
  heif.end();
  heif.begin("idat");
  heif.text("\0\1\xFF\xFF"sv);
  heif.u32(bomb.side);
  heif.u32(bomb.side);
  heif.end();
  heif.begin("iloc", 0x01000000);
  heif.u16(0x4400);
  heif.u16(2);
  for (const int item : {1, 2}) {
    heif.u16(item);
    heif.u16(1);  // in the item data
    heif.u16(0);
    heif.u16(1);
    heif.u32(0);
    heif.u32(bomb.itemBytes);
  }
  heif.end();
  heif.end();
  return heif.take();
}

// A movie whose tables claim gigabytes, of a picture as large as its fields can say.
Bytes movieOfGigabytes() {
  using namespace media::movie;
  const Bytes entry = videoEntry(
      {.width = 0xFFFF, .height = 0xFFFF, .boxes = Writer().u32(0x7FFFFFFF).text("avcC")});
  const Bytes claimed = Writer().u32(0xFFFFFFFF).u32(0xFFFFFFFF);
  return joined(
      {fileType("qt  "),
       box("moov", {movieHeader(1, 0xFFFFFFFF),
                    track({.header = trackHeader(1, 0xFFFFFFFF, {1, 0, 0, 1, 0, 0}, 32767, 32767),
                           .edits = box("edts", {fullBox("elst", 0, claimed)}),
                           .mediaHeader = mediaHeader(1, 0xFFFFFFFF),
                           .handlerType = "vide",
                           .descriptions = sampleDescriptions({entry}),
                           .times = fullBox("stts", 0, claimed),
                           .sizes = fullBox("stsz", 0, claimed)})})});
}

}  // namespace

Bytes plainPng(std::uint32_t width, std::uint32_t height) {
  return pngBytes({.width = width,
                   .height = height,
                   .pixels = deflatedZeros((std::uint64_t{3} * width + 1) * height)});
}

std::vector<Bomb> pictureBombs() {
  constexpr std::uint32_t most = 0x7FFFFFFF;
  const Bytes few = deflatedZeros(1000);
  return {
      {"claims.png", pngBytes({.width = most, .height = most, .pixels = few})},
      {"wide.png", pngBytes({.width = most, .height = 1, .pixels = few})},
      {"large.png", pngBytes({.width = 20'000, .height = 20'000, .pixels = packedGigabyte()})},
      {"interlaced.png", pngBytes({.width = 60'000,
                                   .height = 60'000,
                                   .depth = 16,
                                   .colours = 6,
                                   .isInterlaced = true,
                                   .pixels = few})},
      {"unpacks.png", pngBytes({.pixels = packedGigabyte()})},
      {"text.png",
       pngBytes({.chunkType = "zTXt", .chunk = gigabyteBehind("Comment\0\0"sv), .pixels = few})},
      {"unicode.png", pngBytes({.chunkType = "iTXt",
                                .chunk = gigabyteBehind("XML:com.adobe.xmp\0\1\0\0\0"sv),
                                .pixels = few})},
      {"profile.png",
       pngBytes({.chunkType = "iCCP", .chunk = gigabyteBehind("profile\0\0"sv), .pixels = few})},
      {"claims.gif", gifBytes(0xFFFF, 0xFFFF, 1)},
      {"frames.gif", gifBytes(4000, 4000, 50'000)},
      {"claims.tif", tiffBytes({{256, most}, {257, most}, {258, 8}, {273, 8}, {279, most}})},
      {"strips.tif",
       tiffBytes({{256, 1}, {257, most}, {258, 8}, {262, 1}, {273, 8, most}, {279, 8, most}})},
      {"large.tif", tiffOfGigabyte(60'000)},
      {"unpacks.tif", tiffOfGigabyte(16)},
      {"tiles.tif", tiffOfTiles(most, 0x7FFFFFF0)},
      {"loop.tif", tiffBytes({{256, 10}, {257, 10}, {330, 8, 1}, {34665, 8}, {34853, 8}}, 8)},
      {"claims.bmp", bmpBytes(most, most, 32, 0)},
      {"runs.bmp", bmpBytes(32'767, 32'767, 8, 1)},
      {"upward.bmp", bmpBytes(0x80000000, 0x80000000, 1, 0)},
      {"large.webp", webpOfOneColour(16'384, 16'384)},
      {"canvas.webp", webpOfLargeCanvas()},
      {"claims.jpg", jpegBytes(0xC0, 0xFFFF, 0xFFFF, 1)},
      {"progressive.jpg", jpegBytes(0xC2, 65'000, 65'000, 1)},
      {"scans.jpg", jpegBytes(0xC2, 4000, 4000, 20'000)},
      {"arithmetic.jpg", jpegBytes(0xC9, 65'000, 65'000, 1)},
      {"claims.heic", heifBytes({.type = "hvc1"})},
      {"gigabytes.heic", heifBytes({.type = "hvc1", .side = 1000, .itemBytes = 0xFFFFFFF0})},
      {"tiles.heic", heifBytes({.side = 0x7FFFFFFF, .tiles = 0xFFFF})},
      {"grid.heic", heifBytes({.side = 65'000, .tiles = 0xFFFF})},
      {"sets.heic", heifBytes({.type = "hvc1", .side = 1000, .parameterSets = 0xFF})},
      {"itself.heic", heifBytes({.side = 1000, .tiles = 4, .isItsOwnTile = true})},
  };
}

std::vector<Bomb> movieBombs() {
  return {
      {"streams.ts", media::movie::crowdedTransportStream(1000)},
      {"streams.mkv", media::movie::crowdedMatroska(1000)},
      {"streams.avi", media::movie::crowdedAvi(1000)},
      {"some streams.ts", media::movie::crowdedTransportStream(200)},
      {"some streams.mkv", media::movie::crowdedMatroska(200)},
      {"some streams.avi", media::movie::crowdedAvi(200)},
      {"gigabytes.mov", movieOfGigabytes()},
  };
}

}  // namespace hostile
