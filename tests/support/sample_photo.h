// SPDX-License-Identifier: MIT
//
// Small JPEG files with the metadata that a test asks for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "model/geometry.h"

namespace media::facts {

// What the photo says of itself; what is empty is left out.
struct SamplePhoto {
  std::uint16_t width = 40;  // stored pixels
  std::uint16_t height = 30;
  std::optional<int> orientation = {};
  std::string make = {};
  std::string dateTimeOriginal = {};  // "2018:09:30 14:03:11"
  std::string offset = {};            // "+02:00"
  std::optional<model::Location> location = {};
  std::string city = {};
  std::string country = {};
  std::string contentIdentifier = {};  // of a Live Photo's still
};

// The bytes of the file: Exif, IPTC where there is a place name, and a picture that no reader of
// metadata decodes.
std::vector<std::uint8_t> sampleJpeg(const SamplePhoto& photo);

}  // namespace media::facts
