// SPDX-License-Identifier: MIT
#include "tests/media/image/raw/raw_builder.h"

#include "tests/media/image/container_builder.h"

namespace media::image {

namespace {

using namespace std::string_literals;

std::string tiff(io::ByteOrder order, const std::vector<std::vector<FieldToWrite>>& ifds) {
  return std::string(asText(buildTiff(order, ifds)));
}

std::string number(std::size_t value, int bytes) {
  return littleEndian(value, bytes);
}

void put(std::string& bytes, std::size_t place, const std::string& what) {
  bytes.replace(place, what.size(), what);
}

std::string uuidBox(std::string_view uuid, std::string_view payload) {
  return isoBox("uuid", std::string(uuid) + std::string(payload));
}

std::string boxIfAny(const char* type, const std::string& bytes) {
  return bytes.empty() ? "" : isoBox(type, bytes);
}

}  // namespace

std::string innerJpeg(std::int64_t width, std::int64_t height) {
  const std::string exif =
      tiff(io::ByteOrder::little,
           {{ascii(0x010F, "Maker"), shorts(0x0112, {6}), rationals(0x011A, {{72, 1}}),
             rationals(0x011B, {{72, 1}}), shorts(0x0128, {2}), pointerTo(0x8769, 1)},
            {shorts(0x8827, {200}), longs(0xA002, {width}), longs(0xA003, {height})}});
  const std::string whole = jpegFile(jpegSegment(0xE0, "JFIF\0\1\2\1\0\x64\0\x64\0\0"s) +
                                     jpegSegment(0xE1, "Exif\0\0"s + exif) + jpegFrame(160, 120));
  return whole.substr(0, whole.size() - 2990);  // most of the coded data
}

std::string rafFile(const RafToWrite& raf) {
  const std::string directory = bigEndian(2, 4) + bigEndian(0x0100, 2) + bigEndian(4, 2) +
                                bigEndian(9999, 2) + bigEndian(9999, 2) + bigEndian(0x0111, 2) +
                                bigEndian(4, 2) +
                                bigEndian(static_cast<std::uint64_t>(raf.height), 2) +
                                bigEndian(static_cast<std::uint64_t>(raf.width), 2);
  std::string file = "FUJIFILMCCD-RAW 0201FF392201FinePix";
  file.resize(0x94);
  std::size_t place = 0x54;
  std::size_t offset = file.size();
  for (const std::string& part : {raf.jpeg, directory, raf.sensor}) {
    put(file, place, bigEndian(offset, 4) + bigEndian(part.size(), 4));
    place += 8;
    offset += part.size();
    file += part;
  }
  return file;
}

std::string rw2File(const std::vector<FieldToWrite>& fields, const std::string& jpeg) {
  auto all = fields;
  all.push_back(undefined(0x002E, jpeg));
  std::string file = tiff(io::ByteOrder::little, {all});
  put(file, 2, "\x55\0"s);
  return file;
}

std::string cr2File(const std::vector<FieldToWrite>& first, const std::vector<FieldToWrite>& exif,
                    const std::string& sensor) {
  constexpr std::size_t headerSize = 16;
  constexpr std::size_t room = 256;  // for an IFD and its values
  const auto order = io::ByteOrder::little;
  const auto at = [&](const std::vector<FieldToWrite>& fields, std::size_t offset) {
    std::string bytes(asText(buildIfd(order, fields, offset, {headerSize, headerSize + room})));
    bytes.resize(room);
    return bytes;
  };
  const std::size_t sensorIfd = headerSize + 2 * room;
  const std::size_t data = headerSize + 3 * room;
  return "II*\0"s + number(headerSize, 4) + "CR\2\0"s + number(sensorIfd, 4) +
         at(first, headerSize) + at(exif, headerSize + room) +
         at({longs(0x0111, {static_cast<std::int64_t>(data)})}, sensorIfd) + sensor;
}

std::string cr3File(const Cr3ToWrite& cr3) {
  const std::string canon = "\x85\xC0\xB6\x87\x82\x0F\x11\xE0\x81\x11\xF4\xCE\x46\x2B\x6A\x48";
  const std::string xmp = "\xBE\x7A\xCF\xCB\x97\xA9\x42\xE8\x9C\x71\x99\x94\x91\xE3\xAF\xAC";
  std::string movie = uuidBox(canon, isoBox("CNCV", cr3.version) + boxIfAny("CMT1", cr3.first) +
                                         boxIfAny("CMT2", cr3.exif) + boxIfAny("CMT3", cr3.maker) +
                                         boxIfAny("CMT4", cr3.gps));
  for (const auto& [width, bits] : cr3.tracks) {
    const std::string coder =
        isoBox("CMP1", std::string(8, '\0') + bigEndian(static_cast<std::uint64_t>(width), 4) +
                           std::string(12, '\0') + bigEndian(static_cast<std::uint64_t>(bits), 1));
    const std::string entry = isoBox("CRAW", std::string(82, '\0') + coder);
    movie += isoBox(
        "trak",
        isoBox("mdia",
               isoBox("minf", isoBox("stbl", fullBox("stsd", 0, 0, bigEndian(1, 4) + entry)))));
  }
  return isoBox("ftyp", "crx \0\0\0\1crx isom"s) + isoBox("moov", movie) +
         (cr3.xmp.empty() ? "" : uuidBox(xmp, cr3.xmp)) + isoBox("mdat", "coded");
}

std::string ciffHeap(const std::vector<CiffEntry>& entries) {
  std::string bytes;
  std::string directory = number(entries.size(), 2);
  for (const CiffEntry& entry : entries) {
    const auto code = static_cast<std::size_t>(entry.code);
    if (entry.isInEntry) {
      std::string inside = entry.bytes;
      inside.resize(8);
      directory += number(code | 0x4000, 2) + inside;
    } else {
      directory += number(code, 2) + number(entry.bytes.size(), 4) + number(bytes.size(), 4);
      bytes += entry.bytes;
    }
  }
  return bytes + directory + number(bytes.size(), 4);
}

std::string crwFile(const std::vector<CiffEntry>& entries) {
  return "II" + number(26, 4) + "HEAPCCDR" + std::string(12, '\0') + ciffHeap(entries);
}

std::string mrwBlock(std::string_view name, std::string_view bytes) {
  return "\0"s + std::string(name) + bigEndian(bytes.size(), 4) + std::string(bytes);
}

std::string mrwSensor(int width, int height, int depth) {
  const auto size = [](int pixels) { return bigEndian(static_cast<std::uint64_t>(pixels), 2); };
  return mrwBlock("PRD", "27200001" + size(height + 8) + size(width + 8) + size(height) +
                             size(width) + bigEndian(static_cast<std::uint64_t>(depth), 1) +
                             std::string(7, '\0'));
}

std::string mrwFile(std::string_view blocks) {
  return "\0MRM"s + bigEndian(blocks.size(), 4) + std::string(blocks);
}

std::string x3fProperties(const std::vector<std::pair<std::string, std::string>>& pairs) {
  std::string places;
  std::string characters;
  const auto add = [&](const std::string& text) {
    places += number(characters.size() / 2, 4);
    for (const char character : text + '\0') characters += {character, '\0'};
  };
  for (const auto& [name, value] : pairs) {
    add(name);
    add(value);
  }
  return "SECp" + number(0x20000, 4) + number(pairs.size(), 4) + number(0, 8) +
         number(characters.size() / 2, 4) + places + characters;
}

std::string x3fFile(int version, int width, int height, int rotation,
                    const std::vector<X3fSection>& sections) {
  std::string file = "FOVb" + number(static_cast<std::size_t>(version) << 16, 4);
  file.resize(version < 4 ? 28 : 40);
  for (const int value : {width, height, rotation})
    file += number(static_cast<std::size_t>(value), 4);
  file.resize(64);
  std::string directory = "SECd" + number(0x20000, 4) + number(sections.size(), 4);
  for (const X3fSection& section : sections) {
    directory += number(file.size(), 4) + number(section.bytes.size(), 4) + section.name;
    file += section.bytes;
  }
  const std::size_t place = file.size();
  return file + directory + number(place, 4);
}

}  // namespace media::image
