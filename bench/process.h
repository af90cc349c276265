// SPDX-License-Identifier: MIT
//
// Running a whole process and measuring it.
#pragma once

#include <string>
#include <vector>

namespace bench {

// What a finished process took.
struct Run {
  double seconds = 0;     // wall clock, start to exit
  double peakMemory = 0;  // megabytes of resident memory
};

// Runs the command to its end, its output thrown away. Ends the program where it cannot start.
Run runProcess(const std::vector<std::string>& command);

}  // namespace bench
