// SPDX-License-Identifier: MIT
#include "bench/tally.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "model/number_text.h"

namespace bench {

namespace {

double percentOf(std::size_t same, std::size_t compared) {
  return compared == 0 ? 0 : 100.0 * static_cast<double>(same) / static_cast<double>(compared);
}

}  // namespace

bool areNear(double ours, double theirs, double tolerance) {
  return std::abs(ours - theirs) <= tolerance * std::max(std::abs(ours), std::abs(theirs));
}

void Tally::count(bool isSame, const Subject& subject, const std::string& ours,
                  const std::string& theirs) {
  Score& score = _scores[subject.group][subject.key];
  ++score.compared;
  if (isSame) {
    ++score.same;
  } else {
    std::printf("  %s: %s %s: \"%s\", theirs \"%s\"\n", subject.file.c_str(), subject.group.c_str(),
                subject.key.c_str(), ours.c_str(), theirs.c_str());
  }
}

void Tally::compareNumbers(const Subject& subject, double ours, double theirs, double tolerance) {
  count(areNear(ours, theirs, tolerance), subject, model::realText(ours), model::realText(theirs));
}

Tally::Score Tally::scoreOf(const Goal& goal) const {
  Score sum;
  for (const auto& [group, keys] : _scores) {
    if (std::ranges::find(goal.groups, group) == goal.groups.end()) continue;
    for (const auto& [key, score] : keys) {
      sum.compared += score.compared;
      sum.same += score.same;
    }
  }
  return sum;
}

bool Tally::report(const char* what, std::span<const Goal> goals) const {
  std::printf("%s\n", what);
  for (const auto& [group, keys] : _scores) {
    for (const auto& [key, score] : keys)
      std::printf("  %-10s %-30s %6zu of %6zu  %6.2f %%\n", group.c_str(), key.c_str(), score.same,
                  score.compared, percentOf(score.same, score.compared));
  }
  bool areMet = !_scores.empty();
  for (const Goal& goal : goals) {
    const Score score = scoreOf(goal);
    if (score.compared == 0) continue;
    const double percent = percentOf(score.same, score.compared);
    const bool isMet = percent >= goal.percent;
    std::printf("%.*s: %zu of %zu, %.2f %% (goal %.1f %%): %s\n",
                static_cast<int>(goal.name.size()), goal.name.data(), score.same, score.compared,
                percent, goal.percent, isMet ? "met" : "MISSED");
    areMet &= isMet;
  }
  return areMet;
}

}  // namespace bench
