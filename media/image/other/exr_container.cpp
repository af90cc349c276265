// SPDX-License-Identifier: MIT
#include "media/image/other/exr_container.h"

#include <algorithm>
#include <string_view>

#include "media/image/blocks/limits.h"

namespace media::image {

namespace {

constexpr std::uint64_t exrHeadSize = 8;      // mark, version and flags
constexpr std::uint64_t longestName = 256;    // of an attribute or a type, with its NUL
constexpr std::uint64_t longestValue = 4096;  // bytes of a value that are looked at

// Lists of channels: a name with its NUL, the kind of number, 12 more bytes; a NUL at the end.
struct ExrChannels {
  std::int64_t depth = 0;
  bool isFloat = false;
  bool isGray = true;
  bool hasAlpha = false;
};

ExrChannels channelsOf(io::ByteView list) {
  constexpr std::uint64_t rest = 16;
  ExrChannels channels;
  while (true) {
    const std::size_t end = list.text().find('\0');
    if (end == 0 || end == std::string_view::npos) return channels;
    const auto kind = list.u32(end + 1, io::ByteOrder::little);
    if (!kind || list.size() < end + 1 + rest) return channels;
    const std::string_view name = list.text().substr(0, end);
    channels.depth = std::max<std::int64_t>(channels.depth, *kind == 1 ? 16 : 32);
    channels.isFloat = channels.isFloat || *kind != 0;
    channels.isGray = channels.isGray && name != "R" && name != "G" && name != "B" &&
                      name != "RY" && name != "BY";
    channels.hasAlpha = channels.hasAlpha || name == "A";
    list = list.from(end + 1 + rest);
  }
}

class ExrReader {
 public:
  ExrReader(io::SourceReader& file, model::Dictionary& properties)
      : _file(file), _properties(properties) {}

  std::optional<model::Error> read() {
    const bool isWhole = walk();
    if (_properties.contains("PixelWidth")) return std::nullopt;
    return model::Error{isWhole ? "damaged EXR" : "truncated EXR"};
  }

 private:
  // Attributes: a name, a type, the size of the value, the value; a NUL behind the last. Whether
  // that was reached.
  bool walk() {
    for (std::size_t count = 0; count < limits.exrAttributes; ++count) {
      const auto name = text();
      if (!name) return false;
      if (name->empty()) return true;
      const auto type = text();
      const auto size = type ? _file.upTo(_offset, 4).u32(0, io::ByteOrder::little) : std::nullopt;
      if (!size || *size > _file.size() - _offset - 4) return false;
      take(*name, _file.upTo(_offset + 4, std::min<std::uint64_t>(*size, longestValue)));
      _offset += 4 + std::uint64_t{*size};
    }
    return true;
  }

  std::optional<std::string> text() {
    const std::string_view bytes = _file.upTo(_offset, longestName).text();
    const std::size_t end = bytes.find('\0');
    if (end == std::string_view::npos) return std::nullopt;
    _offset += end + 1;
    return std::string(bytes.substr(0, end));
  }

  void take(std::string_view name, io::ByteView value) {
    if (name == "dataWindow") takeWindow(value);
    if (name == "channels") takeChannels(channelsOf(value));
  }

  // The first and the last column and row.
  void takeWindow(io::ByteView box) {
    if (box.size() < 16) return;
    const auto number = [&](std::uint64_t index) {
      return std::int64_t{static_cast<std::int32_t>(*box.u32(index * 4, io::ByteOrder::little))};
    };
    const std::int64_t width = number(2) - number(0) + 1;
    const std::int64_t height = number(3) - number(1) + 1;
    if (width <= 0 || height <= 0) return;
    _properties.insert_or_assign("PixelWidth", width);
    _properties.insert_or_assign("PixelHeight", height);
  }

  void takeChannels(const ExrChannels& channels) {
    if (channels.depth == 0) return;
    _properties.insert_or_assign("ColorModel", channels.isGray ? "Gray" : "RGB");
    _properties.insert_or_assign("Depth", channels.depth);
    if (channels.isFloat) _properties.insert_or_assign("IsFloat", true);
    if (channels.hasAlpha) _properties.insert_or_assign("HasAlpha", true);
  }

  io::SourceReader& _file;
  model::Dictionary& _properties;
  std::uint64_t _offset = exrHeadSize;
};

}  // namespace

bool isExrFile(io::ByteView head) {
  return head.startsWith("\x76\x2F\x31\x01");
}

std::optional<model::Error> readExrFile(io::SourceReader& file, model::Dictionary& properties) {
  return ExrReader(file, properties).read();
}

}  // namespace media::image
