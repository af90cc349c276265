// SPDX-License-Identifier: MIT
//
// How a request ended.
#pragma once

#include <string>

#include "desktop/pictures/pixels/picture.h"

namespace desktop::pictures {

struct Outcome {
  enum class Kind {
    decoded,   // there is a picture
    failed,    // the file cannot be decoded, the decoder crashed twice, or cannot be run
    timedOut,  // the decoder was stopped: it took too much processor time, or fell asleep
  };

  Kind kind = Kind::failed;
  SharedPicture picture = nullptr;  // null unless decoded
  std::string reason = {};          // empty where decoded; can stand behind "FILE: "
};

}  // namespace desktop::pictures
