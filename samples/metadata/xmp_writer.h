// SPDX-License-Identifier: MIT
//
// Captions, place names, rating and lens as an XMP packet.
#pragma once

#include <string>

#include "samples/library/item.h"

namespace samples {

// UTF-8, with the packet wrapper.
std::string xmpPacket(const Photo& photo);

}  // namespace samples
