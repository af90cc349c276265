// SPDX-License-Identifier: MIT
//
// The main function of a worker process, in which hostile files can do no harm but to itself.
#pragma once

#include <string>

#include "desktop/pictures/pixels/picture.h"
#include "model/result.h"

namespace desktop::pictures {

// Where a loader leaves the socket of a worker that it starts.
inline constexpr int decoderSocket = 3;

using DecodeFunction = model::Result<Picture> (*)(const std::string& path, const Request& request);

// Answers the orders that come over the socket until its other end is closed; returns the exit
// status. Limits the memory of the process, silences the libraries' messages, and lets the process
// end with the one that started it. `decode` is another function in tests only.
//
//   if (argc > 1 && std::string_view(argv[1]) == "--decode-pictures")
//     return desktop::pictures::serveDecoder(desktop::pictures::decoderSocket);
int serveDecoder(int socket, DecodeFunction decode = nullptr);

}  // namespace desktop::pictures
