// SPDX-License-Identifier: MIT
//
// How long a stream is, and what it holds: as Matroska's writers state it in tags, else as its
// packets add up.
#pragma once

#include "media/movie/ffmpeg/demuxer.h"

namespace media::movie {

// Zeros where nothing is known.
struct StreamStatistics {
  double duration = 0;   // seconds
  double dataRate = 0;   // bits a second
  double frameRate = 0;  // packets a second
};

// From the stream's tags.
StreamStatistics statisticsOf(const AVStream& stream);

// Gives the streams of a Matroska or WebM file the tags that its writer left out, from its first
// packets: all of them where they are the whole file, of sound the rate alone where there are more.
void completeStatistics(Demuxer& demuxer);

}  // namespace media::movie
