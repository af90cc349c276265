// SPDX-License-Identifier: MIT
//
// Small files of raw and rarer kinds: the structures that cameras and programs write, around a
// preview or a few pixels.
#pragma once

#include <string>
#include <vector>

#include "samples/formats/byte_writer.h"

namespace samples {

struct RawFile {
  std::string name;  // "structure.raf"
  Bytes bytes;
};

// One of each kind; all are pictures of 640 by 480 by the same camera.
std::vector<RawFile> rawFiles();

}  // namespace samples
