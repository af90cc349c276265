// SPDX-License-Identifier: MIT
//
// A folder is read as a whole and compared with what was known of it: both lists are sorted by name
// and walked side by side, and the observer is told of what only one of them has, or what differs.
// Reading says how far down it goes: a changed folder alone with what is new in it, or everything.
// A folder that is gone takes all below it along, item by item, so the observer never has to know
// the tree. Files of one name but for the extension are told together, since two of them may be the
// halves of a Live Photo, of which the observer hears as one item. A link to a file that is met on
// the way is that file, and no item.
#include "desktop/library/folder_tree.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "foundation/paths.h"

namespace desktop::library {

namespace {

struct FileStatus {
  struct stat data {};
  int error = 0;
  bool exists() const { return error == 0; }
};

FileStatus statusOf(const std::string& path) {
  FileStatus status;
  if (::stat(path.c_str(), &status.data) != 0) status.error = errno;
  return status;
}

// Whether a file is shown, and why one is not that should be.
struct Verdict {
  std::optional<media::facts::MediaKind> kind;
  std::optional<std::string> problem;
};

// What cannot be read and does not even look like a photo by its name is no loss.
Verdict judge(const std::string& path, const std::string& name, const FileStatus& status) {
  const auto kind = media::facts::mediaKindOfName(name);
  if (status.exists() && S_ISREG(status.data.st_mode)) {
    if (kind || status.data.st_size == 0) return {kind, std::nullopt};
    const auto byContent = media::facts::mediaKindOfContent(path);
    return {byContent ? *byContent : std::nullopt, std::nullopt};
  }
  if (!kind) return {};
  return {std::nullopt,
          status.exists() ? "not a regular file" : std::generic_category().message(status.error)};
}

ItemPointer makeItem(const std::string& path, std::string target, media::facts::MediaKind kind,
                     const struct stat& status) {
  const double modified = static_cast<double>(status.st_mtim.tv_sec) +
                          static_cast<double>(status.st_mtim.tv_nsec) / 1e9;
  return std::make_shared<const LibraryItem>(
      LibraryItem{.path = path,
                  .uuid = itemUuid(path),
                  .kind = kind,
                  .fileSize = static_cast<std::uint64_t>(status.st_size),
                  .modificationDate = {modified},
                  .target = std::move(target)});
}

// The item with another film, or without one.
ItemPointer withFilm(const LibraryItem& item, ItemPointer film) {
  LibraryItem other = item;
  other.film = std::move(film);
  return std::make_shared<const LibraryItem>(std::move(other));
}

bool isMarkedShared(const std::string& folder) {
  return ::access(foundation::pathInFolder(folder, ".shared").c_str(), F_OK) == 0;
}

}  // namespace

FolderTree::FolderTree(std::string root, FolderObserver& observer, ReadIdentifier readIdentifier)
    : _root(std::move(root)), _observer(observer), _readIdentifier(std::move(readIdentifier)) {}

void FolderTree::read(const std::string& folder) {
  if (folder == _root || _folders.contains(folder)) read(folder, Depth::newFolders);
}

void FolderTree::readAll() {
  read(_root, Depth::allFolders);
}

// The way down is a list, since folders nest deeper than a stack.
void FolderTree::read(const std::string& folder, Depth depth) {
  std::vector<std::string> pending{folder};
  while (!pending.empty() && !_observer.isStopped()) {
    const std::string path = std::move(pending.back());
    pending.pop_back();
    std::vector<std::string> below = readOne(path, depth);
    std::move(below.rbegin(), below.rend(), std::back_inserter(pending));
  }
}

// Returns the folders in it that are to be read next.
std::vector<std::string> FolderTree::readOne(const std::string& path, Depth depth) {
  const auto [entry, isNew] = _folders.try_emplace(path);
  Folder& folder = entry->second;
  // Told first, so that whoever watches it from now on misses nothing.
  if (isNew || folder.hasProblem) _observer.folderOpened(path);
  const auto entries = foundation::readFolder(path);
  setProblem(path, folder.hasProblem,
             entries ? std::nullopt : std::optional(entries.error().reason));
  if (!entries) {
    forgetContents(path, folder);
    return {};
  }
  const bool isShared = isMarkedShared(path);
  if (isShared != folder.isShared) _observer.sharingChanged(path, isShared);
  folder.isShared = isShared;
  updateFiles(path, folder, *entries);
  return updateSubfolders(path, folder, *entries, depth);
}

// Both lists are sorted by name, so they are walked side by side.
void FolderTree::updateFiles(const std::string& path, Folder& folder,
                             const std::vector<foundation::FolderEntry>& entries) {
  const std::vector<File> known = std::exchange(folder.files, {});
  auto old = known.begin();
  std::size_t told = 0;
  const auto tellNew = [&] {
    tell(std::span(folder.files).subspan(told));
    told = folder.files.size();
  };
  for (const foundation::FolderEntry& entry : entries) {
    if (entry.kind != foundation::FolderEntryKind::file) continue;
    if (_observer.isStopped()) return;
    if (!folder.files.empty() && stemOf(folder.files.back().name) != stemOf(entry.name)) tellNew();
    for (; old != known.end() && old->name < entry.name; ++old) forgetFile(path, *old);
    const bool isKnown = old != known.end() && old->name == entry.name;
    folder.files.push_back(
        examine(foundation::pathInFolder(path, entry.name), entry, isKnown ? &*old : nullptr));
    if (isKnown) ++old;
  }
  tellNew();
  for (; old != known.end(); ++old) forgetFile(path, *old);
}

// The still and the film among files of one name; both are null where there is no Live Photo.
std::pair<FolderTree::File*, FolderTree::File*> FolderTree::livePhotoAmong(
    std::span<File> namesakes) const {
  const auto find = [&](bool isVideo) {
    const auto found = std::ranges::find_if(
        namesakes, [&](const File& file) { return file.item && file.item->isVideo() == isVideo; });
    return found == namesakes.end() ? nullptr : &*found;
  };
  const auto identifierOf = [&](File& file) {
    if (!file.liveIdentifier) file.liveIdentifier = _readIdentifier(file.item->path);
    return *file.liveIdentifier;
  };
  File* const still = find(false);
  File* const film = find(true);
  if (!still || !film) return {};
  const std::string identifier = identifierOf(*still);
  if (identifier.empty() || identifier != identifierOf(*film)) return {};
  return {still, film};
}

void FolderTree::tell(std::span<File> namesakes) {
  const auto [still, film] = livePhotoAmong(namesakes);
  for (File& file : namesakes) {
    const ItemPointer filmNow = &file == still ? film->item : nullptr;
    if (file.item && file.item->film != filmNow) file.item = withFilm(*file.item, filmNow);
    const ItemPointer now = &file == film ? nullptr : file.item;
    const ItemPointer before = std::exchange(file.told, now);
    if (before != now) _observer.itemChanged(before, now);
  }
}

std::vector<std::string> FolderTree::updateSubfolders(
    const std::string& path, Folder& folder, const std::vector<foundation::FolderEntry>& entries,
    Depth depth) {
  std::vector<std::string> toRead;
  const std::vector<Subfolder> known = std::exchange(folder.subfolders, {});
  auto old = known.begin();
  const auto forgetNext = [&] { forget(foundation::pathInFolder(path, (old++)->name)); };
  for (const foundation::FolderEntry& entry : entries) {
    if (entry.kind != foundation::FolderEntryKind::folder) continue;
    while (old != known.end() && old->name < entry.name) forgetNext();
    bool isKnown = old != known.end() && old->name == entry.name;
    if (isKnown && old->inode != entry.inode) {
      forgetNext();
      isKnown = false;
    } else if (isKnown) {
      ++old;
    }
    folder.subfolders.push_back({entry.name, entry.inode});
    std::string below = foundation::pathInFolder(path, entry.name);
    if (!isKnown || depth == Depth::allFolders || hasProblem(below)) {
      toRead.push_back(std::move(below));
    }
  }
  while (old != known.end()) forgetNext();
  return toRead;
}

bool FolderTree::hasProblem(const std::string& folder) const {
  const auto entry = _folders.find(folder);
  return entry != _folders.end() && entry->second.hasProblem;
}

// Whether reading the folders comes to the file by itself.
bool FolderTree::isMetOnTheWay(const std::string& path) const {
  const std::string_view root = _root == "/" ? "" : std::string_view(_root);
  if (!path.starts_with(root) || path.size() <= root.size() || path[root.size()] != '/')
    return false;
  return path.find("/.", root.size()) == std::string::npos;  // hidden ones are not met
}

FolderTree::File FolderTree::examine(const std::string& path, const foundation::FolderEntry& entry,
                                     const File* known) {
  const FileStatus status = statusOf(path);
  const Identity identity{.inode = status.data.st_ino,
                          .size = static_cast<std::uint64_t>(status.data.st_size),
                          .seconds = status.data.st_mtim.tv_sec,
                          .nanoseconds = status.data.st_mtim.tv_nsec};
  File file = known != nullptr ? *known : File{.name = entry.name, .identity = {}, .item = {}};
  if (known != nullptr && status.exists() && identity == known->identity) return file;
  file.identity = identity;
  file.liveIdentifier.reset();
  const Verdict verdict = judge(path, entry.name, status);
  setProblem(path, file.hasProblem, verdict.problem);
  std::string target = entry.isLink ? foundation::resolvedPath(path) : std::string();
  const bool isItem = verdict.kind && !isMetOnTheWay(target);
  file.item = isItem ? makeItem(path, std::move(target), *verdict.kind, status.data) : nullptr;
  return file;
}

void FolderTree::forgetFile(const std::string& folder, const File& file) {
  if (file.told) _observer.itemChanged(file.told, nullptr);
  if (file.hasProblem)
    _observer.problemChanged(foundation::pathInFolder(folder, file.name), std::nullopt);
}

void FolderTree::setProblem(const std::string& path, bool& hasProblem,
                            const std::optional<std::string>& reason) {
  if (!hasProblem && !reason) return;
  hasProblem = reason.has_value();
  _observer.problemChanged(path, reason);
}

// Takes a folder and all below it out of the tree.
void FolderTree::forget(const std::string& path) {
  std::vector<std::string> pending{path};
  while (!pending.empty()) {
    const std::string next = std::move(pending.back());
    pending.pop_back();
    const auto entry = _folders.find(next);
    if (entry == _folders.end()) continue;
    const Folder folder = std::move(entry->second);
    _folders.erase(entry);
    for (const File& file : folder.files) forgetFile(next, file);
    for (const Subfolder& below : folder.subfolders) {
      pending.push_back(foundation::pathInFolder(next, below.name));
    }
    if (folder.isShared) _observer.sharingChanged(next, false);
    if (folder.hasProblem) _observer.problemChanged(next, std::nullopt);
    _observer.folderClosed(next);
  }
}

// For a folder that cannot be read any more, and is kept so that it is tried again.
void FolderTree::forgetContents(const std::string& path, Folder& folder) {
  const Folder old = std::exchange(folder, {});
  folder.hasProblem = true;
  for (const File& file : old.files) forgetFile(path, file);
  for (const Subfolder& below : old.subfolders) forget(foundation::pathInFolder(path, below.name));
  if (old.isShared) _observer.sharingChanged(path, false);
}

}  // namespace desktop::library
