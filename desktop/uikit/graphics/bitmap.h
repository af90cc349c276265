// SPDX-License-Identifier: MIT
//
// Pixels to paint: those that decoders of pictures make.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "model/picture.h"

namespace desktop::uikit {

using Bitmap = model::Picture;

// Shared by everybody who shows it; never changed once it is.
using SharedBitmap = std::shared_ptr<const Bitmap>;

}  // namespace desktop::uikit
