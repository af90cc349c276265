// SPDX-License-Identifier: MIT
//
// The whole road, from a file on disk to the text on screen: the application shows what the
// command-line tool prints, for every photo and video of the sample library.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "tests/apps/photohost/host_run.h"

namespace photohost {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> albums() {
  std::vector<std::string> folders;
  for (const auto& entry : fs::directory_iterator(sampleLibrary()))
    if (entry.is_directory()) folders.push_back(entry.path());
  std::ranges::sort(folders);
  return folders;
}

// The film of a Live Photo lies beside its still.
bool isFilm(const fs::path& file) {
  return file.extension() == ".MOV" && fs::exists(fs::path(file).replace_extension(".HEIC"));
}

// What opens each item of a folder, in the library's order; a film is reached from its still.
std::vector<std::string> waysToItems(const std::string& folder) {
  std::vector<std::pair<fs::file_time_type, fs::path>> files;
  for (const auto& entry : fs::directory_iterator(folder))
    if (entry.path().filename().native().front() != '.' && !isFilm(entry.path()))
      files.emplace_back(entry.last_write_time(), entry.path());
  std::ranges::sort(files);
  std::vector<std::string> ways;
  for (std::size_t item = 0; item < files.size(); ++item) {
    const std::string open = "open item " + std::to_string(item) + "\nwait 1\n";
    ways.push_back(open);
    const fs::path film = fs::path(files[item].second).replace_extension(".MOV");
    if (fs::exists(film) && isFilm(film)) ways.push_back(open + "tap \"Live Photo\"\nwait 1\n");
  }
  return ways;
}

// Opens the details of every item, and dumps each page under its number.
std::string scriptFor(const std::vector<std::string>& ways, int viewType) {
  std::string script = setting("viewType " + std::to_string(viewType));
  for (std::size_t item = 0; item < ways.size(); ++item)
    script += ways[item] + pressInfo + "dump " + std::to_string(item) +
              ".json\ntap \"Dismiss\"\nwait 1\nback\nwait 1\n";
  return script;
}

std::string textOnScreen(const Json& page) {
  const auto views = nodesOfClass(page, "UITextView");
  return views.size() == 1 ? views[0]["text"].get<std::string>() : "";
}

// The file that a page is about: its first line, or its first row.
std::string pathOnScreen(const Json& page) {
  const std::string text = textOnScreen(page);
  if (!text.empty()) return text.substr(0, text.find('\n'));
  const auto cells = nodesOfClass(page, "UITableViewCell");
  return cells.empty() ? "" : cells[0]["detail"].get<std::string>();
}

std::string reportOf(const std::string& path) {
  const Json report = Json::parse(toolOutput("report --json '" + path + "'"));
  return report["header"].get<std::string>() + report["text"].get<std::string>();
}

void compareTexts(const std::string& folder) {
  Host host;
  host.library(folder);
  const auto ways = waysToItems(folder);
  host.run(scriptFor(ways, 1));
  for (std::size_t item = 0; item < ways.size(); ++item) {
    const Json page = host.dumped(std::to_string(item));
    const std::string path = pathOnScreen(page);
    ASSERT_TRUE(fs::exists(path)) << "item " << item << ": " << path;
    EXPECT_EQ(isFilm(path), ways[item].find("Live Photo") != std::string::npos) << path;
    EXPECT_EQ(textOnScreen(page), reportOf(path)) << path;
  }
}

TEST(WholeRoad, TheTextOnScreenIsTheToolsReport) {
  for (const std::string& folder : albums()) compareTexts(folder);
}

// What a row shows of a value: nothing of containers.
std::string shownValue(const Json& value) {
  if (value.is_string()) return value;
  if (value.is_number_integer()) return std::to_string(value.get<long>());
  return "";
}

void compareTables(const std::string& folder) {
  Host host;
  host.library(folder).size(375, 4'000);
  const auto ways = waysToItems(folder);
  host.run(scriptFor(ways, 2));
  for (std::size_t item = 0; item < ways.size(); ++item) {
    const Json page = host.dumped(std::to_string(item));
    const std::string path = pathOnScreen(page);
    ASSERT_TRUE(fs::exists(path)) << "item " << item << ": " << path;
    const Json report = Json::parse(toolOutput("report --json '" + path + "'"));
    if (report["table"].is_null()) {
      EXPECT_EQ(textOnScreen(page), reportOf(path)) << path;
      continue;
    }
    std::map<std::string, Json> rows;
    for (const Json& cell : nodesOfClass(page, "UITableViewCell")) rows[cell["text"]] = cell;
    for (const auto& [key, value] : report["table"].items()) {
      ASSERT_TRUE(rows.contains(key)) << path << " " << key;
      EXPECT_EQ(rows[key]["accessory"], value.is_structured() && !value.contains("$data") &&
                                                !value.contains("$date") && !value.contains("$real")
                                            ? 1
                                            : 0)
          << path << " " << key;
      const std::string shown = shownValue(value);
      if (!shown.empty()) {
        EXPECT_EQ(rows[key]["detail"], shown) << path << " " << key;
      }
    }
    EXPECT_EQ(rows.size(), report["table"].size() + 5) << path;
  }
}

TEST(WholeRoad, TheTableOnScreenIsTheToolsTable) {
  for (const std::string& folder : albums()) compareTables(folder);
}

}  // namespace
}  // namespace photohost
