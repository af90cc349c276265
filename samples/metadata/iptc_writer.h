// SPDX-License-Identifier: MIT
//
// Captions and place names as picture agencies write them.
#pragma once

#include "samples/library/item.h"

namespace samples {

// The records of IPTC-IIM 4.2 for a photo's title, caption, author, date and place.
Bytes iptcRecords(const Photo& photo);

// IPTC records inside Photoshop's image resources ("8BIM" 0x0404), as TIFF holds them.
Bytes photoshopResources(const Bytes& iptc);

// The payload of a JPEG's APP13 segment.
Bytes photoshopSegment(const Bytes& iptc);

// Whether the photo has anything for IPTC or XMP.
bool hasCaptions(const Photo& photo);

}  // namespace samples
