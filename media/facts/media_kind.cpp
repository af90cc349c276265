// SPDX-License-Identifier: MIT
#include "media/facts/media_kind.h"

#include <algorithm>
#include <array>

#include "io/byte_source.h"
#include "io/byte_view.h"
#include "media/image/heif/heif_container.h"
#include "media/image/image_type.h"
#include "media/movie/boxes/movie_layout.h"

namespace media::facts {

namespace {

constexpr std::string_view videoTypes[] = {
    "com.apple.quicktime-movie", "public.mpeg-4", "com.apple.m4v-video",  "public.3gpp",
    "org.matroska.mkv",          "public.avi",    "org.webmproject.webm",
};

// Videos whose extensions have no uniform type here. Ogg and ASF files with other extensions are
// mostly sound.
constexpr std::string_view otherVideoExtensions[] = {"3g2", "asf", "flv", "m2ts", "mpeg", "mpg",
                                                     "mts", "mxf", "ogv", "vob",  "webm", "wmv"};

// Major brands of files with sound only; ISO/IEC 14496-12, 4.3, as registered.
constexpr std::string_view soundBrands[] = {"M4A ", "M4B ", "F4A ", "F4B "};

std::optional<MediaKind> kindOfType(std::string_view type) {
  if (type.empty()) return std::nullopt;
  return std::ranges::find(videoTypes, type) == std::end(videoTypes) ? MediaKind::image
                                                                     : MediaKind::video;
}

std::string lowerCaseExtension(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return {};
  std::string extension(name.substr(dot + 1));
  for (char& character : extension) {
    if (character >= 'A' && character <= 'Z') character = static_cast<char>(character + 32);
  }
  return extension;
}

// Old movies are told by the name of their first box alone, which plain text can hold by chance;
// then its "size" is far beyond the end of the file.
bool isWholeBox(io::ByteView head, std::uint64_t fileSize) {
  const std::uint64_t boxSize = head.u32(0, io::ByteOrder::big).value_or(0);
  return boxSize < 8 || boxSize <= fileSize;  // 0: to the end, 1: the size follows
}

bool isSound(io::ByteView head) {
  if (!head.from(4).startsWith("ftyp")) return false;
  const std::string_view brand = head.from(8).text().substr(0, 4);
  return std::ranges::find(soundBrands, brand) != std::end(soundBrands);
}

bool isIsoMovie(std::string_view type) {
  return type == "com.apple.quicktime-movie" || type == "public.mpeg-4";
}

// HEIF images without a still among them are a movie.
bool isSequence(io::ByteView head, io::ByteSource& source) {
  if (!image::isHeifFile(head)) return false;
  const auto layout = movie::readMovieLayout(source);
  return layout && layout->has_value();
}

constexpr std::size_t headSize = 512;  // bytes that tell what a file is

}  // namespace

std::optional<MediaKind> mediaKindOfName(std::string_view name) {
  if (const auto kind = kindOfType(image::uniformTypeIdentifier({}, name))) return kind;
  const std::string extension = lowerCaseExtension(name);
  const bool isVideo =
      std::ranges::find(otherVideoExtensions, extension) != std::end(otherVideoExtensions);
  return isVideo ? std::optional(MediaKind::video) : std::nullopt;
}

model::Result<std::optional<MediaKind>> mediaKindOfContent(const std::string& path) {
  auto source = io::FileSource::open(path);
  if (!source) return source.error();
  std::array<std::uint8_t, headSize> bytes{};
  const auto count = (*source)->readAt(0, bytes);
  if (!count) return count.error();
  const io::ByteView head = io::ByteView(bytes).sub(0, *count).value_or(io::ByteView());
  const std::string_view type = image::uniformTypeIdentifier(head, {});
  if (isIsoMovie(type) && (isSound(head) || !isWholeBox(head, (*source)->size()))) {
    return std::optional<MediaKind>();
  }
  if (isSequence(head, **source)) return std::optional(MediaKind::video);
  return kindOfType(type);
}

}  // namespace media::facts
