// SPDX-License-Identifier: MIT
#include "apps/lumifact/files/file_list.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

namespace lumifact::tool {

namespace {

// Longer than any path the system opens; what is cut off fails to open and is reported.
constexpr std::size_t longestName = std::size_t{64} * 1024;

model::Error lastError() {
  return {std::generic_category().message(errno)};
}

bool isFolder(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

FileList::FileList(FileListRequest request) : _request(std::move(request)) {}

FileList::~FileList() {
  if (_listDescriptor > STDIN_FILENO) ::close(_listDescriptor);
}

std::optional<FileItem> FileList::next() {
  for (;;) {
    if (auto item = nextInFolders()) return item;
    auto name = nextName();
    if (!name || name->error) return name;
    if (auto item = fileUnlessFolder(std::move(name->path))) return item;
  }
}

std::size_t FileList::remaining() const {
  std::size_t count = _request.paths.size() - _nextPath;
  for (const Folder& folder : _folders) count += folder.entries.size();
  return count;
}

// The item of a named file; none where the name was a folder that is walked from now on.
std::optional<FileItem> FileList::fileUnlessFolder(std::string path) {
  if (!isFolder(path)) return FileItem{std::move(path), std::nullopt};
  if (!_request.isRecursive) {
    const model::Error error{"Is a directory (--recursive reads what it holds)"};
    return FileItem{std::move(path), error};
  }
  auto error = enter(path);
  if (!error) return std::nullopt;
  return FileItem{std::move(path), std::move(error)};
}

std::optional<FileItem> FileList::nextInFolders() {
  while (!_folders.empty()) {
    Folder& folder = _folders.back();
    if (folder.entries.empty()) {
      _folders.pop_back();
      continue;
    }
    const auto entry = std::move(folder.entries.back());
    folder.entries.pop_back();
    std::string path = foundation::pathInFolder(folder.path, entry.name);
    if (entry.kind == foundation::FolderEntryKind::file) {
      return FileItem{std::move(path), std::nullopt};
    }
    if (auto error = enter(path)) return FileItem{std::move(path), std::move(error)};
  }
  return std::nullopt;
}

// Starts to walk a folder.
std::optional<model::Error> FileList::enter(const std::string& path) {
  auto entries = foundation::readFolder(path);
  if (!entries) return entries.error();
  std::ranges::reverse(*entries);
  _folders.push_back({.path = path, .entries = *std::move(entries)});
  return std::nullopt;
}

std::optional<FileItem> FileList::nextName() {
  if (_nextPath == _request.paths.size()) return nextInList();
  return FileItem{_request.paths[_nextPath++], std::nullopt};
}

std::optional<FileItem> FileList::nextInList() {
  if (!_request.listFile) return std::nullopt;
  std::optional<model::Error> failure = _list ? std::nullopt : openList();
  while (!failure) {
    const auto line = _list->next();
    if (!line) break;
    if (!line->text.empty()) return FileItem{std::string(line->text), std::nullopt};
  }
  if (!failure) failure = _list->failure();
  const std::string list = std::move(*_request.listFile);
  _request.listFile.reset();
  if (!failure) return std::nullopt;
  return FileItem{list == "-" ? "standard input" : list, failure};
}

std::optional<model::Error> FileList::openList() {
  const std::string& list = *_request.listFile;
  _listDescriptor =
      list == "-" ? STDIN_FILENO : ::open(list.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
  if (_listDescriptor < 0) return lastError();
  const LineReader::Limits limits{.separator = _request.listSeparator, .longestLine = longestName};
  _list.emplace(_listDescriptor, limits);
  return std::nullopt;
}

}  // namespace lumifact::tool
