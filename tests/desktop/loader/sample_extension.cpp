// SPDX-License-Identifier: MIT
//
// The smallest extension: notes in the environment that its initialiser ran, and how often.
#include <cstdlib>
#include <string>

namespace {

__attribute__((constructor)) void initialise() {
  const char* before = std::getenv("SAMPLE_EXTENSION_RUNS");
  const int runs = before ? std::atoi(before) : 0;
  setenv("SAMPLE_EXTENSION_RUNS", std::to_string(runs + 1).c_str(), 1);
}

}  // namespace
