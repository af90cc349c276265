// SPDX-License-Identifier: MIT
#include "device/loading/sha256.h"

#include <algorithm>
#include <bit>
#include <vector>

namespace device::loading {
namespace {

using State = std::array<std::uint32_t, 8>;

constexpr std::size_t blockSize = 64;

constexpr State start = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                         0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};

constexpr std::uint32_t constants[64] = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

std::array<std::uint32_t, 64> scheduleOf(const std::uint8_t* block) {
  std::array<std::uint32_t, 64> words{};
  for (std::size_t byte = 0; byte < blockSize; ++byte)
    words[byte / 4] = words[byte / 4] << 8 | block[byte];
  for (std::size_t at = 16; at < words.size(); ++at) {
    const std::uint32_t near = words[at - 2];
    const std::uint32_t far = words[at - 15];
    words[at] = words[at - 16] + words[at - 7] +
                (std::rotr(far, 7) ^ std::rotr(far, 18) ^ far >> 3) +
                (std::rotr(near, 17) ^ std::rotr(near, 19) ^ near >> 10);
  }
  return words;
}

void addBlock(State& state, const std::uint8_t* block) {
  const auto words = scheduleOf(block);
  auto [a, b, c, d, e, f, g, h] = state;
  for (std::size_t at = 0; at < words.size(); ++at) {
    const std::uint32_t first = h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) +
                                ((e & f) ^ (~e & g)) + constants[at] + words[at];
    const std::uint32_t second =
        (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
    h = g, g = f, f = e, e = d + first;
    d = c, c = b, b = a, a = first + second;
  }
  const State turned = {a, b, c, d, e, f, g, h};
  std::ranges::transform(state, turned, state.begin(), std::plus<std::uint32_t>());
}

// The message, a bit that ends it, zeros, and its length in bits: whole blocks.
std::vector<std::uint8_t> padded(std::span<const std::uint8_t> bytes) {
  std::vector<std::uint8_t> message(bytes.begin(), bytes.end());
  message.push_back(0x80);
  message.resize((message.size() + 8 + blockSize - 1) / blockSize * blockSize);
  std::uint64_t bits = bytes.size() * 8;
  for (auto at = message.rbegin(); bits != 0; ++at, bits >>= 8)
    *at = static_cast<std::uint8_t>(bits);
  return message;
}

}  // namespace

std::array<std::uint8_t, 32> sha256(std::span<const std::uint8_t> bytes) {
  const std::vector<std::uint8_t> message = padded(bytes);
  State state = start;
  for (std::size_t at = 0; at < message.size(); at += blockSize) addBlock(state, &message[at]);
  std::array<std::uint8_t, 32> hash{};
  for (std::size_t byte = 0; byte < hash.size(); ++byte)
    hash[byte] = static_cast<std::uint8_t>(state[byte / 4] >> (24 - byte % 4 * 8));
  return hash;
}

}  // namespace device::loading
