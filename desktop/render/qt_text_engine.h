// SPDX-License-Identifier: MIT
//
// The measuring of text with the fonts that it is painted in.
#pragma once

#include <memory>

#include "desktop/uikit/graphics/text_engine.h"

namespace desktop::render {

// REQUIRES: a QGuiApplication, which outlives the engine.
std::unique_ptr<uikit::TextEngine> makeQtTextEngine();

}  // namespace desktop::render
