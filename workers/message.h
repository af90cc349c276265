// SPDX-License-Identifier: MIT
//
// What a program and its worker processes say to each other: runs of bytes, kept apart by the
// socket that carries them. Whoever receives one takes it for whatever a stranger may have sent.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "io/descriptor.h"

namespace workers {

struct Message {
  std::vector<std::uint8_t> bytes;
  io::Descriptor descriptor = {};  // that came with it, closed on exec
};

// Whether a message may bring a descriptor; what comes uninvited is closed unseen.
enum class Guests { refused, taken };

// A connected pair; both ends are closed on exec. None where the system has no more.
std::optional<std::pair<io::Descriptor, io::Descriptor>> socketPair();

// False where the other end is gone. Never raises SIGPIPE.
bool sendMessage(int socket, std::span<const std::uint8_t> bytes, int descriptor = -1);

// Waits for a message. None where the other end is gone, or where the message is longer than
// `longest` bytes or empty.
std::optional<Message> receiveMessage(int socket, std::size_t longest, Guests guests);

}  // namespace workers
