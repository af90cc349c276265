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

int itemsIn(const std::string& folder) {
  int count = 0;
  for (const auto& entry : fs::directory_iterator(folder))
    count += entry.path().filename().native().front() != '.';
  return count;
}

// Opens the details of every item, and dumps each page under its number.
std::string scriptFor(int items, int viewType) {
  std::string script = "preference net.korvu.lumifact viewType " + std::to_string(viewType) +
                       "\nnotify net.korvu.lumifact/preferences\n";
  for (int item = 0; item < items; ++item)
    script += "open item " + std::to_string(item) + "\nwait 1\n" + pressInfo + "dump " +
              std::to_string(item) + ".json\ntap \"Dismiss\"\nwait 1\nback\nwait 1\n";
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
  const int items = itemsIn(folder);
  host.run(scriptFor(items, 1));
  for (int item = 0; item < items; ++item) {
    const Json page = host.dumped(std::to_string(item));
    const std::string path = pathOnScreen(page);
    ASSERT_TRUE(fs::exists(path)) << "item " << item << ": " << path;
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
  const int items = itemsIn(folder);
  host.run(scriptFor(items, 2));
  for (int item = 0; item < items; ++item) {
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
