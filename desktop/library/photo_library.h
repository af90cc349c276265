// SPDX-License-Identifier: MIT
//
// A folder of photos and videos as a library: what is in it, in order, as albums, and kept up with
// what changes on disk. For one thread; what is slow happens on threads of its own.
//
//   auto library = PhotoLibrary::open("/home/me/Pictures", DeviceRoot::ofUser());
//   if (!library) return show(library.error().reason);
//   (*library)->onChange([&](const LibraryChange& change) { grid.update(change); });
//   mainLoop.whenReadable((*library)->wakeDescriptor(), [&] { (*library)->deliverChanges(); });
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "desktop/library/albums.h"
#include "desktop/library/facts_cache.h"
#include "desktop/library/favourites.h"
#include "desktop/library/library_news.h"
#include "desktop/library/library_worker.h"
#include "desktop/library/panorama_finder.h"
#include "foundation/device_root.h"

namespace desktop::library {

enum class LoadingState {
  reading,  // the folders are being walked for the first time; some items may be there already
  ready,    // all items are there, and changes are followed
  lost,     // the folder itself is gone or cannot be read any more; it is looked for again
};

// What became different, each list in the library's order. An item is in one list only.
struct LibraryChange {
  std::vector<ItemPointer> inserted;
  std::vector<ItemPointer> removed;
  std::vector<ItemPointer> updated;  // the new items of files that are others now; the order of the
                                     // library may differ too
  bool areAlbumsChanged = false;     // also where no item is, as by a panorama found
  bool areProblemsChanged = false;
  bool areFavouritesChanged = false;
  bool isStateChanged = false;
};

class PhotoLibrary {
 public:
  // Opens at once and goes on reading in the background. Nothing is ever written to the folder.
  // Errors: what the system says of the folder ("No such file or directory", "Not a directory",
  // "Permission denied").
  static model::Result<std::unique_ptr<PhotoLibrary>> open(const std::string& folder,
                                                           const foundation::DeviceRoot& root,
                                                           const WatchLimits& limits = {});
  ~PhotoLibrary();
  PhotoLibrary(const PhotoLibrary&) = delete;
  PhotoLibrary& operator=(const PhotoLibrary&) = delete;

  // For objects that may outlive the library.
  std::weak_ptr<PhotoLibrary> reference() const { return _self; }

  // Absolute, on disk, links resolved.
  const std::string& folder() const { return _folder; }
  const foundation::DeviceRoot& root() const { return _root; }
  LoadingState state() const { return _state; }

  // Oldest first, by the files' own dates; by path where these are the same. A Live Photo is one
  // item.
  const std::vector<ItemPointer>& items() const { return _items; }
  // Where an item stands; none where it is not in the library any more.
  std::optional<std::size_t> indexOf(const ItemPointer& item) const;
  // The item of a uuid, as it is now, also of the film of a Live Photo; null where there is none.
  ItemPointer itemOf(const std::string& uuid) const;

  // Valid until changes are delivered. The panoramas among them are complete some time after
  // findPanoramas was called.
  const std::vector<Album>& albums();
  // Reads the sizes of all stills in the background, from now on of new ones too: for whoever shows
  // the list of albums.
  void findPanoramas();

  bool isPanorama(const ItemPointer& item) const { return _panoramas.contains(item); }

  bool isFavourite(const LibraryItem& item) const { return _favourites.contains(item.uuid); }
  // Told by the next deliverChanges. Errors: what the system says of the file that keeps it.
  model::Result<bool> setFavourite(const LibraryItem& item, bool isFavourite);

  // The facts of an item that is seen; a failure is noted as a problem, and so is what a limit cut.
  // Where the facts are being read, the item is among the updated ones of a later delivery.
  const FactsCache::Facts& facts(const LibraryItem& item);
  FactsCache& factsCache() { return _facts; }

  // Why files and folders could not be shown, by path; bytes as on disk. An item that changes or
  // goes takes its problem with it.
  const std::map<std::string, std::string>& problems() const { return _problems; }
  // For who finds out later; told by the next deliverChanges.
  void noteProblem(const std::string& path, const std::string& reason);
  // The same for an item that cannot be decoded. Answers the words for it: where the facts of the
  // item say why there is nothing to show, it is their words that count.
  std::string noteFailure(const LibraryItem& item, const std::string& reason);

  // Readable when there are changes to deliver; to be waited for only.
  int wakeDescriptor() const { return _box.descriptor(); }
  // Who is told; replaces whoever was told before.
  void onChange(std::function<void(const LibraryChange&)> listener);
  // Brings the library up to what is known of the folder, and tells the listener. Never waits.
  // Returns whether anything was different.
  bool deliverChanges();
  // Waits until the library is as the folder is now, panoramas included where they are wanted, and
  // delivers: for runs without a real clock.
  bool waitAndDeliver();

 private:
  // An item before the first and after the last of its changes in one delivery.
  struct NetChange {
    ItemPointer before;
    ItemPointer after;
  };

  PhotoLibrary(std::string folder, foundation::DeviceRoot root, const WatchLimits& limits);
  void applyItems(const std::vector<LibraryNews::ItemChange>& changes, LibraryChange& change);
  void replaceItems(const LibraryChange& change, const std::vector<ItemPointer>& outdated);
  void applyProblems(const std::vector<LibraryNews::ProblemChange>& changes);
  void applySharing(const std::vector<LibraryNews::SharingChange>& changes, LibraryChange& change);
  void applyPanoramas(const std::vector<ItemPointer>& panoramas, LibraryChange& change);
  void applyAwaitedFacts(LibraryChange& change);
  LoadingState stateAfter(bool isWalkComplete) const;

  // Owns nothing; it ends with the library, and all references with it.
  const std::shared_ptr<PhotoLibrary> _self{this, [](PhotoLibrary*) {}};
  const std::string _folder;
  const foundation::DeviceRoot _root;
  LoadingState _state = LoadingState::reading;
  std::vector<ItemPointer> _items;
  std::unordered_map<std::string_view, ItemPointer> _itemOfUuid;
  std::unordered_map<std::string_view, ItemPointer> _filmOfUuid;  // of Live Photos
  std::optional<std::vector<Album>> _albums;                      // none until they are asked for
  std::set<std::string, std::less<>> _sharedFolders;
  std::unordered_set<ItemPointer> _panoramas;
  FactsCache _facts;
  std::set<std::string> _awaitedFacts;  // uuids of items whose facts are being read
  std::map<std::string, std::string> _problems;
  bool _areProblemsChanged = false;
  Favourites _favourites;
  bool _areFavouritesChanged = false;
  std::function<void(const LibraryChange&)> _listener;

  NewsBox _box;
  std::unique_ptr<PanoramaFinder> _panoramaFinder;  // none until panoramas are wanted
  LibraryWorker _worker;
};

}  // namespace desktop::library
