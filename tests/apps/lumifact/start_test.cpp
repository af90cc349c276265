// SPDX-License-Identifier: MIT
//
// What the tool needs before it can start, and how it does without what is mapped later.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/apps/lumifact/sample_folder.h"
#include "tests/apps/lumifact/tool_runner.h"

namespace lumifact::tool {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::Not;

// The dynamic loader lists a program's libraries instead of running it.
TEST(Start, MapsNoLibraryThatOnlySomeRunsNeed) {
  const ToolResult listed =
      runTool(ToolRun{.arguments = {}, .variables = {{"LD_TRACE_LOADED_OBJECTS", "1"}}});
  ASSERT_THAT(listed.output, HasSubstr("libc.so")) << listed.messages;
  for (const char* library : {"libicu", "libav", "libobjc", "libgnustep", "libQt"}) {
    EXPECT_THAT(listed.output, Not(HasSubstr(library)));
  }
}

TEST(Start, WithoutTheModuleOfLocalesTextsAreAmerican) {
  const SampleFolder samples;
  const ToolResult result =
      runShell("cp \"$TOOL\" " + samples.path() + "/alone && " + samples.path() +
               "/alone report --locale de_DE " + samples.plain);
  EXPECT_EQ(result.status, 0) << result.messages;
  EXPECT_EQ(result.output, runTool({"report", samples.plain}).output);
  EXPECT_EQ(result.messages, "lumifact: foundation_locale_data.so: not installed\n");
}

// A tree of folders with a copy of the tool in one, and what lies around it.
class PlantedTree {
 public:
  explicit PlantedTree(const std::string& folderOfTool) : _tool(_samples.file(folderOfTool)) {
    fs::create_directories(_tool);
    fs::copy_file(TOOL_PATH, _tool + "/lumifact");
  }

  void plant(const std::string& name, const fs::path& file) const {
    fs::create_directories(fs::path(_samples.file(name)).parent_path());
    fs::copy_file(file, _samples.file(name));
  }
  ToolResult run(const std::string& arguments) const {
    return runShell("cd " + _samples.path() + " && " + _tool + "/lumifact " + arguments);
  }
  const SampleFolder& samples() const { return _samples; }

 private:
  SampleFolder _samples;
  std::string _tool;
};

constexpr const char* moduleName = "lib/desktop-modules/foundation_locale_data.so";

TEST(Start, AModuleIsTakenFromTheToolsOwnTree) {
  const PlantedTree tree("usr/bin");
  tree.plant(std::string("usr/") + moduleName, MODULE);
  const ToolResult result = tree.run("report --locale de_DE plain.jpg");
  EXPECT_EQ(result.messages, "");
  EXPECT_THAT(result.output, HasSubstr("02.01.2020"));
}

TEST(Start, AModuleIsNotTakenFromFoldersAboveTheTool) {
  for (const char* folder : {"apps/lumifact", "home/bin/tools", "tool", "usr/sbin"}) {
    const PlantedTree tree(folder);
    for (const char* place : {"", "apps/", "home/", "home/bin/", "usr/", "tool/"})
      tree.plant(std::string(place) + moduleName, MODULE);
    const ToolResult result = tree.run("report --locale de_DE plain.jpg");
    EXPECT_EQ(result.messages, "lumifact: foundation_locale_data.so: not installed\n") << folder;
    EXPECT_THAT(result.output, Not(HasSubstr("02.01.2020"))) << folder;
  }
}

TEST(Start, AModuleThatIsCutOffIsToldAndLeftAlone) {
  const PlantedTree tree("usr/bin");
  const std::string module = std::string("usr/") + moduleName;
  tree.plant(module, MODULE);
  fs::resize_file(tree.samples().file(module), 4096);
  const ToolResult result = tree.run("report --locale de_DE plain.jpg");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.messages,
            "lumifact: " + tree.samples().file(module) + ": a shared library that is cut off\n");
}

TEST(Start, ThePhotoApplicationIsNotTakenFromFoldersAboveTheTool) {
  for (const char* folder : {"a/b", "tool"}) {
    const PlantedTree tree(folder);
    const std::string script = tree.samples().write("script", "#!/bin/sh\necho planted\n");
    fs::permissions(script, fs::perms::owner_all);
    for (const char* place : {"photohost", "bin/photohost", "apps/photohost/photohost",
                              "a/photohost", "a/b/photohost", "tool/photohost"})
      tree.plant(place, script);
    tree.plant("extensions/lumifact.so", script);
    const ToolResult result = tree.run("browse");
    EXPECT_EQ(result.output, "") << folder;
    EXPECT_EQ(result.messages, "lumifact: photohost: the photo application is missing\n");
  }
}

}  // namespace
}  // namespace lumifact::tool
