// SPDX-License-Identifier: MIT
//
// The main function of a worker process, in which hostile files can do no harm but to itself.
#pragma once

#include <string>

#include "desktop/pictures/pixels/picture.h"
#include "io/byte_source.h"
#include "model/result.h"
#include "workers/worker_process.h"

namespace desktop::pictures {

// Where a loader leaves the socket of a worker that it starts.
inline constexpr int decoderSocket = workers::socketOfWorker;

using DecodeFunction = model::Result<Picture> (*)(const std::string& name, io::ByteSource& source,
                                                  const Request& request);

// Loads the decoders' libraries, confines the process, and answers the orders that come over the
// socket until its other end is closed; then the process ends. `decode` is another function in
// tests only. REQUIRES: one thread.
//
//   if (argc > 1 && std::string_view(argv[1]) == "--decode-pictures")
//     return desktop::pictures::serveDecoder(desktop::pictures::decoderSocket);
[[noreturn]] int serveDecoder(int socket, DecodeFunction decode = nullptr);

}  // namespace desktop::pictures
