// SPDX-License-Identifier: MIT
//
// What the headers of coded streams say where no coder is opened: FFmpeg leaves to its coders what
// containers do not state.
#pragma once

#include "media/movie/ffmpeg/demuxer.h"

namespace media::movie {

// Fills in what is not known of the streams: sizes and shapes of pictures, colours, rates and
// channels of sound. Reads a few packets where only they tell.
void completeFromHeaders(Demuxer& demuxer);

}  // namespace media::movie
