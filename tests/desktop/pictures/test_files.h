// SPDX-License-Identifier: MIT
//
// Files to decode, made for one test and removed after it.
#pragma once

#include <filesystem>
#include <string>

#include "desktop/pictures/pixels/picture.h"
#include "samples/formats/byte_writer.h"
#include "samples/pictures/picture.h"

namespace desktop::pictures {

// A folder of its own.
class TestFolder {
 public:
  TestFolder();
  ~TestFolder();
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  std::string path(const std::string& name) const { return (_path / name).string(); }
  // Writes a file; returns its path.
  std::string write(const std::string& name, const samples::Bytes& bytes) const;
  static samples::Bytes read(const std::string& path);

 private:
  std::filesystem::path _path;
};

// Four areas: red and green above, blue and white below.
samples::Picture quartered(int width, int height);

// The name of the area's colour in the middle of the quarter, with some tolerance: "red", "green",
// "blue", "white", "black", "clear", or its number.
std::string colourAt(const Picture& picture, double x, double y);

// The four of them, from left to right and top to bottom: "red green blue white".
std::string quarters(const Picture& picture);

}  // namespace desktop::pictures
