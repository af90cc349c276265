// SPDX-License-Identifier: MIT
//
// Builds small HEIF files, for the tests of their reader.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace media::image {

struct HeifItemToWrite {
  std::uint32_t id = 0;
  std::string type;              // four characters
  std::string contentType = {};  // of "mime" items
  std::string bytes = {};
  std::vector<int> properties = {};  // their numbers, from 1
  bool isInItemData = false;
};

struct HeifReferenceToWrite {
  std::string type;
  std::uint32_t from = 0;
  std::vector<std::uint32_t> to;
};

struct HeifToWrite {
  std::string brand = "heic";
  std::uint32_t primary = 1;
  std::vector<HeifItemToWrite> items;
  std::vector<std::string> properties;  // whole boxes
  std::vector<HeifReferenceToWrite> references;
  int locationVersion = 1;
  int itemVersion = 2;        // of "infe"; from 3 on ids are wide
  std::size_t padding = 0;    // bytes of coded data before the items' own
  bool hasMetaAtEnd = false;  // behind the coded data
};

std::string heifFile(const HeifToWrite& heif);

// Property boxes.
std::string heifExtents(std::uint32_t width, std::uint32_t height);
std::string heifPixelInformation(const std::vector<int>& depths);
std::string heifIccColors(std::string_view profile);
std::string heifCodedColors(int primaries, int transfer);

// The bytes of an Exif item: an offset in front.
std::string heifExifItem(std::string_view tiff);

}  // namespace media::image
