// SPDX-License-Identifier: MIT
#include "workers/confinement/call_filter.h"

#include <seccomp.h>

#include <algorithm>
#include <memory>

#include "workers/confinement/call_rules.h"

namespace workers {

namespace {

struct Release {
  void operator()(void* filter) const { seccomp_release(filter); }
};
using Filter = std::unique_ptr<void, Release>;

// A call that this processor does not have is left out.
bool add(const CallRule& rule, const Filter& filter) {
  if (rule.call < 0) return true;
  const auto action =
      rule.refusal == 0 ? SCMP_ACT_ALLOW : SCMP_ACT_ERRNO(static_cast<unsigned>(rule.refusal));
  const scmp_arg_cmp condition{.arg = rule.argument.index,
                               .op = SCMP_CMP_MASKED_EQ,
                               .datum_a = rule.argument.mask,
                               .datum_b = rule.argument.value};
  const unsigned conditions = rule.argument.mask == 0 ? 0 : 1;
  return seccomp_rule_add_array(filter.get(), action, rule.call, conditions, &condition) == 0;
}

}  // namespace

bool filterCalls(bool hasThreads) {
  const Filter filter(seccomp_init(SCMP_ACT_KILL_PROCESS));
  if (!filter ||
      seccomp_attr_set(filter.get(), SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_KILL_PROCESS) != 0)
    return false;
  const bool isMade = std::ranges::all_of(callRules(), [&](const CallRule& rule) {
    return (rule.worker == Worker::withThreads && !hasThreads) || add(rule, filter);
  });
  return isMade && seccomp_load(filter.get()) == 0;
}

}  // namespace workers
