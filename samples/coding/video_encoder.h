// SPDX-License-Identifier: MIT
//
// Pictures coded as H.264 or HEVC through libavcodec (libx264, libx265), with one thread, so that
// the same pictures give the same bytes.
#pragma once

#include <functional>
#include <vector>

#include "model/result.h"
#include "samples/formats/byte_writer.h"
#include "samples/library/item.h"

namespace samples {

struct CodedFrame {
  Bytes data;  // NAL units, each after its length in four bytes
  int decodeIndex = 0;
  int showIndex = 0;  // the frame's place in the film
  bool isKey = false;
};

struct CodedVideo {
  Bytes configuration;             // the content of an "avcC" or "hvcC" box
  std::vector<CodedFrame> frames;  // in decoding order
};

struct VideoFormat {
  VideoCodec codec = VideoCodec::h264;
  int width = 0;   // even
  int height = 0;  // even
  int framesPerSecond = 30;
  int quality = 24;            // the encoders' constant rate factor; lower is better
  bool stillPictures = false;  // every frame on its own, in the colours of photos (full range)
};

// Frames 0 to count - 1, as `frameAt` paints them.
// Errors: an encoder that is missing or refuses the format.
model::Result<CodedVideo> encodeVideo(const VideoFormat& format, int count,
                                      const std::function<Picture(int)>& frameAt);

}  // namespace samples
