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

// A library of files that are elsewhere, empty or cut off.
class OddFiles {
 public:
  OddFiles() {
    fs::create_directories(_folder.file("library"));
    copy("Coast/Lighthouse.jpg", "elsewhere.jpg");
    copy("100APPLE/IMG_0016.MOV", "elsewhere.mov");
    fs::create_symlink("../elsewhere.jpg", file("link.jpg"));
    fs::create_symlink("../elsewhere.mov", file("link.mov"));
    cut("Shared trip/Trail.mp4", "cut.mp4", 2500);
    cut("Coast/Lighthouse.jpg", "cut.jpg", 100);
    cut("100APPLE/IMG_0016.MOV", "cut.mov", 5000);
    cut("100APPLE/IMG_0016.MOV", "empty.mov", 0);
    cut("Coast/Lighthouse.jpg", "empty.jpg", 0);
    // The order of a library is that of dates, then of names.
    for (const auto& entry : fs::directory_iterator(path())) fs::last_write_time(entry.path(), {});
  }

  std::string path() const { return _folder.file("library"); }
  std::string file(const std::string& name) const { return path() + "/" + name; }

 private:
  void copy(const std::string& sample, const std::string& name) const {
    fs::copy_file(sampleLibrary() + "/" + sample, _folder.file(name));
  }
  void cut(const std::string& sample, const std::string& name, std::uintmax_t size) const {
    copy(sample, "library/" + name);
    fs::resize_file(file(name), size);
  }

  support::TemporaryFolder _folder;
};

// What the tool says of a file that it cannot read, or not read whole.
std::string reasonOf(const std::string& path) {
  const std::string message = toolMessages("report '" + path + "'");
  const std::string start = "lumifact: " + path + ": ";
  EXPECT_TRUE(message.starts_with(start)) << message;
  return message.substr(start.size(), message.find('\n') - start.size());
}

TEST(WholeRoad, LinksAndFilesThatAreCutSayTheSameInBoth) {
  const OddFiles files;
  const std::vector<std::string> names = {"cut.jpg",   "cut.mov",  "cut.mp4", "empty.jpg",
                                          "empty.mov", "link.jpg", "link.mov"};
  std::string script = setting("viewType 1");
  for (std::size_t item = 0; item < names.size(); ++item)
    script += "open item " + std::to_string(item) + "\nwait 3\ndump " + names[item] + ".json\n" +
              "back\nwait 1\n";
  for (const std::string item : {"2", "5", "6"})
    script += "open item " + item + "\nwait 1\n" + pressInfo + "dump details" + item +
              ".json\ntap \"Dismiss\"\nwait 1\nback\nwait 1\n";
  Host host;
  host.library(files.path());
  host.run(script);
  for (const std::string name : {"cut.jpg", "cut.mov", "cut.mp4", "empty.jpg", "empty.mov"}) {
    const auto texts = textsOf(host.dumped(name));
    const std::string reason = reasonOf(files.file(name));
    EXPECT_TRUE(std::ranges::any_of(texts,
                                    [&](const std::string& text) {
                                      return text.starts_with(name + "\ncannot be shown: ") &&
                                             text.ends_with(reason);
                                    }))
        << name << ": " << reason << ", " << Json(texts).dump();
  }
  for (const std::string item : {"2", "5", "6"}) {
    const std::string path = files.file(names[std::stoul(item)]);
    const Json details = host.dumped("details" + item);
    EXPECT_EQ(textOnScreen(details), reportOf(path)) << path;
    EXPECT_EQ(pathOnScreen(details), fs::canonical(path)) << path;
  }
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
