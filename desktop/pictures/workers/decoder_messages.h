// SPDX-License-Identifier: MIT
//
// What a loader and its worker processes say to each other: one message each way a picture, over a
// socket that keeps messages apart. Both ends are the same program on the same machine, so numbers
// are sent as they lie in memory. What a worker sends is distrusted all the same: its decoder may
// have been taken over by a file.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "desktop/pictures/pixels/picture.h"
#include "io/descriptor.h"
#include "model/result.h"

namespace desktop::pictures {

struct DecodeOrder {
  std::string path;
  Request request;
};

// A worker's first message says that it is ready; each further one answers an order.
struct DecodeAnswer {
  enum class Kind : std::int32_t { ready, decoded, failed };

  Kind kind = Kind::failed;
  int width = 0;  // of the decoded picture
  int height = 0;
  std::string reason = {};     // of a failure
  io::Descriptor pixels = {};  // of the decoded picture: a file without a name
};

// A connected pair; both ends are closed on exec. None where the system has no more.
std::optional<std::pair<io::Descriptor, io::Descriptor>> socketPair();

// False where the other end is gone. Never raises SIGPIPE.
bool sendOrder(int socket, const DecodeOrder& order);
bool sendAnswer(int socket, const DecodeAnswer& answer);

// Waits for a message. None where the other end is gone or sends what is no message.
std::optional<DecodeOrder> receiveOrder(int socket);
std::optional<DecodeAnswer> receiveAnswer(int socket);

// A picture's pixels as a file without a name, and back. Errors: the system has no memory; a file
// that is shorter than the size says, or a size beyond the limits.
model::Result<io::Descriptor> writePixels(const Picture& picture);
model::Result<Picture> readPixels(const DecodeAnswer& answer);

}  // namespace desktop::pictures
