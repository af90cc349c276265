// SPDX-License-Identifier: MIT
#include "desktop/avfoundation/ffmpeg_module.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>
#include <vector>

namespace desktop::avfoundation {

namespace {

constexpr char moduleName[] = "desktop_ffmpeg_reader.so";

// Beside the program, in the library folder that belongs to it, and where it was to be installed.
std::vector<std::filesystem::path> modulePlaces() {
  std::vector<std::filesystem::path> places;
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  if (!error) {
    const auto folder = program.parent_path();
    places.push_back(folder / moduleName);
    places.push_back(folder.parent_path() / FFMPEG_READER_RELATIVE_DIR / moduleName);
  }
  places.push_back(std::filesystem::path(FFMPEG_READER_INSTALL_DIR) / moduleName);
  return places;
}

ReadAssetWithFfmpeg loadModule() {
  for (const auto& place : modulePlaces()) {
    // Never closed: FFmpeg's libraries are not made to be unmapped.
    void* module = dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (module == nullptr) continue;
    if (void* function = dlsym(module, ffmpegModuleFunction))
      return reinterpret_cast<ReadAssetWithFfmpeg>(function);
  }
  return nullptr;
}

}  // namespace

std::optional<model::MediaAsset> readWithFfmpeg(const std::string& name, ByteSource& source) {
  static const ReadAssetWithFfmpeg read = loadModule();
  model::MediaAsset asset;
  if (read == nullptr || read(name.c_str(), &source, &asset) != 0) return std::nullopt;
  return asset;
}

}  // namespace desktop::avfoundation
