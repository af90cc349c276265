// SPDX-License-Identifier: MIT
//
// The segments are walked up to the first scan. What they say of the picture goes into the
// properties at once; blocks of metadata (Exif, XMP, Photoshop's, the profile) may be cut over
// several segments, so only their places are kept, in pieces, and read together when the walk is
// over. Of what is there twice the first counts.
#include "media/image/jpeg/jpeg_container.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "media/image/blocks/density.h"
#include "media/image/blocks/embedded_blocks.h"
#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/jpeg/jpeg_extended_xmp.h"
#include "media/image/jpeg/jpeg_segments.h"

namespace media::image {

namespace {

using namespace std::string_view_literals;

constexpr std::uint8_t app0 = 0xE0;
constexpr std::uint8_t app1 = 0xE1;
constexpr std::uint8_t app2 = 0xE2;
constexpr std::uint8_t app13 = 0xED;

constexpr std::string_view jfifSignature = "JFIF\0"sv;
constexpr std::string_view exifSignature = "Exif\0"sv;  // a padding byte of any value follows
constexpr std::string_view xmpSignature = "http://ns.adobe.com/xap/1.0/\0"sv;
constexpr std::string_view profileSignature = "ICC_PROFILE\0"sv;
constexpr std::string_view photoshopSignature = "Photoshop 3.0\0"sv;

// SOF2, SOF6, SOF10, SOF14.
bool isProgressive(std::uint8_t marker) {
  return (marker & 3) == 2;
}

std::string_view colorModel(std::uint8_t components) {
  if (components == 4) return "CMYK";
  return components < 3 ? "Gray" : "RGB";
}

// What the segments up to the first scan say.
class JpegReader {
 public:
  JpegReader(io::SourceReader& file, io::ByteRange jpeg, model::Dictionary& properties)
      : _file(file), _jpeg(jpeg), _properties(properties) {}

  std::optional<model::Error> read() {
    JpegSegmentWalk walk(_file, _jpeg);
    while (const auto segment = walk.next()) take(*segment);
    if (!_properties.contains("PixelWidth")) {
      const bool isTruncated = walk.end() == JpegSegmentWalk::End::truncated;
      return model::Error{isTruncated ? "truncated JPEG" : "damaged JPEG"};
    }
    for (const io::ByteRange& piece : _profile) _blocks.profile.append(piece);
    readEmbeddedBlocks(_file, _blocks, _properties);
    _extendedXmp.read(_file, _blocks.xmp, _properties);
    setJfif();
    setDensity();
    return std::nullopt;
  }

 private:
  void take(const JpegSegment& segment) {
    if (isFrameHeader(segment.marker)) return takeFrameHeader(segment);
    switch (segment.marker) {
      case app0:
        return takeJfif(segment);
      case app1:
        return takeApp1(segment);
      case app2:
        return takeProfile(segment);
      case app13:
        if (const auto piece = behind(photoshopSignature, segment))
          _blocks.photoshop.append(*piece);
        return;
      default:
        return;
    }
  }

  // What the payload has behind a signature it begins with.
  std::optional<io::ByteRange> behind(std::string_view signature, const JpegSegment& segment) {
    const auto start = _file.view(segment.payload.begin, signature.size(), noReadAhead);
    if (!start || !start->startsWith(signature)) return std::nullopt;
    const std::uint64_t begin = segment.payload.begin + signature.size();
    if (begin > segment.payload.end) return std::nullopt;
    return io::ByteRange{begin, segment.payload.end};
  }

  void takeFrameHeader(const JpegSegment& segment) {
    const auto bytes = _file.view(segment.payload.begin, 6, noReadAhead);
    if (!bytes || segment.payload.size() < 6 || _properties.contains("PixelWidth")) return;
    if (bytes->u16(3, io::ByteOrder::big) == 0) return;  // the height may be 0: it follows the scan
    _properties.insert_or_assign("Depth", *bytes->u8(0));
    _properties.insert_or_assign("PixelHeight", *bytes->u16(1, io::ByteOrder::big));
    _properties.insert_or_assign("PixelWidth", *bytes->u16(3, io::ByteOrder::big));
    _properties.insert_or_assign("ColorModel", colorModel(*bytes->u8(5)));
    _isProgressive = isProgressive(segment.marker);
  }

