// SPDX-License-Identifier: MIT
//
// The views of the gallery, each as a scene that can be set up on the screen.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/result.h"

namespace gallery {

// Puts the scene of this name on the screen, and waits until it is at rest.
// Errors: an unknown name, with the list of those known.
std::optional<model::Error> showScene(std::string_view name);

}  // namespace gallery
