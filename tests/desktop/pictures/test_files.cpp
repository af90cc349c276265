// SPDX-License-Identifier: MIT
#include "tests/desktop/pictures/test_files.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace desktop::pictures {

TestFolder::TestFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "pictures-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) std::abort();
  _path = name;
}

TestFolder::~TestFolder() {
  std::error_code error;
  std::filesystem::remove_all(_path, error);
}

std::string TestFolder::write(const std::string& name, const samples::Bytes& bytes) const {
  std::ofstream file(_path / name, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  return path(name);
}

samples::Bytes TestFolder::read(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

samples::Picture quartered(int width, int height) {
  samples::Picture picture(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const bool isRight = x >= width / 2;
      const bool isBelow = y >= height / 2;
      picture.at(x, y) = {isRight == isBelow ? 1.0F : 0.0F, isRight ? 1.0F : 0.0F,
                          isBelow ? 1.0F : 0.0F};
    }
  }
  return picture;
}

std::string colourAt(const Picture& picture, double x, double y) {
  struct Named {
    const char* name;
    std::array<int, 4> channels;  // blue, green, red, alpha
  };
  constexpr Named names[] = {
      {"red", {0, 0, 255, 255}},       {"green", {0, 255, 0, 255}}, {"blue", {255, 0, 0, 255}},
      {"white", {255, 255, 255, 255}}, {"black", {0, 0, 0, 255}},   {"clear", {0, 0, 0, 0}},
  };
  constexpr int tolerance = 24;
  const int column = static_cast<int>(x * picture.width);
  const int row = static_cast<int>(y * picture.height);
  const std::uint32_t pixel =
      picture.pixels.at(static_cast<std::size_t>(row * picture.width + column));
  for (const Named& named : names) {
    bool isNear = true;
    for (std::size_t channel = 0; channel < 4; ++channel) {
      const int value = static_cast<int>((pixel >> (8 * channel)) & 0xFF);
      isNear = isNear && std::abs(value - named.channels[channel]) <= tolerance;
    }
    if (isNear) return named.name;
  }
  return std::to_string(pixel);
}

std::string quarters(const Picture& picture) {
  return colourAt(picture, 0.25, 0.25) + " " + colourAt(picture, 0.75, 0.25) + " " +
         colourAt(picture, 0.25, 0.75) + " " + colourAt(picture, 0.75, 0.75);
}

}  // namespace desktop::pictures
