// SPDX-License-Identifier: MIT
//
// The library's state belongs to the thread that shows it; the worker and the finder of panoramas
// only leave news in a box. deliverChanges takes all of it at once: steps of one item become one
// change (it came, went, or is another now), the sorted items are merged with the sorted changes in
// one walk, and the listener hears of the whole after everything is in place.
#include "desktop/library/photo_library.h"

#include <dirent.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <system_error>
#include <utility>

#include "foundation/paths.h"
#include "media/movie/other/container_shelf.h"

namespace desktop::library {

namespace {

// About 0.5 KB each.
constexpr std::size_t factsKept = 20'000;

bool isAny(const LibraryChange& change) {
  return !change.inserted.empty() || !change.removed.empty() || !change.updated.empty() ||
         change.areAlbumsChanged || change.areProblemsChanged || change.areFavouritesChanged ||
         change.isStateChanged;
}

}  // namespace

model::Result<std::unique_ptr<PhotoLibrary>> PhotoLibrary::open(const std::string& folder,
                                                                const foundation::DeviceRoot& root,
                                                                const WatchLimits& limits) {
  std::string onDisk = foundation::resolvedPath(root.onDisk(foundation::absolutePath(folder)));
  const std::unique_ptr<DIR, int (*)(DIR*)> directory(::opendir(onDisk.c_str()), &::closedir);
  if (!directory) return model::Error{std::generic_category().message(errno)};
  return std::unique_ptr<PhotoLibrary>(new PhotoLibrary(std::move(onDisk), root, limits));
}

PhotoLibrary::PhotoLibrary(std::string folder, foundation::DeviceRoot root,
                           const WatchLimits& limits)
    : _folder(std::move(folder)),
      _root(std::move(root)),
      _facts(_root, factsKept),
      _favourites(_root.folder() + "/favourites"),
      _worker(_folder, limits, _box) {
  media::movie::ContainerShelf::ofProcess().setOnNews([this] { _box.wake(); });
}

PhotoLibrary::~PhotoLibrary() {
  media::movie::ContainerShelf::ofProcess().setOnNews({});
}

std::optional<std::size_t> PhotoLibrary::indexOf(const ItemPointer& item) const {
  const auto place = std::ranges::lower_bound(_items, item, comesBefore);
  if (place == _items.end() || *place != item) return std::nullopt;
  return static_cast<std::size_t>(place - _items.begin());
}

ItemPointer PhotoLibrary::itemOf(const std::string& uuid) const {
  for (const auto* items : {&_itemOfUuid, &_filmOfUuid})
    if (const auto entry = items->find(uuid); entry != items->end()) return entry->second;
  return nullptr;
}

const std::vector<Album>& PhotoLibrary::albums() {
  if (!_albums) {
    _albums = makeAlbums(
        {.libraryFolder = _folder,
         .items = _items,
         .isPanorama = [this](const ItemPointer& item) { return _panoramas.contains(item); },
         .isShared = [this](const std::string& path) { return _sharedFolders.contains(path); }});
  }
  return *_albums;
}

void PhotoLibrary::findPanoramas() {
  if (_panoramaFinder) return;
  _panoramaFinder = std::make_unique<PanoramaFinder>(_root, _box);
  _panoramaFinder->examine(_items);
}

const FactsCache::Facts& PhotoLibrary::facts(const LibraryItem& item) {
  const FactsCache::Facts& facts = _facts.read(item);
  if (isBeingRead(facts)) {
    _awaitedFacts.insert(item.uuid);
  } else if (!facts) {
    noteProblem(item.path, facts.error().reason);
  } else if (!(*facts)->shortfall.empty()) {
    noteProblem(item.path, (*facts)->shortfall);
  }
  return facts;
}

std::string PhotoLibrary::noteFailure(const LibraryItem& item, const std::string& reason) {
  const FactsCache::Facts& known = facts(item);
  std::string words = known || isBeingRead(known) ? reason : known.error().reason;
  if (known && !(*known)->shortfall.empty()) words += ", " + (*known)->shortfall;
  noteProblem(item.path, words);
  return words;
}

void PhotoLibrary::noteProblem(const std::string& path, const std::string& reason) {
  if (!_problems.try_emplace(path, reason).second) return;
  _areProblemsChanged = true;
  _box.wake();
}

model::Result<bool> PhotoLibrary::setFavourite(const LibraryItem& item, bool isFavourite) {
  auto result = _favourites.set(item.uuid, isFavourite);
  if (result) _areFavouritesChanged = true;
  if (result) _box.wake();
  return result;
}

void PhotoLibrary::onChange(std::function<void(const LibraryChange&)> listener) {
  _listener = std::move(listener);
}

bool PhotoLibrary::deliverChanges() {
  const LibraryNews news = _box.take();
  LibraryChange change;
  applyItems(news.items, change);
  applyProblems(news.problems);
  applySharing(news.sharing, change);
  applyPanoramas(news.panoramas, change);
  applyAwaitedFacts(change);
  change.areProblemsChanged = std::exchange(_areProblemsChanged, false);
  change.areFavouritesChanged = std::exchange(_areFavouritesChanged, false);
  const LoadingState state = stateAfter(news.isWalkComplete);
  change.isStateChanged = state != std::exchange(_state, state);
  if (change.areAlbumsChanged) _albums.reset();
  if (!isAny(change)) return false;
  // A copy, since it may replace itself.
  if (const auto listener = _listener) listener(change);
  return true;
}

bool PhotoLibrary::waitAndDeliver() {
  _worker.readNow();
  bool isDifferent = deliverChanges();
  if (!_awaitedFacts.empty()) {
    media::movie::ContainerShelf::ofProcess().finish();
    isDifferent |= deliverChanges();
  }
  if (!_panoramaFinder) return isDifferent;
  _panoramaFinder->finish();
  return deliverChanges() || isDifferent;
}

void PhotoLibrary::applyItems(const std::vector<LibraryNews::ItemChange>& changes,
                              LibraryChange& change) {
  std::unordered_map<std::string_view, NetChange> netChanges;
  for (const LibraryNews::ItemChange& step : changes) {
    const ItemPointer& either = step.before ? step.before : step.after;
    const auto [entry, isFirst] = netChanges.try_emplace(either->uuid);
    if (isFirst) entry->second.before = step.before;
    entry->second.after = step.after;
  }
  std::vector<ItemPointer> outdated;
  for (auto& [uuid, net] : netChanges) {
    if (net.before) outdated.push_back(net.before);
    if (net.before && net.after) change.updated.push_back(net.after);
    if (net.before && !net.after) change.removed.push_back(net.before);
    if (!net.before && net.after) change.inserted.push_back(net.after);
  }
  for (auto* list : {&change.inserted, &change.removed, &change.updated, &outdated}) {
    std::ranges::sort(*list, comesBefore);
  }
  replaceItems(change, outdated);
  if (_panoramaFinder) {
    _panoramaFinder->examine(change.inserted);
    _panoramaFinder->examine(change.updated);
  }
}

// All lists are sorted, so that the library is walked once for each.
void PhotoLibrary::replaceItems(const LibraryChange& change,
                                const std::vector<ItemPointer>& outdated) {
  if (outdated.empty() && change.inserted.empty()) return;
  for (const ItemPointer& item : outdated) {
    _itemOfUuid.erase(item->uuid);
    if (item->film) _filmOfUuid.erase(item->film->uuid);
    _panoramas.erase(item);
    if (_problems.erase(item->path) > 0) _areProblemsChanged = true;
  }
  std::vector<ItemPointer> kept;
  std::ranges::set_difference(_items, outdated, std::back_inserter(kept), comesBefore);
  std::vector<ItemPointer> fresh;
  std::ranges::merge(change.inserted, change.updated, std::back_inserter(fresh), comesBefore);
  for (const ItemPointer& item : fresh) {
    _itemOfUuid[item->uuid] = item;
    if (item->film) _filmOfUuid[item->film->uuid] = item->film;
  }
  _items.clear();
  std::ranges::merge(kept, fresh, std::back_inserter(_items), comesBefore);
}

void PhotoLibrary::applyProblems(const std::vector<LibraryNews::ProblemChange>& changes) {
  for (const LibraryNews::ProblemChange& problem : changes) {
    if (problem.reason) {
      _problems[problem.path] = *problem.reason;
    } else {
      _problems.erase(problem.path);
    }
    _areProblemsChanged = true;
  }
}

void PhotoLibrary::applySharing(const std::vector<LibraryNews::SharingChange>& changes,
                                LibraryChange& change) {
  for (const LibraryNews::SharingChange& sharing : changes) {
    if (sharing.isShared) {
      _sharedFolders.insert(sharing.folder);
    } else {
      _sharedFolders.erase(sharing.folder);
    }
  }
  const bool areItemsChanged =
      !change.inserted.empty() || !change.removed.empty() || !change.updated.empty();
  change.areAlbumsChanged = areItemsChanged || !changes.empty();
}

void PhotoLibrary::applyPanoramas(const std::vector<ItemPointer>& panoramas,
                                  LibraryChange& change) {
  for (const ItemPointer& item : panoramas) {
    // It may have changed while it was looked at.
    if (itemOf(item->uuid) != item) continue;
    _panoramas.insert(item);
    change.areAlbumsChanged = true;
  }
}

void PhotoLibrary::applyAwaitedFacts(LibraryChange& change) {
  for (const std::string& uuid : std::exchange(_awaitedFacts, {})) {
    const ItemPointer item = itemOf(uuid);
    // Where they are still being read, they are awaited again.
    if (!item || isBeingRead(facts(*item)) || std::ranges::count(change.updated, item) > 0)
      continue;
    change.updated.push_back(item);
  }
  std::ranges::sort(change.updated, comesBefore);
}

LoadingState PhotoLibrary::stateAfter(bool isWalkComplete) const {
  if (_problems.contains(_folder)) return LoadingState::lost;
  if (isWalkComplete || _state == LoadingState::lost) return LoadingState::ready;
  return _state;
}

}  // namespace desktop::library
