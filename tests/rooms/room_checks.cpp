// SPDX-License-Identifier: MIT
#include "tests/rooms/room_checks.h"

#include <algorithm>
#include <cctype>

#include "tests/rooms/circles.h"

namespace rooms {

namespace {

constexpr std::string_view namelessFolders[] = {"apps/photohost", "desktop", "foundation", "io",
                                                "media"};
constexpr int filesOfFolder = 30;
constexpr std::size_t linesOfShortSource = 150;
constexpr int linesOfOpening = 2;

std::string joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text.empty() ? "nothing" : text;
}

// Where a file's folder stands in the room's order, by the outermost folder's name.
auto placeOf(const Room& room, std::string_view path) {
  const std::string folder = folderOf(path);
  return std::ranges::find_if(room.order, [&](const std::string& name) {
    return name == "." ? folder == room.folder : liesIn(folder, room.folder + "/" + name);
  });
}

std::string wrongOrder(const Room& room, const std::string& from, const std::string& to) {
  const auto here = placeOf(room, from);
  const auto there = placeOf(room, to);
  if (room.order.empty() || there <= here) return {};
  return from + " includes " + to + ": the order of " + room.folder + " is " + joined(room.order);
}

std::string wrongRoom(const Room& room, const std::string& from, const std::string& to) {
  const bool isAllowed = std::ranges::any_of(
      room.mayInclude, [&](const std::string& place) { return liesIn(to, place); });
  if (isAllowed) return {};
  return from + " includes " + to + ": " + room.name + " may include " + joined(room.mayInclude);
}

std::string lowerCase(std::string text) {
  std::ranges::transform(text, text.begin(), [](unsigned char letter) {
    return static_cast<char>(std::tolower(letter));
  });
  return text;
}

bool matches(std::string_view pattern, std::string_view text) {
  if (pattern.empty()) return text.empty();
  if (pattern.front() != '*')
    return !text.empty() && pattern.front() == text.front() &&
           matches(pattern.substr(1), text.substr(1));
  return matches(pattern.substr(1), text) || (!text.empty() && matches(pattern, text.substr(1)));
}

// What stands between backticks, one word a name, each without its folder.
std::vector<std::string> namesIn(const std::string& readme) {
  std::vector<std::string> names;
  std::string name;
  bool isQuoted = false;
  for (const char letter : readme) {
    if (letter == '`' || letter == ' ' || letter == ',' || letter == '\n') {
      if (isQuoted && !name.empty()) names.emplace_back(nameOf(name));
      name.clear();
      if (letter == '`') isQuoted = !isQuoted;
    } else {
      name += letter;
    }
  }
  return names;
}

bool isNamed(std::string_view file, const std::vector<std::string>& names) {
  return std::ranges::any_of(names, [&](std::string_view name) {
    return name != "*" && name != ".*" && (matches(name, file) || matches(name, unitOf(file)));
  });
}

// The folder of the README that stands for a file; empty where only the root's is left.
std::string describedIn(const SourceTree& tree, const std::string& path) {
  std::string folder = folderOf(path);
  while (!folder.empty() && !tree.contains(folder + "/README.md")) folder = folderOf(folder);
  return folder;
}

bool speaksForItself(std::string_view path) {
  return nameOf(path) == "README.md" || nameOf(path) == "CMakeLists.txt";
}

// The comment before the first line of code, the licence apart; includes may stand in between.
int openingLines(const std::vector<std::string>& lines) {
  int count = 0;
  for (const std::string& line : lines) {
    if (line.starts_with("// ") && !line.starts_with("// SPDX"))
      ++count;
    else if (!line.empty() && !line.starts_with("//") && !line.starts_with('#'))
      break;
  }
  return count;
}

}  // namespace

Offences forbiddenIncludes(const SourceTree& tree, const std::vector<Room>& rooms) {
  Offences offences;
  for (const auto& [path, text] : tree) {
    const Room* room = isSource(path) ? roomOf(rooms, path) : nullptr;
    if (room == nullptr) continue;
    for (const std::string& included : includesOf(text)) {
      if (!tree.contains(included))
        continue;  // a file of the platform's folder, or made by the build
      const bool isOwn = roomOf(rooms, included) == room;
      const std::string offence =
          isOwn ? wrongOrder(*room, path, included) : wrongRoom(*room, path, included);
      if (!offence.empty()) offences.push_back(offence);
    }
  }
  return offences;
}

Offences circlesOfFiles(const SourceTree& tree) {
  Graph graph;
  for (const auto& [path, text] : tree) {
    if (!isSource(path)) continue;
    for (const std::string& included : includesOf(text))
      if (tree.contains(included)) graph[unitOf(path)].insert(unitOf(included));
  }
  Offences offences;
  for (const auto& [unit, next] : edgesInCircles(graph))
    offences.push_back(unit + " includes itself by way of " + next);
  return offences;
}

Offences namesOfProduct(const SourceTree& tree, std::string_view product) {
  Offences offences;
  for (const auto& [path, text] : tree) {
    const bool isNameless = std::ranges::any_of(
        namelessFolders, [&](std::string_view folder) { return liesIn(path, folder); });
    if (!isNameless) continue;
    if (lowerCase(path + "\n" + text).find(product) != std::string::npos)
      offences.push_back(path + " names the product, which its room does not know");
  }
  return offences;
}

Offences filesWithoutWords(const SourceTree& tree) {
  std::map<std::string, std::vector<std::string>> names;
  for (const auto& [path, text] : tree)
    if (nameOf(path) == "README.md") names[folderOf(path)] = namesIn(text);
  Offences offences;
  for (const auto& [path, text] : tree) {
    const std::string folder = describedIn(tree, path);
    if (speaksForItself(path) || (folder.empty() && !isSource(path))) continue;
    if (folder.empty())
      offences.push_back("no README.md above " + path + " but the root's");
    else if (!isNamed(nameOf(path), names[folder]))
      offences.push_back(folder + "/README.md does not name " + path);
  }
  return offences;
}

Offences fullFolders(const SourceTree& tree) {
  std::map<std::string, int> counts;
  for (const auto& [path, text] : tree) counts[folderOf(path)] += isSource(path) ? 1 : 0;
  Offences offences;
  for (const auto& [folder, count] : counts) {
    if (count > filesOfFolder)
      offences.push_back(folder + " holds more than " + std::to_string(filesOfFolder) +
                         " headers and sources");
  }
  return offences;
}

Offences longSourcesWithoutWords(const SourceTree& tree) {
  Offences offences;
  for (const auto& [path, text] : tree) {
    if (!isSource(path) || isHeader(path) || liesIn(path, "tests")) continue;
    const std::vector<std::string> lines = linesOf(text);
    if (lines.size() > linesOfShortSource && openingLines(lines) < linesOfOpening)
      offences.push_back(path + " is long and does not open with how it works");
  }
  return offences;
}

}  // namespace rooms
