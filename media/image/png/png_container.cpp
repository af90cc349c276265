// SPDX-License-Identifier: MIT
//
// A PNG file is a row of chunks: length, type, payload, checksum. Texts may stand behind the image
// data, so all chunks are walked, but only those that are shown are read.
#include "media/image/png/png_container.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "io/iso_box.h"
#include "media/image/blocks/density.h"
#include "media/image/blocks/embedded_blocks.h"
#include "media/image/blocks/inflate.h"
#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/blocks/shortfall.h"
#include "media/image/png/png_facts.h"
#include "media/image/png/png_text.h"
#include "model/utf8.h"

namespace media::image {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view signature = "\x89PNG\r\n\x1A\n"sv;

// Keywords that are shown, under their own name.
constexpr std::string_view shownKeywords[] = {
    "Author",     "Comment",  "Copyright", "Creation Time", "Description",
    "Disclaimer", "Software", "Source",    "Title",         "Warning"};

struct Chunk {
  std::string type;
  io::ByteRange payload;
  std::uint64_t next = 0;  // where the next chunk begins
};

std::optional<Chunk> chunkAt(io::SourceReader& file, std::uint64_t offset) {
  const auto header = file.view(offset, 8, io::SourceReader::ReadAhead::none);
  if (!header) return std::nullopt;
  const std::uint64_t length = header->u32(0, io::ByteOrder::big).value_or(0);
  if (length > file.size() - offset - 8) return std::nullopt;
  const std::uint64_t payload = offset + 8;
  return Chunk{
      std::string(header->from(4).text()), {payload, payload + length}, payload + length + 4};
}

class PngReader {
 public:
  PngReader(io::SourceReader& file, model::Dictionary& properties)
      : _file(file), _properties(properties) {}

  std::optional<model::Error> read() {
    const auto first = chunkAt(_file, signature.size());
    if (!first) return model::Error{"truncated PNG"};
    const auto header = _file.view(first->payload.begin, first->payload.size());
    if (first->type != "IHDR" || !header || !readPngHeader(*header, _properties)) {
      return model::Error{"damaged PNG"};
    }
    walkFrom(first->next);
    readBlocks();
    return std::nullopt;
  }

 private:
  void walkFrom(std::uint64_t offset) {
    for (std::size_t count = 0; count < limits.pngChunks; ++count) {
      const auto chunk = chunkAt(_file, offset);
      if (!chunk || chunk->type == "IEND") return;
      if (isRead(chunk->type)) take(*chunk);
      offset = chunk->next;
    }
  }

  static bool isText(std::string_view type) {
    return type == "tEXt" || type == "zTXt" || type == "iTXt";
  }

  static bool isRead(std::string_view type) {
    return isText(type) || type == "eXIf" || type == "iCCP" || isPngFactChunk(type);
  }

  void take(const Chunk& chunk) {
    const std::uint64_t size = chunk.payload.size();
    if (size > _budget) return noteShortfall(_properties, droppedMetadata);
    const auto payload = _file.view(chunk.payload.begin, size);
    if (!payload) return;
    _budget -= static_cast<std::size_t>(size);
    if (isText(chunk.type)) {
      takeText(*payload, chunk.type);
    } else if (chunk.type == "eXIf") {
      keep(*payload, _exif);
    } else if (chunk.type == "iCCP") {
      takeProfile(*payload);
    } else {
      readPngFact(chunk.type, *payload, _properties);
    }
  }

  // A name, a compression method, the compressed profile.
  void takeProfile(io::ByteView payload) {
    const std::size_t nameEnd = payload.text().find('\0');
    if (nameEnd == std::string_view::npos) return;
    const auto profile = inflateBytes(payload.from(nameEnd + 2), _budget);
    auto name = profile ? iccProfileName(io::ByteView(*profile)) : std::nullopt;
    if (name) _properties.insert_or_assign("ProfileName", *std::move(name));
  }

  void takeText(io::ByteView payload, std::string_view chunkType) {
    const auto text = readPngText(payload, chunkType, _budget);
    if (!text && _budget == 0) noteShortfall(_properties, droppedMetadata);
    if (!text || takeBlockIn(*text)) return;
    if (std::ranges::find(shownKeywords, text->keyword) == std::end(shownKeywords)) return;
    if (text->text.size() > limits.textBytes) noteShortfall(_properties, cutText);
    const std::string_view value = std::string_view(text->text).substr(0, limits.textBytes);
    setIfAbsent(
        section(_properties, "{PNG}"), text->keyword,
        chunkType == "iTXt" ? model::replacingInvalidUtf8(value) : model::latin1ToUtf8(value));
  }

  // Whether the text is a metadata block in disguise.
  bool takeBlockIn(const PngText& text) {
    constexpr std::string_view rawProfile = "Raw profile type ";
    if (text.keyword == "XML:com.adobe.xmp") {
      if (_xmp.empty()) _xmp.assign(text.text.begin(), text.text.end());
      return true;
    }
    if (!text.keyword.starts_with(rawProfile)) return false;
    const std::string_view kind = std::string_view(text.keyword).substr(rawProfile.size());
    if (const auto bytes = decodeRawProfile(text.text)) keepProfile(kind, io::ByteView(*bytes));
    return true;
  }

  void keepProfile(std::string_view kind, io::ByteView bytes) {
    constexpr std::string_view xmpPrefix = "http://ns.adobe.com/xap/1.0/\0"sv;
    if (kind == "xmp") {
      keep(bytes, _xmp);
    } else if (kind == "iptc" || kind == "8bim") {
      keep(bytes, _iptc);
    } else if (bytes.startsWith(xmpPrefix)) {
      keep(bytes.from(xmpPrefix.size()), _xmp);
    } else if (kind == "exif" || kind == "APP1") {
      keep(bytes, _exif);
    }
  }

  // The first block of each kind counts.
  static void keep(io::ByteView bytes, std::vector<std::uint8_t>& block) {
    if (block.empty()) block.assign(bytes.bytes().begin(), bytes.bytes().end());
  }

  void readBlocks() {
    readExifBlock(withoutExifPrefix(io::ByteView(_exif)), _properties);
    const io::ByteView iptc(_iptc);
    if (iptc.startsWith("8BIM")) {
      readPhotoshopResources(iptc, _properties);
    } else {
      readIptcBlock(iptc, _properties);
    }
    readXmpPacket(io::ByteView(_xmp), _properties);
    if (!_properties.contains("DPIWidth")) setDensityFromTiff(_properties);
  }

  io::SourceReader& _file;
  model::Dictionary& _properties;
  std::size_t _budget = limits.pngMetadataBytes;  // how much more may be read and decompressed
  std::vector<std::uint8_t> _exif;
  std::vector<std::uint8_t> _iptc;
  std::vector<std::uint8_t> _xmp;
};

}  // namespace

bool isPngFile(io::ByteView head) {
  return head.startsWith(signature);
}

std::optional<model::Error> readPngFile(io::SourceReader& file, model::Dictionary& properties) {
  return PngReader(file, properties).read();
}

}  // namespace media::image
