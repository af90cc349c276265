// SPDX-License-Identifier: MIT
//
// How many values agree with another reader's, key by key.
#pragma once

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace bench {

// What was compared: a key of a group.
struct Subject {
  std::string file;
  std::string group;
  std::string key;
};

// The share of a list of groups, taken together, that is to agree.
struct Goal {
  std::string_view name;
  std::span<const std::string_view> groups;
  double percent;
};

// Numbers that differ by no more than this share of the larger one.
bool areNear(double ours, double theirs, double tolerance);

class Tally {
 public:
  // Counts a pair; one that differs is printed: "FILE: GROUP KEY: OURS, theirs THEIRS".
  void count(bool isSame, const Subject& subject, const std::string& ours,
             const std::string& theirs);
  void compareNumbers(const Subject& subject, double ours, double theirs, double tolerance);

  // Prints the rate of each key, and each goal with its verdict; whether all goals are met that
  // something was compared for. Nothing compared at all is a failure.
  bool report(const char* what, std::span<const Goal> goals) const;

 private:
  struct Score {
    std::size_t compared = 0;
    std::size_t same = 0;
  };
  Score scoreOf(const Goal& goal) const;

  std::map<std::string, std::map<std::string, Score>> _scores;  // by group and key
};

}  // namespace bench
