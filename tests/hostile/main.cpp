// SPDX-License-Identifier: MIT
//
// make_hostile_files FOLDER: makes every file that the tests of this folder show to the programs.
#include <filesystem>
#include <fstream>
#include <iostream>

#include "tests/hostile/bombs.h"
#include "tests/hostile/small_files.h"

namespace {

namespace fs = std::filesystem;

bool write(const fs::path& path, const hostile::Bytes& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  if (file.flush()) return true;
  std::cerr << "make_hostile_files: cannot write " << path << "\n";
  return false;
}

// Each file under each other's name: "png as jpg.jpg".
bool writePairs(const fs::path& folder) {
  const auto files = hostile::smallFiles();
  bool isWritten = true;
  for (const auto& content : files)
    for (const auto& name : files)
      isWritten &=
          write(folder / (content.extension + " as " + name.extension + "." + name.extension),
                content.bytes);
  return isWritten;
}

bool writeBombs(const fs::path& folder, const std::vector<hostile::Bomb>& bombs) {
  bool isWritten = true;
  for (const auto& bomb : bombs) isWritten &= write(folder / bomb.name, bomb.bytes);
  return isWritten;
}

bool writeAll(const fs::path& folder) {
  for (const char* part : {"pairs", "pictures", "movies", "large"})
    fs::create_directories(folder / part);
  const hostile::Bytes large = hostile::plainPng(8'000, 6'000);
  return writePairs(folder / "pairs") && writeBombs(folder / "pictures", hostile::pictureBombs()) &&
         writeBombs(folder / "movies", hostile::movieBombs()) &&
         write(folder / "large" / "48 megapixels.png", large);
}

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: make_hostile_files FOLDER\n";
    return 2;
  }
  return writeAll(arguments[1]) ? 0 : 1;
}
