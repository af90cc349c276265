// SPDX-License-Identifier: MIT
//
// The boxes of ISO base media files (ISO/IEC 14496-12) and QuickTime's atoms.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "samples/formats/byte_writer.h"

namespace samples {

// Boxes that contain boxes:
//
//   BoxWriter out;
//   out.begin("moov");
//   out.begin("mvhd", 0);
//   ...
//   out.end();
//   out.end();
class BoxWriter : public ByteWriter {
 public:
  // REQUIRES: four characters.
  void begin(std::string_view type) {
    _open.push_back(size());
    u32(0);
    text(type);
  }

  // A box with a version (high byte) and flags.
  void begin(std::string_view type, std::uint32_t versionAndFlags) {
    begin(type);
    u32(versionAndFlags);
  }

  // Closes the innermost open box. REQUIRES: one is open.
  void end() {
    patchU32(_open.back(), size() - _open.back());
    _open.pop_back();
  }

 private:
  std::vector<std::size_t> _open;
};

}  // namespace samples
