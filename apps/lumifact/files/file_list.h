// SPDX-License-Identifier: MIT
//
// The files that a command line names: arguments, folders, and lists read from a file or a pipe.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "apps/lumifact/files/line_reader.h"
#include "foundation/folder_entries.h"
#include "model/result.h"

namespace lumifact::tool {

// What to gather.
struct FileListRequest {
  std::vector<std::string> paths;
  std::optional<std::string> listFile;  // a list to read after the paths; "-" is standard input
  char listSeparator = '\n';
  bool isRecursive = false;  // whether folders stand for what they hold
};

// One file, or a name that leads to none.
struct FileItem {
  std::string path;  // as given; below a folder, the folder as given and the way from there
  std::optional<model::Error> error;
};

// Gives the files one by one, reading lists and folders as it comes to them, so that a hundred
// thousand files need little memory. What a folder holds comes sorted by name (by bytes), files
// and folders alike; hidden entries are skipped, and so are links to folders. Empty names in a list
// are skipped.
class FileList {
 public:
  explicit FileList(FileListRequest request);
  ~FileList();
  FileList(const FileList&) = delete;
  FileList& operator=(const FileList&) = delete;

  std::optional<FileItem> next();

  // How many names are known so far and have not been given out; it grows as folders and lists are
  // read.
  std::size_t remaining() const;

 private:
  // A folder being walked; its entries stand in reverse, so that the next is the last.
  struct Folder {
    std::string path;
    std::vector<foundation::FolderEntry> entries;
  };

  std::optional<FileItem> nextInFolders();
  std::optional<FileItem> nextName();
  std::optional<FileItem> nextInList();
  std::optional<FileItem> fileUnlessFolder(std::string path);
  std::optional<model::Error> enter(const std::string& path);
  std::optional<model::Error> openList();

  FileListRequest _request;
  std::size_t _nextPath = 0;
  std::vector<Folder> _folders;
  int _listDescriptor = -1;
  std::optional<LineReader> _list;
};

}  // namespace lumifact::tool
