// SPDX-License-Identifier: MIT
//
// libheif applies the image's own turns and mirrorings. The orientation in a HEIF file's Exif block
// repeats them and counts only where there are none, here as in the metadata.
#include "desktop/pictures/decoders/heif_decoder.h"

#include <libheif/heif.h>

#include <array>
#include <bit>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "desktop/pictures/decoders/heif_tiles.h"
#include "desktop/pictures/pixels/colours.h"
#include "desktop/pictures/pixels/limits.h"
#include "desktop/pictures/pixels/orientation.h"
#include "desktop/pictures/pixels/row_scaler.h"
#include "media/image/heif/heif_orientation.h"
#include "media/image/image_source.h"

namespace desktop::pictures {

namespace {

struct Free {
  void operator()(heif_context* context) const { heif_context_free(context); }
  void operator()(heif_image_handle* handle) const { heif_image_handle_release(handle); }
  void operator()(heif_image* image) const { heif_image_release(image); }
  void operator()(heif_color_profile_nclx* profile) const { heif_nclx_color_profile_free(profile); }
  void operator()(heif_decoding_options* options) const { heif_decoding_options_free(options); }
};
template <typename T>
using Owned = std::unique_ptr<T, Free>;
using Handle = Owned<heif_image_handle>;

// A source as libheif reads it.
struct Input {
  io::ByteSource& source;
  std::uint64_t position = 0;
};

std::int64_t positionOf(void* data) {
  return static_cast<std::int64_t>(static_cast<Input*>(data)->position);
}

int read(void* into, std::size_t size, void* data) {
  auto& input = *static_cast<Input*>(data);
  const auto count = input.source.readAt(input.position, {static_cast<std::uint8_t*>(into), size});
  if (!count || *count != size) return 1;
  input.position += size;
  return 0;
}

int seek(std::int64_t position, void* data) {
  if (position < 0) return 1;
  static_cast<Input*>(data)->position = static_cast<std::uint64_t>(position);
  return 0;
}

heif_reader_grow_status waitForSize(std::int64_t size, void* data) {
  const std::uint64_t there = static_cast<Input*>(data)->source.size();
  return size >= 0 && static_cast<std::uint64_t>(size) <= there
             ? heif_reader_grow_status_size_reached
             : heif_reader_grow_status_size_beyond_eof;
}

constexpr heif_reader reader = {
    .reader_api_version = 1,
    .get_position = positionOf,
    .read = read,
    .seek = seek,
    .wait_for_file_size = waitForSize,
};

model::Error errorOf(const heif_error& error) {
  return {error.message != nullptr && *error.message != '\0' ? error.message : "damaged HEIF"};
}

PixelSize sizeOf(const Handle& handle) {
  return {heif_image_handle_get_width(handle.get()), heif_image_handle_get_height(handle.get())};
}

bool isTooLarge(PixelSize size) {
  return size.width > limits.imageSide || size.height > limits.imageSide ||
         static_cast<std::uint64_t>(size.width) * static_cast<unsigned>(size.height) * 4 >
             std::uint64_t{limits.decodedMegabytes} << 20;
}

// The smallest thumbnail that covers the target; null where there is none.
Handle coveringThumbnail(const Handle& primary, PixelSize target) {
  std::array<heif_item_id, limits.heifThumbnails> ids{};
  const int count =
      heif_image_handle_get_list_of_thumbnail_IDs(primary.get(), ids.data(), limits.heifThumbnails);
  Handle best;
  for (int index = 0; index < count; ++index) {
    heif_image_handle* found = nullptr;
    heif_image_handle_get_thumbnail(primary.get(), ids[static_cast<std::size_t>(index)], &found);
    Handle thumbnail(found);
    if (!thumbnail || sizeOf(thumbnail).isEmpty() || !covers(sizeOf(thumbnail), target)) continue;
    if (!hasSameAspect(sizeOf(thumbnail), sizeOf(primary))) continue;
    if (!best || covers(sizeOf(best), sizeOf(thumbnail))) best = std::move(thumbnail);
  }
  return best;
}

// libheif's R, G, B, A bytes as premultiplied pixels.
void convertRow(const std::uint8_t* bytes, bool isPremultiplied, std::vector<std::uint32_t>& row) {
  for (std::uint32_t& pixel : row) {
    const auto at = [&](int index, int shift) { return std::uint32_t{bytes[index]} << shift; };
    pixel = at(3, 24) | at(0, 16) | at(1, 8) | at(2, 0);
    if (!isPremultiplied) pixel = premultiplied(pixel);
    bytes += 4;
  }
}

model::Result<Picture> scaledTo(PixelSize target, const heif_image* image, bool isPremultiplied) {
  const PixelSize size{heif_image_get_width(image, heif_channel_interleaved),
                       heif_image_get_height(image, heif_channel_interleaved)};
  int stride = 0;
  const std::uint8_t* bytes =
      heif_image_get_plane_readonly(image, heif_channel_interleaved, &stride);
  if (size.isEmpty() || bytes == nullptr || !covers(size, target))
    return model::Error{"damaged HEIF"};
  RowScaler scaler(size, target);
  std::vector<std::uint32_t> row(static_cast<std::size_t>(size.width));
  for (int y = 0; y < size.height; ++y) {
    convertRow(bytes + std::ptrdiff_t{y} * stride, isPremultiplied, row);
    scaler.addRow(row);
  }
  return scaler.take();
}

model::Result<Picture> decode(const Handle& handle, PixelSize target) {
  if (isTooLarge(sizeOf(handle))) return model::Error{"HEIF too large"};
  const Owned<heif_decoding_options> options(heif_decoding_options_alloc());
  options->convert_hdr_to_8bit = 1;
  heif_image* decoded = nullptr;
  const heif_error error = heif_decode_image(handle.get(), &decoded, heif_colorspace_RGB,
                                             heif_chroma_interleaved_RGBA, options.get());
  const Owned<heif_image> image(decoded);
  if (!image) return errorOf(error);
  return scaledTo(target, image.get(), heif_image_handle_is_premultiplied_alpha(handle.get()) != 0);
}

model::Result<Picture> decodeWhole(io::ByteSource& source, const Handle& primary,
                                   PixelSize target) {
  if (heif_image_handle_has_alpha_channel(primary.get()) == 0) {
    if (auto picture = decodeHeifTiles(source, sizeOf(primary), target)) return *std::move(picture);
  }
  return decode(primary, target);
}

void convertColours(const Handle& primary, Picture& picture) {
  const std::size_t size = heif_image_handle_get_raw_color_profile_size(primary.get());
  if (size > 0 && size <= limits.profileBytes) {
    std::vector<std::uint8_t> profile(size);
    if (heif_image_handle_get_raw_color_profile(primary.get(), profile.data()).code ==
        heif_error_Ok)
      convertToSrgb(profile, picture);
    return;
  }
  heif_color_profile_nclx* found = nullptr;
  heif_image_handle_get_nclx_color_profile(primary.get(), &found);
  const Owned<heif_color_profile_nclx> coded(found);
  if (coded) convertPrimariesToSrgb(coded->color_primaries, picture);
}

bool isTurnedByItself(io::ByteSource& source) {
  io::SourceReader file(source);
  auto meta = media::image::HeifMeta::read(file);
  const auto primary = meta ? meta->primaryItem() : std::nullopt;
  return primary && media::image::heifOrientation(*meta, file, *primary);
}

// What is left to turn after libheif.
Orientation exifOrientation(io::ByteSource& source) {
  if (isTurnedByItself(source)) return {};
  const auto properties = media::image::copyProperties(source);
  const model::Value* value =
      properties && *properties ? model::find(**properties, "Orientation") : nullptr;
  return value != nullptr && value->asInteger() ? Orientation(*value->asInteger()) : Orientation();
}

}  // namespace

void loadHeifDecoders() {
  heif_init(nullptr);
}

model::Result<Picture> decodeHeif(io::ByteSource& source, const Request& request) {
  Input input{source};
  const Owned<heif_context> context(heif_context_alloc());
  heif_context_set_max_decoding_threads(context.get(), limits.decoderThreads);
  heif_error error = heif_context_read_from_reader(context.get(), &reader, &input, nullptr);
  if (error.code != heif_error_Ok) return errorOf(error);
  heif_image_handle* found = nullptr;
  error = heif_context_get_primary_image_handle(context.get(), &found);
  const Handle primary(found);
  if (!primary) return errorOf(error);
  if (sizeOf(primary).isEmpty()) return model::Error{"damaged HEIF"};
  const Orientation turn = exifOrientation(source);
  const PixelSize target = turn.turned(targetSize(turn.turned(sizeOf(primary)), request));
  const Handle thumbnail = coveringThumbnail(primary, target);
  auto picture = thumbnail ? decode(thumbnail, target) : model::Error{};
  if (!picture) picture = decodeWhole(source, primary, target);
  if (!picture) return picture;
  convertColours(primary, *picture);
  return turn.upright(*std::move(picture));
}

}  // namespace desktop::pictures
