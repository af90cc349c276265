// SPDX-License-Identifier: MIT
//
// What reading a container of others may take: the one table.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace media::movie {

// What cuts bounds counts bytes, packets and tracks, so that a file says the same on any machine at
// any time. Memory and processor time are the last resort: who takes more is no video.
struct ContainerLimits {
  std::uint64_t bytes;             // read of a file
  int packets;                     // looked at to tell what the streams hold
  std::uint64_t measuredBytes;     // of packets that are added up for rates
  int measuredPackets;             // likewise
  int streams;                     // a file of more is none that is read
  std::size_t tracks;              // of an asset
  std::size_t items;               // of metadata, of the asset and of each track
  std::size_t textBytes;           // of a text; a longer one is cut
  std::size_t configurationBytes;  // of a coder's configuration record; a longer one is left out
  std::size_t answerBytes;         // of all that is said of a file
  std::size_t largestAllocation;   // bytes, of one piece of memory
  std::size_t memory;              // bytes, of a reader beside its libraries
  std::chrono::milliseconds processorTime;  // of a reader: for starting, and for a file
  std::size_t readers;                      // processes at most
};

inline constexpr ContainerLimits containerLimits = {
    .bytes = 8u << 20,
    .packets = 5'000,
    .measuredBytes = 2u << 20,
    .measuredPackets = 2'000,
    .streams = 256,
    .tracks = 64,
    .items = 16,
    .textBytes = 4096,
    .configurationBytes = 8192,
    .answerBytes = 128u << 10,
    .largestAllocation = 16u << 20,
    .memory = 40u << 20,
    .processorTime = std::chrono::seconds(2),
    .readers = 4,
};

}  // namespace media::movie
