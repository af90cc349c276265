// SPDX-License-Identifier: MIT
//
// Running another program and reading what it says.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "model/value.h"

namespace bench {

// Whether a program of that name is on the PATH.
bool isInstalled(const std::string& program);

// What the program wrote to its standard output, its messages dropped; none where it cannot be
// started. The first argument is the program's name.
std::optional<std::string> outputOf(const std::vector<std::string>& arguments);

// JSON as a value; null where it does not parse.
model::Value parseJson(const std::string& text);

// A tally of compared values.
class Tally {
 public:
  // Counts the pair; where the two differ, prints "FILE: NAME: OURS, theirs THEIRS".
  void compare(const std::string& file, const std::string& name, const std::string& ours,
               const std::string& theirs);
  // Numbers that agree within the share of the larger one count as equal.
  void compareNumbers(const std::string& file, const std::string& name, double ours, double theirs,
                      double tolerance);

  // Prints share, goal and verdict; whether the goal is met. Nothing compared is a failure.
  bool report(const char* what, double goalPercent) const;

 private:
  void count(bool equal, const std::string& file, const std::string& name, const std::string& ours,
             const std::string& theirs);

  std::size_t _compared = 0;
  std::size_t _equal = 0;
};

}  // namespace bench
