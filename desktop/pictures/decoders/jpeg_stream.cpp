// SPDX-License-Identifier: MIT
//
// No object with a destructor lives between a setjmp and the calls that may jump back to it: a
// jump would leave it undestroyed.
#include "desktop/pictures/decoders/jpeg_stream.h"

#include <algorithm>
#include <array>

#include "desktop/pictures/pixels/limits.h"

namespace desktop::pictures {

namespace {

constexpr std::size_t bufferSize = 64 << 10;  // bytes

void ignore(j_decompress_ptr) {}
void ignoreMessage(j_common_ptr, int) {}

}  // namespace

template <typename Function>
bool JpegStream::guarded(Function function) {
  if (setjmp(_jump) != 0) return false;
  function();
  return true;
}

JpegStream::JpegStream(io::ByteSource& source) {
  _info.err = jpeg_std_error(&_errors);
  _info.client_data = this;
  _errors.error_exit = fail;
  _errors.emit_message = ignoreMessage;
  _source.bytes = &source;
  _source.buffer.resize(bufferSize);
  _source.init_source = ignore;
  _source.fill_input_buffer = fill;
  _source.skip_input_data = skip;
  _source.resync_to_restart = jpeg_resync_to_restart;
  _source.term_source = ignore;
  _progress.progress_monitor = checkScans;
  guarded([this] { jpeg_create_decompress(&_info); });
  _info.src = &_source;
  _info.progress = &_progress;
}

JpegStream::~JpegStream() {
  jpeg_destroy_decompress(&_info);
}

void JpegStream::fail(j_common_ptr info) {
  auto& self = *static_cast<JpegStream*>(info->client_data);
  std::array<char, JMSG_LENGTH_MAX> message{};
  info->err->format_message(info, message.data());
  self._reason = message.data();
  std::longjmp(self._jump, 1);
}

void JpegStream::checkScans(j_common_ptr info) {
  auto& self = *static_cast<JpegStream*>(info->client_data);
  if (self._info.input_scan_number <= limits.jpegScans) return;
  self._reason = "JPEG with too many scans";
  std::longjmp(self._jump, 1);
}

boolean JpegStream::fill(j_decompress_ptr info) {
  auto& source = *static_cast<Source*>(info->src);
  std::size_t count = 0;
  if (const auto read = source.bytes->readAt(source.offset, source.buffer)) count = *read;
  source.offset += count;
  if (count == 0) {
    // An end of image of our own: libjpeg shows what came before it.
    source.buffer[0] = 0xFF;
    source.buffer[1] = JPEG_EOI;
    count = 2;
  }
  source.next_input_byte = source.buffer.data();
  source.bytes_in_buffer = count;
  return TRUE;
}

void JpegStream::skip(j_decompress_ptr info, long count) {
  auto& source = *static_cast<Source*>(info->src);
  if (count <= 0) return;
  const std::size_t inBuffer = std::min(source.bytes_in_buffer, static_cast<std::size_t>(count));
  source.next_input_byte += inBuffer;
  source.bytes_in_buffer -= inBuffer;
  source.offset += static_cast<std::size_t>(count) - inBuffer;
}

bool JpegStream::readHeader() {
  return guarded([this] {
    jpeg_save_markers(&_info, JPEG_APP0 + 2, 0xFFFF);  // where profiles are
    jpeg_read_header(&_info, TRUE);
  });
}

PixelSize JpegStream::size() const {
  return {static_cast<int>(_info.image_width), static_cast<int>(_info.image_height)};
}

std::vector<std::uint8_t> JpegStream::profile() {
  JOCTET* bytes = nullptr;
  unsigned length = 0;
  if (!guarded([&] { jpeg_read_icc_profile(&_info, &bytes, &length); }) || bytes == nullptr)
    return {};
  std::vector<std::uint8_t> result(bytes, bytes + length);
  std::free(bytes);
  return result;
}

// libjpeg holds all of an image that comes in several scans, at its full size.
bool JpegStream::isTooLarge() {
  if (!jpeg_has_multiple_scans(&_info)) return false;
  const auto coefficients = std::uint64_t{_info.image_width} * _info.image_height *
                            static_cast<unsigned>(_info.num_components);
  return coefficients * sizeof(JCOEF) > std::uint64_t{limits.decodedMegabytes} << 20;
}

bool JpegStream::start(PixelSize target) {
  if (isTooLarge()) {
    _reason = "JPEG too large";
    return false;
  }
  _info.scale_denom = 8;
  const bool isCmyk = _info.jpeg_color_space == JCS_CMYK || _info.jpeg_color_space == JCS_YCCK;
  _info.out_color_space = isCmyk ? JCS_CMYK : JCS_EXT_BGRA;
  for (const unsigned eighths : {1, 2, 4, 8}) {
    _info.scale_num = eighths;
    if (!guarded([this] { jpeg_calc_output_dimensions(&_info); })) return false;
    if (covers(scaledSize(), target)) break;
  }
  _row.resize(_info.output_width);
  return guarded([this] { jpeg_start_decompress(&_info); });
}

PixelSize JpegStream::scaledSize() const {
  return {static_cast<int>(_info.output_width), static_cast<int>(_info.output_height)};
}

// Adobe's programs store CMYK inverted, and mark it. Without a profile the simple product is used.
void JpegStream::rgbOfCmyk() {
  const std::uint32_t inversion = _info.saw_Adobe_marker ? 0 : 0xFFFFFFFF;
  for (std::uint32_t& pixel : _row) {
    const std::uint32_t inks = pixel ^ inversion;
    const auto channel = [&](int shift) { return ((inks >> shift) & 0xFF) * (inks >> 24) / 255; };
    pixel = 0xFF000000 | channel(0) << 16 | channel(8) << 8 | channel(16);
  }
}

std::span<const std::uint32_t> JpegStream::nextRow() {
  if (_info.output_scanline >= _info.output_height) return {};
  auto* samples = reinterpret_cast<JSAMPROW>(_row.data());
  const bool isRead = guarded([&] { jpeg_read_scanlines(&_info, &samples, 1); });
  if (!isRead) return {};
  if (_info.out_color_space == JCS_CMYK) rgbOfCmyk();
  return _row;
}

}  // namespace desktop::pictures
