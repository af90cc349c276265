// SPDX-License-Identifier: MIT
//
// What keys do to a single photo.
#pragma once

namespace desktop::photos_ui {

enum class OneUpAction { next, previous, first, last, zoomIn, zoomOut, fit, actualSize, play };

}  // namespace desktop::photos_ui
