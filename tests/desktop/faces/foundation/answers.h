// SPDX-License-Identifier: MIT
//
// What the phone's Foundation answers where the one here, left alone, answers otherwise.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace desktop::faces {

struct Answer {
  const char* question;
  std::function<std::string()> ask;  // of the Foundation of this process
  std::string expected;
};

// For the locale en_US, the time zone Europe/Berlin, and the empty folder `root` as device root
// with the files of writeSampleFiles.
std::vector<Answer> answers();

// Files below the root's /var/mobile that the answers ask for.
void writeSampleFiles(const std::string& root);

inline void PrintTo(const Answer& answer, std::ostream* out) {
  *out << answer.question;
}

}  // namespace desktop::faces
