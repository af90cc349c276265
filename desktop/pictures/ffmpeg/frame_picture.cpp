// SPDX-License-Identifier: MIT
#include "desktop/pictures/ffmpeg/frame_picture.h"

extern "C" {
#include <libavutil/display.h>
}

#include <algorithm>
#include <cmath>

#include "desktop/pictures/pixels/limits.h"
#include "desktop/pictures/pixels/orientation.h"

namespace desktop::pictures {

namespace {

// Where the stored x and y axes point on screen, as the display matrix of the track says. Turns
// that are no quarters count as the nearest.
Orientation orientationOf(const AVStream& stream) {
  std::size_t size = 0;
  const std::uint8_t* bytes = av_stream_get_side_data(&stream, AV_PKT_DATA_DISPLAYMATRIX, &size);
  if (bytes == nullptr || size < 9 * sizeof(std::int32_t)) return {};
  const auto* matrix = reinterpret_cast<const std::int32_t*>(bytes);
  const std::int64_t a = matrix[0], b = matrix[1], c = matrix[3], d = matrix[4];
  const bool swaps = std::abs(b) > std::abs(a);
  if (swaps) return Orientation(b > 0 ? (c < 0 ? 6 : 5) : (c > 0 ? 8 : 7));
  return Orientation(a < 0 ? (d < 0 ? 3 : 2) : (d < 0 ? 4 : 1));
}

// With square pixels.
PixelSize shownSize(const AVFrame& frame, const AVStream& stream) {
  PixelSize size{frame.width, frame.height};
  AVRational aspect = stream.sample_aspect_ratio;
  if (aspect.num <= 0 || aspect.den <= 0) aspect = frame.sample_aspect_ratio;
  if (aspect.num <= 0 || aspect.den <= 0) return size;
  const double width = size.width * av_q2d(aspect);
  size.width = static_cast<int>(std::lround(std::clamp(width, 1.0, 1.0 * limits.imageSide)));
  return size;
}

void setColours(SwsContext& scaler, int matrix, bool isFullRange) {
  constexpr int one = 1 << 16;
  sws_setColorspaceDetails(&scaler, sws_getCoefficients(matrix), isFullRange ? 1 : 0,
                           sws_getCoefficients(SWS_CS_DEFAULT), 1, 0, one, one);
}

// As the frame says; without a statement, as films of such sizes usually are.
void setFilmColours(SwsContext& scaler, const AVFrame& frame) {
  constexpr int highDefinition = 720;  // lines
  int matrix = frame.colorspace;
  if (matrix == AVCOL_SPC_UNSPECIFIED)
    matrix = frame.height < highDefinition ? SWS_CS_ITU601 : SWS_CS_ITU709;
  const bool isFull = frame.color_range == AVCOL_RANGE_JPEG || frame.format == AV_PIX_FMT_YUVJ420P;
  setColours(scaler, matrix, isFull);
}

std::optional<Picture> scaledTo(PixelSize target, const AVFrame& frame) {
  const Scaler scaler(sws_getContext(
      frame.width, frame.height, static_cast<AVPixelFormat>(frame.format), target.width,
      target.height, AV_PIX_FMT_RGB32, SWS_AREA, nullptr, nullptr, nullptr));
  if (!scaler) return std::nullopt;
  setFilmColours(*scaler, frame);
  const std::size_t width = paddedWidth(target.width);
  std::vector<std::uint32_t> rows(width * static_cast<std::size_t>(target.height));
  auto* bytes = reinterpret_cast<std::uint8_t*>(rows.data());
  const int stride = static_cast<int>(width * sizeof(std::uint32_t));
  if (sws_scale(scaler.get(), frame.data, frame.linesize, 0, frame.height, &bytes, &stride) <= 0)
    return std::nullopt;
  Picture picture{target.width, target.height, {}};
  for (auto row = rows.begin(); row != rows.end(); row += static_cast<std::ptrdiff_t>(width))
    picture.pixels.insert(picture.pixels.end(), row, row + target.width);
  // Films are opaque, whatever a codec says.
  for (std::uint32_t& pixel : picture.pixels) pixel |= 0xFF000000;
  return picture;
}

}  // namespace

std::optional<Picture> pictureOf(const AVFrame& frame, const AVStream& stream,
                                 const Request& request) {
  const Orientation orientation = orientationOf(stream);
  const PixelSize size = shownSize(frame, stream);
  if (size.isEmpty()) return std::nullopt;
  auto picture = scaledTo(orientation.turned(targetSize(orientation.turned(size), request)), frame);
  if (!picture) return std::nullopt;
  return orientation.upright(*std::move(picture));
}

bool convertTile(const AVFrame& frame, std::uint32_t* pixels, std::ptrdiff_t stride,
                 Scaler& scaler) {
  if (!scaler) {
    scaler.reset(sws_getContext(frame.width, frame.height, static_cast<AVPixelFormat>(frame.format),
                                frame.width, frame.height, AV_PIX_FMT_RGB32, SWS_BILINEAR, nullptr,
                                nullptr, nullptr));
    if (!scaler) return false;
    const bool isStated = frame.colorspace != AVCOL_SPC_UNSPECIFIED;
    setColours(*scaler, isStated ? frame.colorspace : SWS_CS_ITU601,
               frame.color_range != AVCOL_RANGE_MPEG);
  }
  auto* bytes = reinterpret_cast<std::uint8_t*>(pixels);
  const int bytesApart = static_cast<int>(stride) * static_cast<int>(sizeof(std::uint32_t));
  return sws_scale(scaler.get(), frame.data, frame.linesize, 0, frame.height, &bytes,
                   &bytesApart) == frame.height;
}

}  // namespace desktop::pictures
