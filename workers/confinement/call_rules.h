// SPDX-License-Identifier: MIT
//
// The system calls that a worker may make: the list, each with its reason. What is not in it ends
// the process.
#pragma once

#include <cstdint>
#include <span>

namespace workers {

// A call is compared with a rule by one of its arguments at most.
struct Argument {
  unsigned index = 0;
  std::uint64_t mask = 0;   // bits that count; none: all arguments will do
  std::uint64_t value = 0;  // of those bits
};

enum class Worker { any, withThreads };

struct CallRule {
  int call;  // as libseccomp numbers it, on this processor
  const char* reason;
  Argument argument = {};  // for others the rule does not hold
  Worker worker = Worker::any;
  int refusal = 0;  // an error that the call answers, 0: the call is made
};

std::span<const CallRule> callRules();

}  // namespace workers
