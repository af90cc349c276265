// SPDX-License-Identifier: MIT
//
// What the application asks of the desktop around it.
#pragma once

#include <functional>
#include <string>

namespace desktop::uikit {

// All may be left unset.
struct Outside {
  std::function<bool(const std::string&)> openLink;  // whether somebody opened it
  std::function<void(const std::string&)> copyText;  // to the clipboard
  std::function<void(const std::string&)> saveText;  // asks where
};

Outside& outside();

}  // namespace desktop::uikit
