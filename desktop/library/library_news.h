// SPDX-License-Identifier: MIT
//
// What a library's working threads find out, handed to the thread that shows it.
#pragma once

#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "desktop/library/library_item.h"

namespace desktop::library {

// Everything since the news were last taken, each list in the order of events.
struct LibraryNews {
  struct ItemChange {
    ItemPointer before;  // null where the item is new
    ItemPointer after;   // null where it is gone
  };
  struct ProblemChange {
    std::string path;
    std::optional<std::string> reason;  // none where it is over
  };
  struct SharingChange {
    std::string folder;
    bool isShared;
  };

  std::vector<ItemChange> items;
  std::vector<ProblemChange> problems;
  std::vector<SharingChange> sharing;
  std::vector<ItemPointer> panoramas;
  bool isWalkComplete = false;  // everything below the folder has been seen once

  bool isEmpty() const {
    return items.empty() && problems.empty() && sharing.empty() && panoramas.empty() &&
           !isWalkComplete;
  }
};

// A letter box between threads. Its descriptor becomes readable when news arrive.
class NewsBox {
 public:
  NewsBox();
  ~NewsBox();
  NewsBox(const NewsBox&) = delete;
  NewsBox& operator=(const NewsBox&) = delete;

  // From any thread.
  void post(LibraryNews news);
  // All that was posted; the descriptor is no longer readable.
  LibraryNews take();

  // Makes the descriptor readable without news.
  void wake();

  // An event descriptor, to be waited for only; -1 where the system has none left.
  int descriptor() const { return _descriptor; }

 private:
  std::mutex _mutex;
  LibraryNews _news;
  int _descriptor;
};

}  // namespace desktop::library
