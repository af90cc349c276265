// SPDX-License-Identifier: MIT
//
// What a library knows of its folders on disk: read once, then read again wherever something
// changed, telling an observer the differences only.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "desktop/library/library_item.h"
#include "desktop/library/live_photo.h"
#include "foundation/folder_entries.h"

namespace desktop::library {

// Who is told of differences while a tree is read; on the thread that reads.
class FolderObserver {
 public:
  virtual ~FolderObserver() = default;

  // One is null where the item is new or gone. Both have the same path.
  virtual void itemChanged(const ItemPointer& before, const ItemPointer& after) = 0;
  // Why a file or folder cannot be shown; none when that is over.
  virtual void problemChanged(const std::string& path,
                              const std::optional<std::string>& reason) = 0;
  // Before a folder is read for the first time, and after it is gone.
  virtual void folderOpened(const std::string& path) = 0;
  virtual void folderClosed(const std::string& path) = 0;
  // Whether the folder holds a file named ".shared"; told when it begins or ends to.
  virtual void sharingChanged(const std::string& path, bool isShared) = 0;
  // Asked before every file: reading ends early then, and the tree is of no more use.
  virtual bool isStopped() const = 0;
};

class FolderTree {
 public:
  // What tells the halves of a Live Photo: a file's identifier, empty where it has none.
  using ReadIdentifier = std::function<std::string(const std::string& path)>;

  // The root's path is absolute, links resolved, and without a slash at its end ("/" stays). The
  // observer outlives the tree.
  FolderTree(std::string root, FolderObserver& observer,
             ReadIdentifier readIdentifier = liveIdentifier);

  // Reads a folder again, and with it the folders in it that are new or could not be read. Folders
  // that the tree does not know are ignored, the root is always known.
  void read(const std::string& folder);
  // Reads the root and all that is below it again.
  void readAll();

 private:
  // What tells whether a file is still the same.
  struct Identity {
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t seconds = 0;  // of the last modification
    std::int64_t nanoseconds = 0;
    bool operator==(const Identity&) const = default;
  };
  // A file of a folder, also one that is no photo: it is not looked into again then.
  struct File {
    std::string name;
    Identity identity;
    ItemPointer item;
    ItemPointer told = {};  // the item that the observer knows; null for the film of a Live Photo
    std::optional<std::string> liveIdentifier = {};  // none until it is asked for
    bool hasProblem = false;
  };
  struct Subfolder {
    std::string name;
    std::uint64_t inode;
  };
  struct Folder {
    std::vector<File> files;            // by name
    std::vector<Subfolder> subfolders;  // by name
    bool isShared = false;
    bool hasProblem = false;
  };
  enum class Depth { newFolders, allFolders };

  void read(const std::string& folder, Depth depth);
  std::vector<std::string> readOne(const std::string& path, Depth depth);
  void updateFiles(const std::string& path, Folder& folder,
                   const std::vector<foundation::FolderEntry>& entries);
  std::vector<std::string> updateSubfolders(const std::string& path, Folder& folder,
                                            const std::vector<foundation::FolderEntry>& entries,
                                            Depth depth);
  File examine(const std::string& path, const foundation::FolderEntry& entry, const File* known);
  bool isMetOnTheWay(const std::string& path) const;
  void tell(std::span<File> namesakes);
  std::pair<File*, File*> livePhotoAmong(std::span<File> namesakes) const;
  bool hasProblem(const std::string& folder) const;
  void forgetFile(const std::string& folder, const File& file);
  void setProblem(const std::string& path, bool& hasProblem,
                  const std::optional<std::string>& reason);
  void forget(const std::string& path);
  void forgetContents(const std::string& path, Folder& folder);

  std::string _root;
  FolderObserver& _observer;
  ReadIdentifier _readIdentifier;
  std::unordered_map<std::string, Folder> _folders;
};

}  // namespace desktop::library
