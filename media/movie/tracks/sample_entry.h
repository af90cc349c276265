// SPDX-License-Identifier: MIT
//
// One entry of a sample description table, before it is read for its kind of media.
#pragma once

#include "media/movie/boxes/box_view.h"
#include "media/movie/boxes/movie_layout.h"
#include "model/media_asset.h"

namespace media::movie {

// Borrows the bytes of the table.
struct SampleEntry {
  BoxView box;                        // its type is the code of the samples
  model::FourCharCode mediaType = 0;  // of the track: 'vide', 'soun', ...
  FileFormat format = FileFormat::quickTime;
  int tableVersion = 0;              // of the table ("stsd")
  std::uint32_t mediaTimeScale = 0;  // ticks a second of the track
};

// The bytes of an entry as the platform keeps them beside what it understood: under
// "VerbatimSampleDescription" for QuickTime, "VerbatimISOSampleEntry" for ISO files.
void setVerbatimEntry(model::Dictionary& extensions, const SampleEntry& entry);

}  // namespace media::movie
