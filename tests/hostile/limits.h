// SPDX-License-Identifier: MIT
//
// What programs may take for strangers' files, as SECURITY.md promises it.
#pragma once

#include <gtest/gtest.h>

#include "tests/hostile/program_run.h"
#include "workers/sanitizer.h"

namespace hostile {

inline constexpr long toolKilobytes = 64 << 10;     // of the tool, and of each reader
inline constexpr long hostKilobytes = 1536L << 10;  // of a decoder, frame included
inline constexpr double toolSeconds = 0.1;          // of the processor a file, readers included

// Sanitizers take memory and time of their own.
inline void expectWithin(const RunEnd& end, long kilobytes) {
  if (workers::isSanitized) return;
  EXPECT_LE(end.peakKilobytes, kilobytes);
}

inline void expectToolSeconds(double seconds, std::size_t files) {
  if (workers::isSanitized) return;
  EXPECT_LE(seconds, toolSeconds * static_cast<double>(files));
}

}  // namespace hostile
