// SPDX-License-Identifier: MIT
#include "device/loading/rules.h"

namespace device::loading::identity_rules {
namespace {

constexpr std::uint32_t phone = 2;
constexpr std::uint32_t version12 = 12 << 16;

bool isForPhone(const Command& command) {
  return command.kind == CommandKind::minimumOfPhone ||
         (command.kind == CommandKind::buildVersion && command.word(8) == phone);
}

std::uint32_t minimumOf(const Command& command) {
  return command.word(command.kind == CommandKind::buildVersion ? 12 : 8);
}

bool isEncrypted(const Command& command) {
  return (command.kind == CommandKind::encryption || command.kind == CommandKind::encryption64) &&
         command.word(16) != 0;
}

Problem problemOf(const Dependency& dependency, const LibraryVersions& versions) {
  const auto found = versions.find(dependency.name);
  if (found == versions.end()) return dependency.name + " has no stated version";
  if (dependency.compatibility <= found->second) return {};
  return dependency.name + " is required in version " + versionText(dependency.compatibility) +
         " where the phone has " + versionText(found->second);
}

}  // namespace

Problem name(const Subject& subject) {
  return subject.library.all(CommandKind::libraryIdentity).size() == 1 ? "" : "it has no name";
}

Problem system(const Subject& subject) {
  for (const Command& command : subject.library.commands)
    if (isForPhone(command))
      return minimumOf(command) <= version12 ? "" : "it wants a newer system than iOS 12.0";
  return "it is not for iOS";
}

Problem encryption(const Subject& subject) {
  for (const Command& command : subject.library.commands)
    if (isEncrypted(command)) return "it says that it is encrypted";
  return {};
}

Problem requiredVersions(const Subject& subject) {
  for (const Dependency& dependency : subject.library.dependencies)
    if (Problem problem = problemOf(dependency, subject.versions); !problem.empty()) return problem;
  return {};
}

}  // namespace device::loading::identity_rules
