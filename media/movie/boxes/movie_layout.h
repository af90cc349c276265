// SPDX-License-Identifier: MIT
//
// The outermost boxes of a movie file: what kind of file it is, and where its header lies.
#pragma once

#include <optional>
#include <vector>

#include "io/byte_source.h"
#include "io/iso_box.h"
#include "model/result.h"

namespace media::movie {

// Whose rules the sample descriptions follow: those of QuickTime, or of ISO/IEC 14496-12.
enum class FileFormat { quickTime, isoBaseMedia };

struct MovieLayout {
  FileFormat format = FileFormat::quickTime;
  io::ByteRange movie;                   // the payload of "moov", as much of it as there is
  bool isMovieCut = false;               // it goes on behind the end of the file
  std::vector<io::ByteRange> fragments;  // the payloads of "moof", in their order
};

// Walks the outermost boxes. Reads the headers only, to the byte: nothing of the coded samples.
// None where the file does not begin as a movie does, or is an image in the same container: a
// sequence of images is a movie only where it has no still.
//
// Errors: a read that fails; no "moov"; what stands before it cut off.
model::Result<std::optional<MovieLayout>> readMovieLayout(io::ByteSource& source);

}  // namespace media::movie
