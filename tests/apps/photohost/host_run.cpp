// SPDX-License-Identifier: MIT
#include "tests/apps/photohost/host_run.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

namespace photohost {
namespace {

using support::contentsOf;

std::string inQuotes(const std::string& text) {
  return "'" + text + "'";
}

// A plain environment, so that texts are those of en_US and UTC and nothing of the user is used.
std::string plainEnvironment(const std::string& folder) {
  return "cd " + inQuotes(folder) + " && env -i PATH=/usr/bin:/bin HOME=" + inQuotes(folder) +
         " XDG_RUNTIME_DIR=" + inQuotes(folder) + " TZ=UTC ASAN_OPTIONS=detect_leaks=0 ";
}

void visit(const Json& node, const auto& use) {
  if (!node.is_object()) return;
  use(node);
  if (node.contains("children"))
    for (const Json& child : node["children"]) visit(child, use);
}

}  // namespace

Host::Host() : _library(sampleLibrary()) {}

Host& Host::withoutExtensions() {
  _hasExtensions = false;
  return *this;
}

Host& Host::library(std::string folder) {
  _library = std::move(folder);
  return *this;
}

Host& Host::size(int width, int height) {
  _size = std::to_string(width) + "x" + std::to_string(height);
  return *this;
}

Host& Host::fileLimit(int blocks) {
  _limits = "ulimit -f " + std::to_string(blocks) + " && ";
  return *this;
}

HostResult Host::tryToRun(const std::string& script, const std::string& options) {
  _folder.write("script", script);
  std::string command = _limits + plainEnvironment(_folder.path()) + inQuotes(PHOTOHOST_PATH) +
                        " --root " + inQuotes(root()) + " --library " + inQuotes(_library);
  if (_hasExtensions) command += " --extensions " + inQuotes(EXTENSIONS_FOLDER);
  if (!_size.empty()) command += " --size " + _size;
  command += " --headless --script script " + options + " >output 2>messages";
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status),
          contentsOf(_folder.file("output")), contentsOf(_folder.file("messages"))};
}

HostResult Host::run(const std::string& script) {
  HostResult result = tryToRun(script);
  EXPECT_EQ(result.status, 0) << script << result.messages;
  return result;
}

Json Host::dumped(const std::string& name) const {
  const std::string text = contentsOf(_folder.file(name + ".json"));
  const Json json = Json::parse(text, nullptr, false);
  EXPECT_FALSE(json.is_discarded()) << name << ": " << text.substr(0, 200);
  return json;
}

std::string setting(const std::string& keyAndValue) {
  return "preference net.korvu.lumifact " + keyAndValue +
         "\nnotify net.korvu.lumifact/preferences\n";
}

std::string sampleLibrary() {
  return SAMPLE_LIBRARY;
}

std::string toolOutput(const std::string& arguments) {
  const support::TemporaryFolder folder;
  const std::string command =
      plainEnvironment(folder.path()) + inQuotes(TOOL_PATH) + " " + arguments + " >output";
  EXPECT_EQ(std::system(command.c_str()), 0) << command;
  return contentsOf(folder.file("output"));
}

std::string toolMessages(const std::string& arguments) {
  const support::TemporaryFolder folder;
  const std::string command = plainEnvironment(folder.path()) + inQuotes(TOOL_PATH) + " " +
                              arguments + " >output 2>messages";
  EXPECT_NE(std::system(command.c_str()), -1) << command;
  return contentsOf(folder.file("messages"));
}

bool toolBrowses(const std::string& folder) {
  const support::TemporaryFolder home;
  const std::string command = plainEnvironment(home.path()) +
                              "QT_QPA_PLATFORM=offscreen timeout 3 " + inQuotes(TOOL_PATH) +
                              " browse --root root " + inQuotes(folder) + " >output 2>&1";
  const int status = std::system(command.c_str());
  constexpr int ranOutOfTime = 124;  // what timeout says of it
  EXPECT_EQ(contentsOf(home.file("output")), "");
  return WIFEXITED(status) && WEXITSTATUS(status) == ranOutOfTime;
}

std::vector<Json> nodesOfClass(const Json& screen, const std::string& className) {
  std::vector<Json> found;
  visit(screen["view"], [&](const Json& node) {
    if (node["class"] == className) found.push_back(node);
  });
  return found;
}

std::vector<std::string> textsOf(const Json& screen) {
  std::vector<std::string> found;
  visit(screen["view"], [&](const Json& node) {
    if (node.contains("text")) found.push_back(node["text"]);
  });
  return found;
}

int customButtons(const Json& screen) {
  int count = 0;
  for (const Json& item : screen["navigation"]["right"])
    count += item.contains("view") && item["view"]["class"] == "UIButton";
  return count;
}

}  // namespace photohost
