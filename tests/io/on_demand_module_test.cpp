// SPDX-License-Identifier: MIT
#include "io/on_demand_module.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/temporary_folder.h"

namespace io {
namespace {

using support::TemporaryFolder;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char* moduleFunction = "desktopLocaleData";

std::string reasonOf(const std::string& path, const char* function = moduleFunction) {
  const auto found = functionOfModuleAt(path, function);
  return found ? "found" : found.error().reason;
}

// The module as one of a version that begins with another digit.
std::string moduleOfAnotherVersion() {
  std::string bytes = support::contentsOf(MODULE);
  const std::string note = std::string("desktop-module\0\0", 16) + VERSION;
  const std::size_t place = bytes.find(note);
  EXPECT_NE(place, std::string::npos);
  bytes[place + 16] = '9';
  return bytes;
}

TEST(OnDemandModule, AModuleThatIsNotInstalledHasNoFunctionAndIsToldOnce) {
  takeModuleProblems();
  EXPECT_EQ(functionOfModule("no_such_module.so", "function"), nullptr);
  EXPECT_EQ(functionOfModule("no_such_module.so", "other"), nullptr);
  EXPECT_THAT(takeModuleProblems(), ElementsAre("no_such_module.so: not installed"));
  EXPECT_EQ(functionOfModule("no_such_module.so", "function"), nullptr);
  EXPECT_THAT(takeModuleProblems(), IsEmpty());
}

TEST(OnDemandModule, AModuleOfTheProgramsOwnTreeIsMapped) {
  takeModuleProblems();
  const std::string name = std::filesystem::path(MODULE).filename();
  EXPECT_NE(functionOfModule(name, moduleFunction), nullptr);
  EXPECT_THAT(takeModuleProblems(), IsEmpty());
  EXPECT_EQ(functionOfModule(name, "noSuchFunction"), nullptr);
  EXPECT_THAT(takeModuleProblems(), ElementsAre(HasSubstr("noSuchFunction")));
}

TEST(OnDemandModule, AModuleOfAnotherVersionIsRefused) {
  const TemporaryFolder folder;
  const std::string path = folder.write("module.so", moduleOfAnotherVersion());
  EXPECT_THAT(reasonOf(path), HasSubstr("a module of version 9"));
  EXPECT_THAT(reasonOf(path), HasSubstr(std::string("not ") + VERSION));
}

TEST(OnDemandModule, WhatIsNoModuleIsRefused) {
  const TemporaryFolder folder;
  std::string bytes = support::contentsOf(MODULE);
  bytes[bytes.find("desktop-module")] = 'X';
  EXPECT_EQ(reasonOf(folder.write("library.so", bytes)), "no module of ours");
  EXPECT_EQ(reasonOf(folder.write("text.so", "text")), "no shared library");
  EXPECT_EQ(reasonOf(folder.file("none.so")), "No such file or directory");
  EXPECT_EQ(reasonOf(folder.path()), "Is a directory");
}

}  // namespace
}  // namespace io
