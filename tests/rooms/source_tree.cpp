// SPDX-License-Identifier: MIT
#include "tests/rooms/source_tree.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

namespace rooms {

namespace {

namespace fs = std::filesystem;

std::string contentsOf(const fs::path& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return std::move(text).str();
}

bool isSkipped(const fs::path& path) {
  const std::string name = path.filename();
  return name.starts_with('.') || name == "build";
}

void addFolder(SourceTree& tree, const fs::path& folder, const fs::path& root) {
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    if (isSkipped(entry.path())) continue;
    if (entry.is_directory())
      addFolder(tree, entry.path(), root);
    else
      tree[entry.path().lexically_relative(root)] = contentsOf(entry.path());
  }
}

}  // namespace

SourceTree readSourceTree(const std::string& root) {
  SourceTree tree;
  addFolder(tree, root, root);
  return tree;
}

bool isHeader(std::string_view path) {
  return path.ends_with(".h");
}

bool isSource(std::string_view path) {
  return isHeader(path) || path.ends_with(".cpp");
}

std::string folderOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return std::string(slash == path.npos ? "" : path.substr(0, slash));
}

std::string_view nameOf(std::string_view path) {
  return path.substr(path.rfind('/') + 1);
}

std::string unitOf(std::string_view path) {
  return std::string(path.substr(0, path.rfind('.')));
}

bool liesIn(std::string_view path, std::string_view folder) {
  return folder.empty() || path == folder ||
         (path.starts_with(folder) && path[folder.size()] == '/');
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> includesOf(const std::string& text) {
  constexpr std::string_view start = "#include \"";
  std::vector<std::string> includes;
  for (const std::string& line : linesOf(text)) {
    if (!line.starts_with(start)) continue;
    includes.push_back(line.substr(start.size(), line.rfind('"') - start.size()));
  }
  return includes;
}

}  // namespace rooms
