// SPDX-License-Identifier: MIT
//
// How a row of a settings page tells what a finger made of it.
#pragma once

#include <functional>

#include "model/value.h"

namespace desktop::photos_ui {

// Told of the value that was chosen, as it is to be stored. May let go of the row.
using SettingChanged = std::function<void(const model::Value& value)>;

}  // namespace desktop::photos_ui
