// SPDX-License-Identifier: MIT
#include "desktop/pictures/decoders/decode_picture.h"

#include <algorithm>
#include <array>
#include <exception>
#include <new>
#include <string_view>

#include "desktop/pictures/decoders/ffmpeg_frames.h"
#include "desktop/pictures/decoders/heif_decoder.h"
#include "desktop/pictures/decoders/jpeg_decoder.h"
#include "desktop/pictures/decoders/qt_decoder.h"
#include "desktop/pictures/decoders/raw_decoder.h"
#include "desktop/pictures/decoders/tile_decoder.h"
#include "io/byte_source.h"
#include "media/image/image_type.h"
#include "media/movie/boxes/movie_layout.h"
#include "media/movie/other/other_containers.h"

namespace desktop::pictures {

namespace {

// A file that is being decoded.
struct File {
  const std::string& name;
  io::ByteSource& source;
  const Request& request;
};
using Decode = model::Result<Picture> (*)(const File& file);

template <auto decode>
model::Result<Picture> with(const File& file) {
  return decode(file.source, file.request);
}

model::Result<Picture> asJpeg(const File& file) {
  return decodeJpeg(file.source, file.request);
}

template <const char* const& format>
model::Result<Picture> withQt(const File& file) {
  return decodeWithQt(format, file.source, file.request);
}

model::Result<Picture> asVideo(const File& file) {
  return decodeVideoFrame(file.source, file.request);
}

// Images without a still among them are a video.
model::Result<Picture> asHeif(const File& file) {
  const auto sequence = media::movie::readMovieLayout(file.source);
  return sequence && *sequence ? asVideo(file) : decodeHeif(file.source, file.request);
}

struct Kind {
  std::string_view type;  // uniform type identifier
  Decode decode;
};

constexpr const char* png = "png";
constexpr const char* gif = "gif";
constexpr const char* bmp = "bmp";
constexpr const char* tiff = "tiff";
constexpr const char* webp = "webp";

constexpr Kind kinds[] = {
    {"public.jpeg", asJpeg},
    {"public.heic", asHeif},
    {"public.heif", asHeif},
    {"public.avif", asHeif},
    {"public.png", withQt<png>},
    {"com.compuserve.gif", withQt<gif>},
    {"com.microsoft.bmp", withQt<bmp>},
    {"public.tiff", withQt<tiff>},
    {"org.webmproject.webp", withQt<webp>},
    {"com.adobe.raw-image", with<decodeRaw>},
    {"com.nikon.raw-image", with<decodeRaw>},
    {"com.canon.cr2-raw-image", with<decodeRaw>},
    {"com.sony.arw-raw-image", with<decodeRaw>},
    {"com.olympus.raw-image", with<decodeRaw>},
    {"com.pentax.raw-image", with<decodeRaw>},
    {"com.samsung.raw-image", with<decodeRaw>},
    {"com.panasonic.rw2-raw-image", with<decodeRaw>},
    {"com.leica.rwl-raw-image", with<decodeRaw>},
    {"com.fuji.raw-image", with<decodeRaf>},
    {"com.apple.quicktime-movie", asVideo},
    {"public.mpeg-4", asVideo},
    {"com.apple.m4v-video", asVideo},
    {"public.3gpp", asVideo},
    {"org.matroska.mkv", asVideo},
    {"org.webmproject.webm", asVideo},
    {"public.avi", asVideo},
};

model::Result<Picture> decodeFile(const File& file) {
  std::array<std::uint8_t, 512> head{};
  const auto count = file.source.readAt(0, head);
  if (!count) return count.error();
  if (*count == 0) return model::Error{"empty file"};
  const io::ByteView bytes(std::span<const std::uint8_t>(head).first(*count));
  const auto type = media::image::uniformTypeIdentifier(bytes, file.name);
  const auto* kind = std::ranges::find(kinds, type, &Kind::type);
  if (kind != std::end(kinds)) return kind->decode(file);
  if (!type.empty()) return model::Error{"pictures of this kind cannot be shown"};
  const auto isVideo = media::movie::isOtherContainer(file.source);
  if (isVideo && *isVideo) return asVideo(file);
  return model::Error{"not a picture or video"};
}

}  // namespace

model::Result<Picture> decodePicture(const std::string& path, const Request& request) {
  const auto source = io::FileSource::open(path);
  if (!source) return source.error();
  return decodeSource(path, **source, request);
}

void loadDecoders() {
  loadHeifDecoders();
  loadQtDecoders();
  loadVideoDecoders();
  static_cast<void>(tileDecoderMaker());
}

model::Result<Picture> decodeSource(const std::string& name, io::ByteSource& source,
                                    const Request& request) {
  if (request.maxWidth <= 0 || request.maxHeight <= 0) return model::Error{"no size asked for"};
  try {
    return decodeFile({name, source, request});
  } catch (const std::bad_alloc&) {
    return model::Error{"not enough memory"};
  } catch (const std::exception& exception) {
    return model::Error{exception.what()};
  }
}

}  // namespace desktop::pictures
