// SPDX-License-Identifier: MIT
#include "media/image/maker/maker_notes.h"

#include "media/image/blocks/metadata_blocks.h"
#include "media/image/maker/maker_apple.h"
#include "media/image/maker/maker_canon.h"
#include "media/image/maker/maker_nikon.h"

namespace media::image {

void readMakerNote(const MakerNote& note, model::Dictionary& properties) {
  if (sectionText(properties, "{TIFF}", "Make").starts_with("Canon")) {
    readCanonMakerNote(note, properties);
  } else {
    readAppleMakerNote(note.bytes, properties);
    readNikonMakerNote(note.bytes, properties);
  }
}

}  // namespace media::image
