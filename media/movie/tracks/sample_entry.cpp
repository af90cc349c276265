// SPDX-License-Identifier: MIT
#include "media/movie/tracks/sample_entry.h"

namespace media::movie {

void setVerbatimEntry(model::Dictionary& extensions, const SampleEntry& entry) {
  const char* key = entry.format == FileFormat::quickTime ? "VerbatimSampleDescription"
                                                          : "VerbatimISOSampleEntry";
  const auto bytes = entry.box.whole.bytes();
  extensions[key] = model::Data(bytes.begin(), bytes.end());
}

}  // namespace media::movie
