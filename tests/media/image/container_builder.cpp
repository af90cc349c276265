// SPDX-License-Identifier: MIT
#include "tests/media/image/container_builder.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include "media/image/image_source.h"
#include "tests/support/kept_seed.h"
#include "tests/support/tiff_builder.h"

namespace media::image {

namespace {

using namespace std::string_literals;

std::string withEvenSize(std::string bytes) {
  if (bytes.size() % 2 != 0) bytes.push_back('\0');
  return bytes;
}

}  // namespace

std::string bigEndian(std::uint64_t value, int bytes) {
  std::string text;
  for (int shift = 8 * (bytes - 1); shift >= 0; shift -= 8) {
    text.push_back(static_cast<char>(value >> shift));
  }
  return text;
}

std::string littleEndian(std::uint64_t value, int bytes) {
  const std::string text = bigEndian(value, bytes);
  return {text.rbegin(), text.rend()};
}

std::vector<std::uint8_t> bytesOf(std::string_view text) {
  return {text.begin(), text.end()};
}

io::ByteView viewOf(std::string_view text) {
  support::keepSeed(text);
  return io::ByteView({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

std::string deflated(std::string_view text) {
  uLongf size = compressBound(static_cast<uLong>(text.size()));
  std::string stream(size, '\0');
  compress(reinterpret_cast<Bytef*>(stream.data()), &size,
           reinterpret_cast<const Bytef*>(text.data()), static_cast<uLong>(text.size()));
  stream.resize(size);
  return stream;
}

std::string exifBlock(std::string_view make, int orientation) {
  const Bytes tiff =
      buildTiff(io::ByteOrder::big,
                {{ascii(0x010F, make), shorts(0x0112, {orientation}), rationals(0x011A, {{300, 1}}),
                  rationals(0x011B, {{300, 1}}), shorts(0x0128, {2})}});
  return std::string(asText(tiff));
}

std::string iptcDataset(int record, int number, std::string_view text) {
  return "\x1C" + bigEndian(static_cast<std::uint64_t>(record), 1) +
         bigEndian(static_cast<std::uint64_t>(number), 1) + bigEndian(text.size(), 2) +
         std::string(text);
}

std::string photoshopResource(int number, std::string_view bytes, std::string_view name) {
  return "8BIM" + bigEndian(static_cast<std::uint64_t>(number), 2) +
         withEvenSize(bigEndian(name.size(), 1) + std::string(name)) + bigEndian(bytes.size(), 4) +
         withEvenSize(std::string(bytes));
}

std::string xmpPacket(std::string_view insideDescription) {
  return "<x:xmpmeta xmlns:x='adobe:ns:meta/'>"
         "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
         "<rdf:Description rdf:about=''"
         " xmlns:Iptc4xmpCore='http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/'"
         " xmlns:Iptc4xmpExt='http://iptc.org/std/Iptc4xmpExt/2008-02-29/'"
         " xmlns:apple-fi='http://ns.apple.com/faceinfo/1.0/'"
         " xmlns:aux='http://ns.adobe.com/exif/1.0/aux/'"
         " xmlns:dc='http://purl.org/dc/elements/1.1/'"
         " xmlns:exif='http://ns.adobe.com/exif/1.0/'"
         " xmlns:exifEX='http://cipa.jp/exif/1.0/'"
         " xmlns:mwg-rs='http://www.metadataworkinggroup.com/schemas/regions/'"
         " xmlns:photoshop='http://ns.adobe.com/photoshop/1.0/'"
         " xmlns:stArea='http://ns.adobe.com/xmp/sType/Area#'"
         " xmlns:stDim='http://ns.adobe.com/xap/1.0/sType/Dimensions#'"
         " xmlns:tiff='http://ns.adobe.com/tiff/1.0/'"
         " xmlns:xmp='http://ns.adobe.com/xap/1.0/'"
         " xmlns:xmpRights='http://ns.adobe.com/xap/1.0/rights/'>" +
         std::string(insideDescription) + "</rdf:Description></rdf:RDF></x:xmpmeta>";
}

std::string iccProfileOfTag(std::string_view tag) {
  std::string header(128, '\0');
  header.replace(36, 4, "acsp");
  constexpr std::uint64_t tableSize = 4 + 2 * 12;
  return header + bigEndian(2, 4) + "cprt" + bigEndian(128, 4) + bigEndian(4, 4) + "desc" +
         bigEndian(128 + tableSize, 4) + bigEndian(tag.size(), 4) + std::string(tag);
}

std::string iccProfile(std::string_view description) {
  return iccProfileOfTag("desc\0\0\0\0"s + bigEndian(description.size() + 1, 4) +
                         std::string(description) + std::string(80, '\0'));
}

std::string jpegSegment(int marker, std::string_view payload) {
  return "\xFF" + bigEndian(static_cast<std::uint64_t>(marker), 1) +
         bigEndian(payload.size() + 2, 2) + std::string(payload);
}

std::string jpegFrame(int width, int height, int components, int marker) {
  std::string payload = "\x08" + bigEndian(static_cast<std::uint64_t>(height), 2) +
                        bigEndian(static_cast<std::uint64_t>(width), 2) +
                        bigEndian(static_cast<std::uint64_t>(components), 1);
  for (int component = 1; component <= components; ++component) {
    payload += bigEndian(static_cast<std::uint64_t>(component), 1) + "\x11" + "\0"s;
  }
  return jpegSegment(marker, payload);
}

std::string jpegFile(std::string_view segments) {
  return "\xFF\xD8" + std::string(segments) + jpegSegment(0xDA, "\1\1\0\0\x3F\0"s) +
         std::string(3000, 'c') + "\xFF\xD9";
}

std::string pngChunk(std::string_view type, std::string_view payload) {
  return bigEndian(payload.size(), 4) + std::string(type) + std::string(payload) + "CRC0";
}

std::string pngHeader(std::uint32_t width, std::uint32_t height, int depth, int colorType,
                      int interlacing) {
  return "\x89PNG\r\n\x1A\n"s +
         pngChunk("IHDR", bigEndian(width, 4) + bigEndian(height, 4) +
                              bigEndian(static_cast<std::uint64_t>(depth), 1) +
                              bigEndian(static_cast<std::uint64_t>(colorType), 1) + "\0\0"s +
                              bigEndian(static_cast<std::uint64_t>(interlacing), 1));
}

std::string pngFile(std::string_view chunks) {
  return pngHeader(8, 6) + std::string(chunks) + pngChunk("IEND", "");
}

std::string isoBox(std::string_view type, std::string_view payload) {
  return bigEndian(8 + payload.size(), 4) + std::string(type) + std::string(payload);
}

std::string fullBox(std::string_view type, int version, std::uint32_t flags,
                    std::string_view payload) {
  return isoBox(type, bigEndian(static_cast<std::uint64_t>(version), 1) + bigEndian(flags, 3) +
                          std::string(payload));
}

std::string gifXmp(std::string_view packet) {
  std::string block = "\x21\xFF\x0BXMP DataXMP" + std::string(packet) + "\1";
  for (int byte = 255; byte >= 0; --byte) block.push_back(static_cast<char>(byte));
  return block + "\0"s;
}

std::string riffChunk(std::string_view type, std::string_view payload) {
  return std::string(type) + littleEndian(payload.size(), 4) + withEvenSize(std::string(payload));
}

std::string webpFile(std::string_view chunks) {
  return "RIFF" + littleEndian(4 + chunks.size(), 4) + "WEBP" + std::string(chunks);
}

model::Dictionary propertiesOf(std::string_view file) {
  support::keepSeed(file);
  io::MemorySource source(bytesOf(file));
  const auto properties = copyProperties(source);
  if (!properties) {
    ADD_FAILURE() << properties.error().reason;
    return {};
  }
  if (!*properties) {
    ADD_FAILURE() << "no image";
    return {};
  }
  return **properties;
}

std::string errorOf(std::string_view file) {
  support::keepSeed(file);
  io::MemorySource source(bytesOf(file));
  const auto properties = copyProperties(source);
  if (!properties) return properties.error().reason;
  return *properties ? "" : "none";
}

const model::Value* entry(const model::Dictionary& properties, std::string_view section,
                          std::string_view key) {
  if (section.empty()) return model::find(properties, key);
  const model::Value* value = model::find(properties, section);
  const model::Dictionary* entries = value ? value->asDictionary() : nullptr;
  return entries ? model::find(*entries, key) : nullptr;
}

}  // namespace media::image
