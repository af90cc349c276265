// SPDX-License-Identifier: MIT
#include <libheif/heif.h>

#include <memory>

#include "samples/formats/heic_file.h"

namespace samples {

namespace {

struct HeifDeleter {
  void operator()(heif_context* context) const { heif_context_free(context); }
  void operator()(heif_encoder* encoder) const { heif_encoder_release(encoder); }
  void operator()(heif_image* image) const { heif_image_release(image); }
  void operator()(heif_image_handle* handle) const { heif_image_handle_release(handle); }
};

template <typename Object>
using Heif = std::unique_ptr<Object, HeifDeleter>;

// The first failure of a chain of calls.
class Outcome {
 public:
  bool check(const heif_error& error) {
    if (error.code != heif_error_Ok && _reason.empty()) _reason = error.message;
    return _reason.empty();
  }
  model::Error error() const { return {"libheif: " + _reason}; }

 private:
  std::string _reason;
};

Heif<heif_image> makeImage(const Picture& stored, const Bytes& profile, Outcome& outcome) {
  heif_image* raw = nullptr;
  if (!outcome.check(heif_image_create(stored.width(), stored.height(), heif_colorspace_RGB,
                                       heif_chroma_interleaved_RGB, &raw)))
    return nullptr;
  Heif<heif_image> image(raw);
  if (!outcome.check(
          heif_image_add_plane(raw, heif_channel_interleaved, stored.width(), stored.height(), 8)))
    return nullptr;
  int stride = 0;
  std::uint8_t* plane = heif_image_get_plane(raw, heif_channel_interleaved, &stride);
  const Bytes pixels = rgbBytes(stored);
  const auto rowSize = static_cast<std::ptrdiff_t>(stored.width()) * 3;
  for (int y = 0; y < stored.height(); ++y)
    std::copy_n(pixels.begin() + y * rowSize, rowSize,
                plane + static_cast<std::ptrdiff_t>(y) * stride);
  outcome.check(heif_image_set_raw_color_profile(raw, "prof", profile.data(), profile.size()));
  return image;
}

heif_error appendTo(heif_context*, const void* data, std::size_t size, void* target) {
  const auto* bytes = static_cast<const std::uint8_t*>(data);
  auto& file = *static_cast<Bytes*>(target);
  file.insert(file.end(), bytes, bytes + size);
  return {heif_error_Ok, heif_suberror_Unspecified, ""};
}

Heif<heif_encoder> openEncoder(heif_context& context, Outcome& outcome) {
  heif_encoder* encoder = nullptr;
  if (outcome.check(
          heif_context_get_encoder_for_format(&context, heif_compression_HEVC, &encoder))) {
    outcome.check(heif_encoder_set_lossy_quality(encoder, 65));
    outcome.check(heif_encoder_set_parameter_string(encoder, "preset", "veryfast"));
    // One thread: the same bytes each time.
    for (const auto& [name, value] :
         {std::pair{"x265:pools", "none"}, {"x265:wpp", "0"}, {"x265:frame-threads", "1"}})
      outcome.check(heif_encoder_set_parameter_string(encoder, name, value));
  }
  return Heif<heif_encoder>(encoder);
}

void addMetadata(heif_context& context, const heif_image_handle& handle, const HeicLook& look,
                 Outcome& outcome) {
  if (!look.exif.empty())
    outcome.check(heif_context_add_exif_metadata(&context, &handle, look.exif.data(),
                                                 static_cast<int>(look.exif.size())));
  if (!look.xmp.empty())
    outcome.check(heif_context_add_XMP_metadata(&context, &handle, look.xmp.data(),
                                                static_cast<int>(look.xmp.size())));
}

}  // namespace

model::Result<Bytes> computerHeicFile(const Picture& stored, const HeicLook& look) {
  Outcome outcome;
  const Heif<heif_context> context(heif_context_alloc());
  const Heif<heif_image> image = makeImage(stored, look.profile, outcome);
  if (image == nullptr) return outcome.error();
  const Heif<heif_encoder> encoder = openEncoder(*context, outcome);
  heif_image_handle* raw = nullptr;
  if (encoder == nullptr || !outcome.check(heif_context_encode_image(context.get(), image.get(),
                                                                     encoder.get(), nullptr, &raw)))
    return outcome.error();
  const Heif<heif_image_handle> handle(raw);
  addMetadata(*context, *handle, look, outcome);
  heif_writer writer{.writer_api_version = 1, .write = appendTo};
  Bytes file;
  if (!outcome.check(heif_context_write(context.get(), &writer, &file))) return outcome.error();
  return file;
}

}  // namespace samples
