// SPDX-License-Identifier: MIT
//
// Every kind of content under the name of every other kind: what counts is what is in the file.
#include <gmock/gmock.h>

#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "tests/hostile/limits.h"
#include "tests/hostile/program_run.h"

namespace hostile {

namespace {

using Json = nlohmann::json;

std::string contentOf(const std::string& name) {
  return name.substr(0, name.find(" as "));
}

// What is said of a file, its name apart.
std::string withoutName(Json report) {
  report.erase("path");
  const std::string header = report["header"];
  report["header"] = header.substr(header.find('\n'));
  return report.dump();
}

TEST(WrongNames, ChangeNoReport) {
  const RunEnd end = runLine("exec $TOOL report --json -r $FILES/pairs; true");
  std::map<std::string, std::set<std::string>> reports;
  for (const std::string& line : linesOf(end.output)) {
    const Json report = Json::parse(line);
    const std::string path = report["path"];
    reports[contentOf(path.substr(path.rfind('/') + 1))].insert(withoutName(report));
  }
  EXPECT_EQ(reports.size(), 12U) << "all but texts and nothing";
  for (const auto& [content, different] : reports)
    EXPECT_EQ(different.size(), 1U) << content << ": " << testing::PrintToString(different);
}

TEST(WrongNames, AreNamedWithAReasonWhereTheyHoldNoPicture) {
  const RunEnd end = runLine("cd $FILES/pairs; $TOOL caption --jobs 4 *; true");
  const std::size_t names = namesIn(hostileFile("pairs")).size();
  EXPECT_EQ(linesOf(end.output).size() + linesOf(end.messages).size(), names);
  for (const std::string& line : linesOf(end.messages)) {
    const std::string content = line.substr(std::string("lumifact: ").size(), 3);
    const std::string reason = content == "emp" ? "empty file" : "not a photo or video";
    EXPECT_THAT((std::set<std::string>{"emp", "pli", "txt"}), testing::Contains(content)) << line;
    EXPECT_THAT(line, testing::EndsWith(": " + reason));
  }
  expectWithin(end, toolKilobytes);
  expectToolSeconds(end.processorSeconds, names);
}

// How many items the photo application sees in a folder.
int itemsOf(const std::string& library) {
  const RunEnd end = runLine(showing(library, "open item 100000\n"));
  const std::size_t place = end.messages.rfind("among ");
  return place == std::string::npos ? 0 : std::stoi(end.messages.substr(place + 6));
}

TEST(WrongNames, AreShownOneByOne) {
  const std::string folder = hostileFile("pairs");
  const int items = itemsOf(folder);
  EXPECT_GE(items, 12 * 12);
  std::string script;
  for (int item = 0; item < items; ++item) {
    script += "open item " + std::to_string(item) + "\n";
    for (const char* failure : {"the decoder", "its reader", "too long"})
      script += "expect-not \"" + std::string(failure) + "\"\n";
    script += "back\n";
  }
  const RunEnd end = runLine(showing(folder, script));
  EXPECT_EQ(end.status, 0) << end.messages;
  EXPECT_EQ(end.messages, "");
  expectWithin(end, hostKilobytes);
}

}  // namespace

}  // namespace hostile
