// SPDX-License-Identifier: MIT
//
// What a loader and its worker processes say to each other: one message each way a picture. The
// file travels with the order as an open descriptor; the pixels are too many for a message and lie
// in the frame, a file without a name that the loader gave its worker. What a worker says is
// distrusted: its decoder may have been taken over by a file.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "desktop/pictures/pixels/picture.h"
#include "io/descriptor.h"
#include "model/result.h"

namespace desktop::pictures {

struct DecodeOrder {
  std::string name;  // of the file, without its folder: a hint to its kind
  Request request;
  io::Descriptor file = {};  // received with it
};

struct DecodeAnswer {
  enum class Kind : std::uint8_t { decoded, failed };

  Kind kind = Kind::failed;
  int width = 0;  // of the decoded picture
  int height = 0;
  std::string reason = {};  // of a failure
};

// False where the other end is gone. `file` is borrowed.
bool sendOrder(int socket, const DecodeOrder& order, int file);
bool sendAnswer(int socket, const DecodeAnswer& answer);

// Wait for a message. None where the other end is gone or sends what is no message.
std::optional<DecodeOrder> receiveOrder(int socket);
std::optional<DecodeAnswer> receiveAnswer(int socket);

// None where these bytes are no answer. The size of a picture that is accepted is within the
// limits.
std::optional<DecodeAnswer> answerOfBytes(std::span<const std::uint8_t> bytes);
std::vector<std::uint8_t> bytesOfAnswer(const DecodeAnswer& answer);

// A picture's pixels into the frame, and back. Errors: no memory is left; a frame that is shorter
// than the answer says.
std::optional<model::Error> writePixels(const Picture& picture, int frame);
model::Result<Picture> readPixels(const DecodeAnswer& answer, int frame);

}  // namespace desktop::pictures
