// SPDX-License-Identifier: MIT
//
// How much decoding may take: the one table of this room.
#pragma once

#include <cstddef>
#include <cstdint>

namespace desktop::pictures {

struct Limits {
  std::size_t pictureBytes;        // of one finished picture; a larger request is answered smaller
  int imageSide;                   // pixels
  unsigned decodedMegabytes;       // of an image that its library decodes whole
  std::size_t exifBytes;           // of an Exif block
  std::size_t embeddedImageBytes;  // of a coded thumbnail or preview, read into memory
  std::size_t profileBytes;        // of a colour profile; a larger one is not applied
  int jpegScans;                   // of a progressive JPEG, each as costly as the image
  int heifThumbnails;              // looked at in one file
  int decoderThreads;              // for the tiles of a HEIF picture, or for a video
  std::uint64_t configurationBytes;  // of a coder's configuration record
  int framesUntilPicture;            // packets of a video read until a frame comes out
  std::uint64_t videoBytes;          // read of a video for one frame
  int videoPackets;                  // looked at to tell what its streams hold
  int videoStreams;                  // a video of more has no picture
  std::size_t videoAllocation;       // bytes, of one piece of memory
  std::size_t workerMemory;  // bytes, of a worker process beside its libraries and its frame
  std::size_t untakenBytes;  // of finished pictures that nobody takes, until decoding pauses
  std::size_t nameBytes;     // of a file's name
  std::size_t reasonBytes;   // of the reason of a failure
};

inline constexpr Limits limits = {
    .pictureBytes = 256u << 20,
    .imageSide = 65'535,
    .decodedMegabytes = 1024,
    .exifBytes = 65'533,
    .embeddedImageBytes = 32u << 20,
    .profileBytes = 4u << 20,
    .jpegScans = 200,
    .heifThumbnails = 8,
    .decoderThreads = 2,
    .configurationBytes = 65'536,
    .framesUntilPicture = 300,
    .videoBytes = 256u << 20,
    .videoPackets = 5'000,
    .videoStreams = 256,
    .videoAllocation = 256u << 20,
    .workerMemory = 1280u << 20,
    .untakenBytes = 128u << 20,
    .nameBytes = 255,
    .reasonBytes = 512,
};

}  // namespace desktop::pictures
