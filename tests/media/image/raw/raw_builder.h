// SPDX-License-Identifier: MIT
//
// Builds small raw files of cameras, for the tests of their readers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/tiff_builder.h"

namespace media::image {

// A JPEG of 160 by 120 whose Exif block names a maker and has a size and a speed.
std::string innerJpeg(std::int64_t width = 4256, std::int64_t height = 2848);

struct RafToWrite {
  std::string jpeg = innerJpeg();
  int width = 4256;
  int height = 1424;
  std::string sensor = {};
};
std::string rafFile(const RafToWrite& raf);

// With tags of its own, those of TIFF among them, and the JPEG in the one that has its place.
std::string rw2File(const std::vector<FieldToWrite>& fields, const std::string& jpeg);

// A TIFF structure with "CR" behind its header and the sensor's data at its end.
std::string cr2File(const std::vector<FieldToWrite>& first, const std::vector<FieldToWrite>& exif,
                    const std::string& sensor);

struct Cr3ToWrite {
  std::string first;  // TIFF structures
  std::string exif;
  std::string maker = {};
  std::string gps = {};
  std::string xmp = {};
  std::vector<std::pair<int, int>> tracks = {};  // width and bits a sample
  std::string version = "CanonCR3_001/00.09.00/00.00.00";
};
std::string cr3File(const Cr3ToWrite& cr3);

struct CiffEntry {
  int code = 0;
  std::string bytes;
  bool isInEntry = false;  // eight bytes instead of size and offset
};
std::string ciffHeap(const std::vector<CiffEntry>& entries);
std::string crwFile(const std::vector<CiffEntry>& entries);

std::string mrwBlock(std::string_view name, std::string_view bytes);
std::string mrwSensor(int width, int height, int depth);
std::string mrwFile(std::string_view blocks);

struct X3fSection {
  std::string name;
  std::string bytes;
};
std::string x3fProperties(const std::vector<std::pair<std::string, std::string>>& pairs);
std::string x3fFile(int version, int width, int height, int rotation,
                    const std::vector<X3fSection>& sections);

}  // namespace media::image
