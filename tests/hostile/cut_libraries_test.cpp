// SPDX-License-Identifier: MIT
//
// Modules, workers and extensions that are cut off where something in them begins or ends.
#include <gmock/gmock.h>

#include <filesystem>

#include "tests/hostile/program_run.h"
#include "tests/support/library_cuts.h"

namespace hostile {

namespace {

namespace fs = std::filesystem;
using testing::AnyOf;
using testing::EndsWith;

// The tool as installed, with one file beside its modules that becomes shorter and shorter.
class InstalledTool {
 public:
  explicit InstalledTool(const std::string& file)
      : _file(_folder.file("usr/" MODULE_FOLDER "/" + file)) {
    fs::create_directories(fs::path(_file).parent_path());
    fs::create_directories(_folder.file("usr/bin"));
    fs::copy_file(TOOL_PATH, _folder.file("usr/bin/lumifact"));
    fs::copy_file(MODULES "/" + file, _file);
    for (const std::size_t cut : support::cutsOfLibrary(support::contentsOf(_file)))
      _cuts.insert(_cuts.begin(), cut);
  }

  const std::vector<std::size_t>& cuts() const { return _cuts; }  // the longest first
  RunEnd runCut(std::size_t size, const std::string& arguments) const {
    fs::resize_file(_file, size);
    return runLine("cd $FILES/pairs; exec '" + _folder.file("usr/bin/lumifact") + "' " + arguments);
  }

 private:
  support::TemporaryFolder _folder;
  std::string _file;
  std::vector<std::size_t> _cuts;
};

TEST(CutLibraries, AreNamedByTheToolWhereTheyAreModules) {
  const InstalledTool tool("foundation_locale_data.so");
  EXPECT_GT(tool.cuts().size(), 50U);
  for (const std::size_t cut : tool.cuts()) {
    const RunEnd end = tool.runCut(cut, "report --locale de_DE 'jpg as jpg.jpg'");
    EXPECT_EQ(end.status, 0) << cut;
    EXPECT_THAT(end.output, testing::HasSubstr("PixelWidth = 64")) << cut;
    EXPECT_THAT(end.messages, AnyOf(EndsWith(".so: a shared library that is cut off\n"),
                                    EndsWith(".so: no shared library\n")))
        << cut;
  }
}

// One that lacks only what nobody needs starts.
TEST(CutLibraries, CostTheToolOtherContainersWhereTheyAreReaders) {
  const InstalledTool tool("media_container_reader");
  int refusals = 0;
  for (const std::size_t cut : tool.cuts()) {
    const RunEnd end = tool.runCut(cut, "caption 'avi as avi.avi' 'jpg as jpg.jpg'");
    if (end.status == 0) {
      EXPECT_EQ(end.output, "16x8, \n64x48, jpg\n") << cut;
      EXPECT_EQ(end.messages, "") << cut;
      continue;
    }
    ++refusals;
    EXPECT_EQ(end.output, "64x48, jpg\n") << cut;
    EXPECT_EQ(end.messages, "lumifact: avi as avi.avi: its reader does not start\n") << cut;
  }
  EXPECT_GT(refusals, 20);
}

// Some of the places, as each takes a copy.
TEST(CutLibraries, AreNamedByThePhotoApplicationWhereTheyAreExtensions) {
  const support::TemporaryFolder folder;
  const std::string whole = support::contentsOf(EXTENSIONS_FOLDER "/lumifact.so");
  const auto cuts = support::cutsOfLibrary(whole);
  std::size_t number = 0;
  std::size_t count = 0;
  for (const std::size_t cut : cuts) {
    if (number++ % (cuts.size() / 12) != 0) continue;
    const std::string name = "cut " + std::to_string(++count);
    folder.write("e/" + name + ".so", whole.substr(0, cut));
    fs::copy_file(EXTENSIONS_FOLDER "/lumifact.plist", folder.file("e/" + name + ".plist"));
  }
  folder.write("script", "wait 1\n");
  const RunEnd end =
      runLine("cd '" + folder.path() + "'; exec $HOST --library . --extensions e --script script");
  EXPECT_EQ(end.status, 0);
  const std::vector<std::string> messages = linesOf(end.messages);
  EXPECT_EQ(messages.size(), count);
  for (const std::string& message : messages)
    EXPECT_THAT(message, AnyOf(EndsWith(".so: a shared library that is cut off"),
                               EndsWith(".so: no shared library")));
}

}  // namespace

}  // namespace hostile
