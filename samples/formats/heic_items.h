// SPDX-License-Identifier: MIT
//
// The boxes that tell where the items of a HEIF file lie and what belongs to them.
#pragma once

#include <string_view>
#include <vector>

#include "samples/formats/byte_writer.h"

namespace samples {

struct HeifItem {
  std::string_view type;  // "hvc1", "grid", "Exif", "mime"
  Bytes data = {};
  bool isHidden = false;                  // a part of another picture
  bool insideMeta = false;                // its data lie in "idat"
  std::vector<int> properties = {};       // places in the list of properties, from 1
  std::string_view reference = {};        // "dimg", "thmb", "cdsc"; empty for none
  std::vector<std::size_t> targets = {};  // items that the reference names
};

struct HeifPicture {
  std::vector<HeifItem> items;     // numbered from 1 in this order
  std::size_t primary = 0;         // place of the primary item in `items`
  std::vector<Bytes> properties;   // whole boxes
  std::vector<std::size_t> order;  // in which the items' data lie in "mdat"
};

// The whole file.
Bytes heifFile(const HeifPicture& picture);

}  // namespace samples
