// SPDX-License-Identifier: MIT
//
// Boxes of bytes in memory: the insides of sample descriptions.
#pragma once

#include <optional>

#include "io/byte_view.h"
#include "model/media_asset.h"

namespace media::movie {

// One box, borrowed from the bytes that were walked.
struct BoxView {
  model::FourCharCode type = 0;
  io::ByteView whole;    // with its header
  io::ByteView payload;  // behind its header
};

// Walks boxes that lie one after the other. It ends at a box that is smaller than its header or
// larger than the rest, so also at the four zero bytes that QuickTime ends a list with.
class BoxViewWalk {
 public:
  explicit BoxViewWalk(io::ByteView bytes) : _rest(bytes) {}

  std::optional<BoxView> next();

 private:
  io::ByteView _rest;
};

// The payload of the first box of that type, if any.
std::optional<io::ByteView> findPayload(io::ByteView bytes, model::FourCharCode type);

}  // namespace media::movie