  void takeJfif(const JpegSegment& segment) {
    const auto piece = behind(jfifSignature, segment);
    const auto bytes = piece && piece->size() >= _jfif.size()
                           ? _file.view(piece->begin, _jfif.size(), noReadAhead)
                           : std::nullopt;
    if (!bytes || _hasJfif) return;
    std::ranges::copy(bytes->bytes(), _jfif.begin());
    _hasJfif = true;
  }

  void takeApp1(const JpegSegment& segment) {
    if (const auto exif = behind(exifSignature, segment)) {
      takeExif({exif->begin + 1, exif->end});
    } else if (const auto xmp = behind(xmpSignature, segment)) {
      if (_blocks.xmp.isEmpty()) _blocks.xmp.append(*xmp);
    } else {
      _extendedXmp.take(_file, segment.payload);
    }
  }

  // A block too large for one segment goes on in the next ones, without a header of its own; a
  // second block with one is a copy.
  void takeExif(io::ByteRange piece) {
    const io::ByteView start = _file.upTo(piece.begin, 4, noReadAhead);
    const bool startsBlock = start.startsWith("II*\0"sv) || start.startsWith("MM\0*"sv);
    if (startsBlock != _blocks.exif.isEmpty()) return;
    if (_blocks.exif.size() + piece.size() <= limits.embeddedBytes) _blocks.exif.append(piece);
  }

  // Each segment has its number, from 1, and how many there are. ICC.1:2010, B.4.
  void takeProfile(const JpegSegment& segment) {
    const auto piece = behind(profileSignature, segment);
    const auto numbers = piece ? _file.view(piece->begin, 2, noReadAhead) : std::nullopt;
    if (!numbers || piece->size() < 2) return;
    const std::uint8_t number = *numbers->u8(0);
    if (number > 0) _profile[number - 1] = {piece->begin + 2, piece->end};
  }

  void setJfif() {
    if (!_hasJfif) return;
    model::Dictionary& jfif = section(_properties, "{JFIF}");
    const io::ByteView bytes(_jfif);
    const int minor = *bytes.u8(1);
    jfif.insert_or_assign("JFIFVersion", model::Array{*bytes.u8(0), minor / 10, minor % 10});
    jfif.insert_or_assign("DensityUnit", *bytes.u8(2));
    jfif.insert_or_assign("XDensity", *bytes.u16(3, io::ByteOrder::big));
    jfif.insert_or_assign("YDensity", *bytes.u16(5, io::ByteOrder::big));
    if (_isProgressive) jfif.insert_or_assign("IsProgressive", true);
  }

  // Exif's resolution counts before the density of JFIF.
  void setDensity() {
    setDensityFromTiff(_properties);
    if (!_hasJfif || _properties.contains("DPIWidth")) return;
    const io::ByteView bytes(_jfif);
    const std::uint16_t x = *bytes.u16(3, io::ByteOrder::big);
    const std::uint16_t y = *bytes.u16(5, io::ByteOrder::big);
    const std::uint8_t unit = *bytes.u8(2);
    if (unit == 1) {
      _properties.insert_or_assign("DPIWidth", x);
      _properties.insert_or_assign("DPIHeight", y);
    } else if (unit == 2) {
      _properties.insert_or_assign("DPIWidth", x * 2.54);
      _properties.insert_or_assign("DPIHeight", y * 2.54);
    }
  }

  static constexpr auto noReadAhead = io::SourceReader::ReadAhead::none;

  io::SourceReader& _file;
  io::ByteRange _jpeg;
  model::Dictionary& _properties;
  EmbeddedBlocks _blocks;
  ExtendedXmp _extendedXmp;
  std::array<io::ByteRange, 255> _profile{};  // by number
  std::array<std::uint8_t, 7> _jfif{};        // version, unit, densities
  bool _hasJfif = false;
  bool _isProgressive = false;
};

}  // namespace

bool isJpegFile(io::ByteView head) {
  return head.startsWith("\xFF\xD8\xFF");
}

// Three codes among them are other segments: DHT, JPG, DAC.
bool isFrameHeader(std::uint8_t marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

std::optional<model::Error> readJpeg(io::SourceReader& file, io::ByteRange jpeg,
                                     model::Dictionary& properties) {
  return JpegReader(file, jpeg, properties).read();
}

std::optional<model::Error> readJpegFile(io::SourceReader& file, model::Dictionary& properties) {
  return readJpeg(file, {0, file.size()}, properties);
}

}  // namespace media::image
