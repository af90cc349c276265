// SPDX-License-Identifier: MIT
//
// pictures_bench: thumbnails a second of photos of 12 megapixels, beside a full decode of the same
// file by Qt's image reader (or libheif's, for HEIC) in the same run, and through worker processes
// beside one thread. It makes its photos itself. With --decode-pictures it is such a worker.

#include <libheif/heif.h>

#include <QImage>
#include <QImageReader>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>

#include "desktop/pictures/decoders/decode_picture.h"
#include "desktop/pictures/picture_loader.h"
#include "desktop/pictures/workers/serve_decoder.h"
#include "samples/formats/heic_file.h"
#include "samples/formats/jpeg_file.h"
#include "samples/formats/png_file.h"
#include "samples/metadata/camera_exif.h"
#include "samples/pictures/scenes.h"

namespace {

namespace fs = std::filesystem;
using desktop::pictures::decodePicture;
using desktop::pictures::Request;

void write(const fs::path& path, const samples::Bytes& bytes) {
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
}

samples::Bytes jpegWithThumbnail(const samples::Picture& picture) {
  const auto small = samples::jpegFile(samples::reduced(picture, 160, 120), {}, {});
  const auto block = samples::tiffBlock(samples::ByteOrder::big,
                                        {samples::Directory(), samples::thumbnailDirectory(small)});
  return samples::jpegFile(picture, {}, {{1, samples::exifSegment(block)}});
}

bool makePhotos(const fs::path& folder) {
  samples::Picture picture = samples::paintScene(samples::Scene::fjord, 4032, 3024);
  samples::addFilmLook(picture, 0.1F, 0.02F, 1);
  write(folder / "plain.jpg", samples::jpegFile(picture, {}, {}));
  write(folder / "with thumbnail.jpg", jpegWithThumbnail(picture));
  write(folder / "a.png", samples::pngFile(picture, {}));
  const auto heic = samples::phoneHeicFile(picture, {});
  if (heic) write(folder / "a.heic", *heic);
  return static_cast<bool>(heic);
}

// Seconds of the quickest of several runs.
double quickest(const std::function<bool()>& run) {
  double best = 1e9;
  for (int round = 0; round < 5; ++round) {
    const auto start = std::chrono::steady_clock::now();
    if (!run()) std::abort();
    best = std::min(
        best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  return best;
}

double secondsOf(const fs::path& path, const Request& request) {
  return quickest([&] { return static_cast<bool>(decodePicture(path, request)); });
}

double secondsOfQt(const fs::path& path) {
  return quickest([&] { return !QImageReader(QString::fromStdString(path)).read().isNull(); });
}

double secondsOfLibheif(const fs::path& path) {
  return quickest([&] {
    heif_context* context = heif_context_alloc();
    heif_image_handle* handle = nullptr;
    heif_image* image = nullptr;
    heif_context_read_from_file(context, path.c_str(), nullptr);
    heif_context_get_primary_image_handle(context, &handle);
    heif_decode_image(handle, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, nullptr);
    const bool isDecoded = image != nullptr;
    heif_image_release(image);
    heif_image_handle_release(handle);
    heif_context_free(context);
    return isDecoded;
  });
}

void compare(const fs::path& path, int side, const char* peer, double peerSeconds) {
  const double seconds = secondsOf(path, {side, side, Request::Fit::fill});
  std::printf("%-22s at %4d: %8.1f a second, %6.1f times %s\n", path.filename().c_str(), side,
              1 / seconds, peerSeconds / seconds, peer);
  std::fflush(stdout);
}

// Copies of one photo, so that nothing comes out of a cache.
void compareWorkers(const fs::path& folder, const char* name, int side) {
  constexpr int count = 40;
  for (int number = 0; number < count; ++number)
    fs::copy_file(folder / name, folder / (std::to_string(number) + name));
  const Request request{side, side, Request::Fit::fill};
  const auto each = [&](const std::function<void(const fs::path&)>& use) {
    const auto start = std::chrono::steady_clock::now();
    for (int number = 0; number < count; ++number) use(folder / (std::to_string(number) + name));
    return start;
  };
  const auto elapsed = [](std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  };
  const double one = elapsed(each([&](const auto& path) {
    if (!decodePicture(path, request)) std::abort();
  }));
  desktop::pictures::PictureLoader loader({.command = {"/proc/self/exe", "--decode-pictures"}});
  int decoded = 0;
  const auto start = each([&](const auto& path) {
    loader.request(path, request, desktop::pictures::Priority::visible,
                   [&](const auto& outcome) { decoded += outcome.picture != nullptr; });
  });
  if (!loader.waitUntilIdle(std::chrono::minutes(1)) || decoded != count) std::abort();
  const double workers = elapsed(start);
  std::printf(
      "%-22s at %4d: %8.1f a second by %d workers, their start included, %.2f times one thread\n",
      name, side, count / workers, desktop::pictures::PictureLoader::defaultWorkerCount(),
      one / workers);
}

void run(const fs::path& folder) {
  constexpr const char* qt = "a full decode by QImageReader";
  for (const char* name : {"with thumbnail.jpg", "plain.jpg", "a.png"}) {
    const double peer = secondsOfQt(folder / name);
    for (const int side : {120, 300, 1500}) compare(folder / name, side, qt, peer);
  }
  const double heif = secondsOfLibheif(folder / "a.heic");
  for (const int side : {120, 240, 300, 1500})
    compare(folder / "a.heic", side, "a full decode by libheif", heif);
  compareWorkers(folder, "plain.jpg", 300);
  compareWorkers(folder, "a.heic", 300);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && std::string_view(argv[1]) == "--decode-pictures")
    return desktop::pictures::serveDecoder(desktop::pictures::decoderSocket);
  const fs::path folder = fs::temp_directory_path() / "pictures-bench";
  fs::remove_all(folder);
  fs::create_directories(folder);
  if (makePhotos(folder)) {
    run(folder);
  } else {
    std::puts("no encoder for HEIC");
  }
  fs::remove_all(folder);
}
