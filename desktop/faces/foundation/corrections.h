// SPDX-License-Identifier: MIT
//
// The corrections, one function a subject; each replaces methods of Foundation's classes and is
// called once.
#pragma once

namespace desktop::faces {

void correctByteCounts();
void correctCollections();
void correctDates();
void correctFiles();
void correctLinks();
void correctNumbers();
void correctStrings();
void correctMainBundle();

}  // namespace desktop::faces
