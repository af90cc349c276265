// SPDX-License-Identifier: MIT
//
// A worker's first message: that it speaks the language of the program that started it, has
// confined itself, and what the system refused to do of that.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace workers {

inline constexpr std::size_t longestGreeting = 512;  // bytes

std::vector<std::uint8_t> greetingOf(const std::string& refused);

// Whether these bytes are a greeting. What the system refused is kept for takeRefusedProtections.
bool acceptGreeting(std::span<const std::uint8_t> bytes);

// What the system refused the workers of this program, for one message to whoever runs it: once,
// and none where that is nothing. From any thread.
std::optional<std::string> takeRefusedProtections();

}  // namespace workers
