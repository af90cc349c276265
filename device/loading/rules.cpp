// SPDX-License-Identifier: MIT
#include "device/loading/rules.h"

namespace device::loading {
namespace {

constexpr Rule table[] = {
    {"header.kind", header_rules::kind},
    {"header.load-commands", header_rules::loadCommands},
    {"segments.text", segment_rules::text},
    {"segments.link-edit", segment_rules::linkEdit},
    {"segments.file-ranges", segment_rules::fileRanges},
    {"segments.address-ranges", segment_rules::addressRanges},
    {"segments.sections", segment_rules::sections},
    {"link-edit.form", link_edit_rules::form},
    {"link-edit.place", link_edit_rules::place},
    {"link-edit.order", link_edit_rules::order},
    {"link-edit.alignment", link_edit_rules::alignment},
    {"fixups.rebases", fixup_rules::rebases},
    {"fixups.binds", fixup_rules::binds},
    {"fixups.ordinals", fixup_rules::ordinals},
    {"identity.name", identity_rules::name},
    {"identity.system", identity_rules::system},
    {"identity.encryption", identity_rules::encryption},
    {"identity.required-versions", identity_rules::requiredVersions},
    {"signature.place", signature_rules::place},
    {"signature.directory", signature_rules::directory},
    {"signature.hashes", signature_rules::hashes},
};

}  // namespace

std::span<const Rule> allRules() {
  return table;
}

std::vector<Refusal> refusalsOf(const Subject& subject) {
  std::vector<Refusal> refusals;
  for (const Rule& rule : table)
    if (Problem problem = rule.problem(subject); !problem.empty())
      refusals.push_back({rule.name, std::move(problem)});
  return refusals;
}

}  // namespace device::loading
