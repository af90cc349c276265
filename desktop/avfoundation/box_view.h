// SPDX-License-Identifier: MIT
//
// Boxes of bytes in memory: the insides of sample descriptions.
#pragma once

#include <optional>

#include "desktop/io/byte_view.h"
#include "model/media_asset.h"

namespace desktop::avfoundation {

// One box, borrowed from the bytes that were walked.
struct BoxView {
  model::FourCharCode type = 0;
  ByteView whole;    // with its header
  ByteView payload;  // behind its header
};

// Walks boxes that lie one after the other. It ends at a box that is smaller than its header or
// larger than the rest, so also at the four zero bytes that QuickTime ends a list with.
class BoxViewWalk {
 public:
  explicit BoxViewWalk(ByteView bytes) : _rest(bytes) {}

  std::optional<BoxView> next();

 private:
  ByteView _rest;
};

// The payload of the first box of that type, if any.
std::optional<ByteView> findPayload(ByteView bytes, model::FourCharCode type);

}  // namespace desktop::avfoundation
