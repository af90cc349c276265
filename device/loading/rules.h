// SPDX-License-Identifier: MIT
//
// The rules by which the loader of iOS 12 takes a library or refuses it, as its published source
// states them. Where that leaves a choice our linker's habit is the rule, so that a change of it is
// seen.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "device/loading/library_versions.h"
#include "device/loading/mach_library.h"

namespace device::loading {

struct Subject {
  const MachLibrary& library;
  const LibraryVersions& versions;  // of the libraries that the phone has
};

// What breaks a rule; empty where nothing does.
using Problem = std::string;

struct Rule {
  std::string_view name;
  Problem (*problem)(const Subject&);
};

// Every rule, each name once. A subject's rules stand in the source named after it.
std::span<const Rule> allRules();

namespace header_rules {
Problem kind(const Subject& subject);
Problem loadCommands(const Subject& subject);
}  // namespace header_rules

namespace segment_rules {
Problem text(const Subject& subject);
Problem linkEdit(const Subject& subject);
Problem fileRanges(const Subject& subject);
Problem addressRanges(const Subject& subject);
Problem sections(const Subject& subject);
}  // namespace segment_rules

namespace link_edit_rules {
Problem form(const Subject& subject);
Problem place(const Subject& subject);
Problem order(const Subject& subject);
Problem alignment(const Subject& subject);
}  // namespace link_edit_rules

namespace fixup_rules {
Problem rebases(const Subject& subject);
Problem binds(const Subject& subject);
Problem ordinals(const Subject& subject);
}  // namespace fixup_rules

namespace identity_rules {
Problem name(const Subject& subject);
Problem system(const Subject& subject);
Problem encryption(const Subject& subject);
Problem requiredVersions(const Subject& subject);
}  // namespace identity_rules

namespace signature_rules {
Problem place(const Subject& subject);
Problem directory(const Subject& subject);
Problem hashes(const Subject& subject);
}  // namespace signature_rules

struct Refusal {
  std::string_view rule;
  std::string reason;
};

// Each rule that is broken, with what breaks it first.
std::vector<Refusal> refusalsOf(const Subject& subject);

}  // namespace device::loading
