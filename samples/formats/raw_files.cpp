// SPDX-License-Identifier: MIT
//
// Each function writes one kind from its first byte to its last, with as little as its readers
// need: where the picture's size stands, how deep its samples are, and a block with the camera's
// name.
#include "samples/formats/raw_files.h"

#include "samples/formats/box_writer.h"
#include "samples/formats/jpeg_file.h"
#include "samples/metadata/tiff_block.h"
#include "samples/metadata/xmp_writer.h"
#include "samples/pictures/scenes.h"

namespace samples {

namespace {

constexpr int rawWidth = 640;
constexpr int rawHeight = 480;
constexpr int rawDepth = 14;

Directory exifDirectory() {
  Directory exif;
  exif.addShort(0x8827, {200});
  exif.addText(0x9003, "2019:05:04 12:30:00");
  exif.addLong(0xA002, {rawWidth});
  exif.addLong(0xA003, {rawHeight});
  return exif;
}

Directory firstDirectory() {
  Directory first;
  first.addText(0x010F, "Sample");
  first.addText(0x0110, "Structure");
  first.addShort(0x0112, {1});
  first.addDirectory(0x8769, exifDirectory());
  return first;
}

Bytes exifBlock(ByteOrder order) {
  return tiffBlock(order, {firstDirectory()});
}

Bytes preview() {
  return jpegFile(paintScene(Scene::hills, 64, 48), {.quality = 60},
                  {{1, exifSegment(exifBlock(ByteOrder::little))}});
}

Bytes raf() {
  constexpr std::size_t headerSize = 0x94;
  const Bytes jpeg = preview();
  Directory sensor;
  sensor.addLong(0xF003, {rawDepth});
  Directory root;
  root.addDirectory(0xF000, sensor);
  ByteWriter directory(ByteOrder::big);
  directory.u32(1);
  directory.u16(0x0111);
  directory.u16(4);
  directory.u16(rawHeight);
  directory.u16(rawWidth);
  ByteWriter file(ByteOrder::big);
  file.text("FUJIFILMCCD-RAW 0201");
  file.zeros(0x54 - file.size());
  std::size_t offset = headerSize;
  const Bytes parts[] = {jpeg, directory.bytes(), tiffBlock(ByteOrder::little, {root})};
  for (const Bytes& part : parts) {
    file.u32(offset);
    file.u32(part.size());
    offset += part.size();
  }
  file.zeros(headerSize - file.size());
  for (const Bytes& part : parts) file.append(part);
  return file.take();
}

Bytes rw2() {
  Directory first = firstDirectory();
  first.addShort(0x0004, {4});
  first.addShort(0x0005, {8});
  first.addShort(0x0006, {4 + rawHeight});
  first.addShort(0x0007, {8 + rawWidth});
  first.addShort(0x000A, {rawDepth});
  first.addShort(0x0017, {200});
  first.addUndefined(0x002E, preview());
  Bytes bytes = tiffBlock(ByteOrder::little, {first});
  bytes[2] = 0x55;
  return bytes;
}

// The sensor's data are a lossless JPEG, of which the header is enough.
Bytes cr2() {
  Directory first = firstDirectory();
  first.addLong(0x0100, {64});
  first.addLong(0x0101, {48});
  ByteWriter file(ByteOrder::little);
  file.text(std::string_view("II*\0", 4));
  file.u32(16);
  file.text(std::string_view("CR\2\0", 4));
  file.u32(0);
  writeDirectory(file, first);
  constexpr std::size_t directorySize = 2 + 12 + 4;  // of one entry
  const std::size_t dataAt = file.size() + directorySize;
  file.patchU32(12, file.size());
  Directory sensor;
  sensor.addLong(0x0111, {static_cast<std::int64_t>(dataAt)});
  writeDirectory(file, sensor);
  file.text(std::string_view("\xFF\xD8\xFF\xC3\0\x0B", 6));
  file.u8(rawDepth);
  file.zeros(8);
  return file.take();
}

Bytes cr3() {
  constexpr std::string_view canon =
      "\x85\xC0\xB6\x87\x82\x0F\x11\xE0\x81\x11\xF4\xCE\x46\x2B\x6A\x48";
  Directory first;
  first.addShort(0x0100, {rawWidth});
  first.addShort(0x0101, {rawHeight});
  first.addText(0x010F, "Sample");
  BoxWriter file;
  file.begin("ftyp");
  file.text(std::string_view("crx \0\0\0\1crx isom", 16));
  file.end();
  file.begin("moov");
  file.begin("uuid");
  file.text(canon);
  file.begin("CNCV");
  file.text("CanonCR3_001/00.09.00/00.00.00");
  file.end();
  const std::pair<const char*, Bytes> directories[] = {
      {"CMT1", tiffBlock(ByteOrder::little, {first})},
      {"CMT2", tiffBlock(ByteOrder::little, {exifDirectory()})}};
  for (const auto& [type, block] : directories) {
    file.begin(type);
    file.append(block);
    file.end();
  }
  file.end();
  for (const char* type : {"trak", "mdia", "minf", "stbl"}) file.begin(type);
  file.begin("stsd", 0);
  file.u32(1);
  file.begin("CRAW");
  file.zeros(82);
  file.begin("CMP1");
  file.zeros(8);
  file.u32(rawWidth);
  file.u32(rawHeight);
  file.zeros(8);
  file.u8(rawDepth);
  for (int open = 0; open < 8; ++open) file.end();
  return file.take();
}

struct CiffEntry {
  int code;
  Bytes bytes;
};

Bytes ciffHeap(const std::vector<CiffEntry>& entries) {
  ByteWriter heap(ByteOrder::little);
  for (const CiffEntry& entry : entries) heap.append(entry.bytes);
  const std::size_t directory = heap.size();
  heap.u16(entries.size());
  std::size_t offset = 0;
  for (const CiffEntry& entry : entries) {
    heap.u16(entry.code);
    heap.u32(entry.bytes.size());
    heap.u32(offset);
    offset += entry.bytes.size();
  }
  heap.u32(directory);
  return heap.take();
}

Bytes textBytes(std::string_view text) {
  return {text.begin(), text.end()};
}

Bytes crw() {
  ByteWriter spec(ByteOrder::little);
  for (const int value : {rawWidth, rawHeight, 0x3F800000, 0, 8, 24, 257}) spec.u32(value);
  ByteWriter time(ByteOrder::little);
  time.u32(1556973000);
  const Bytes camera = ciffHeap({{0x080A, textBytes(std::string_view("Sample\0Structure\0", 17))}});
  const Bytes properties =
      ciffHeap({{0x1810, spec.bytes()}, {0x180E, time.bytes()}, {0x2807, camera}});
  ByteWriter file(ByteOrder::little);
  file.text("II");
  file.u32(14);
  file.text("HEAPCCDR");
  file.append(ciffHeap({{0x2007, preview()}, {0x300A, properties}}));
  return file.take();
}

Bytes mrw() {
  const Bytes block = exifBlock(ByteOrder::big);
  ByteWriter file(ByteOrder::big);
  file.text(std::string_view("\0MRM", 4));
  file.u32(32 + 8 + block.size());
  file.text(std::string_view("\0PRD\0\0\0\x18", 8));
  file.text("27200001");
  for (const int size : {rawHeight + 8, rawWidth + 8, rawHeight, rawWidth}) file.u16(size);
  file.u8(rawDepth);
  file.zeros(7);
  file.text(std::string_view("\0TTW", 4));
  file.u32(block.size());
  file.append(block);
  return file.take();
}

Bytes x3f() {
  const Bytes jpeg = preview();
  ByteWriter file(ByteOrder::little);
  file.text("FOVb");
  file.u32(0x20002);
  file.zeros(20);
  for (const int value : {rawWidth, rawHeight, 0}) file.u32(value);
  file.zeros(64 - file.size());
  const std::size_t image = file.size();
  file.text("SECi");
  file.zeros(24);
  file.append(jpeg);
  const std::size_t directory = file.size();
  file.text("SECd");
  file.u32(0x20000);
  file.u32(1);
  file.u32(image);
  file.u32(directory - image);
  file.text("IMA2");
  file.u32(directory);
  return file.take();
}

Bytes jpeg2000() {
  BoxWriter file;
  file.begin("jP  ");
  file.text("\r\n\x87\n");
  file.end();
  file.begin("ftyp");
  file.text(std::string_view("jp2 \0\0\0\0jp2 ", 12));
  file.end();
  file.begin("jp2h");
  file.begin("ihdr");
  file.u32(rawHeight);
  file.u32(rawWidth);
  file.u16(3);
  file.u8(rawDepth - 1);
  file.zeros(3);
  file.end();
  file.end();
  file.begin("uuid");
  file.text("JpgTiffExif->JP2");
  file.append(exifBlock(ByteOrder::big));
  file.end();
  return file.take();
}

Bytes psd() {
  const Bytes block = exifBlock(ByteOrder::big);
  ByteWriter file(ByteOrder::big);
  file.text(std::string_view("8BPS\0\1\0\0\0\0\0\0\0\3", 14));
  file.u32(rawHeight);
  file.u32(rawWidth);
  file.u16(16);
  file.u16(3);
  file.u32(0);
  file.u32(12 + block.size() + block.size() % 2);
  file.text(std::string_view("8BIM\x04\x22\0\0", 8));
  file.u32(block.size());
  file.append(block);
  file.zeros(block.size() % 2 + 8);
  return file.take();
}

Bytes exr() {
  ByteWriter file(ByteOrder::little);
  file.text(std::string_view("\x76\x2F\x31\x01\2\0\0\0", 8));
  file.text(std::string_view("channels\0chlist\0\x13\0\0\0Y\0\1\0\0\0", 26));
  file.zeros(13);
  file.text(std::string_view("dataWindow\0box2i\0\x10\0\0\0", 21));
  for (const int edge : {0, 0, rawWidth - 1, rawHeight - 1}) file.u32(edge);
  file.zeros(1);
  return file.take();
}

}  // namespace

std::vector<RawFile> rawFiles() {
  return {{"structure.raf", raf()}, {"structure.rw2", rw2()},      {"structure.cr2", cr2()},
          {"structure.cr3", cr3()}, {"structure.crw", crw()},      {"structure.mrw", mrw()},
          {"structure.x3f", x3f()}, {"structure.jp2", jpeg2000()}, {"structure.psd", psd()},
          {"structure.exr", exr()}};
}

}  // namespace samples
