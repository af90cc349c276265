// SPDX-License-Identifier: MIT
//
// Other containers for a thread that may not wait for them: read by another thread, and kept for
// who asks again.
#pragma once

#include <compare>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <list>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "io/byte_source.h"
#include "media/movie/other/container_reader.h"

namespace media::movie {

class ContainerShelf {
 public:
  using Answer = model::Result<std::optional<MovieFile>>;
  // The shelf of this process; it is never destroyed.
  static ContainerShelf& ofProcess();

  // The answer of readOtherContainer where it is at hand; else it will be, after the next news. A
  // file that has changed is read again.
  std::optional<Answer> find(const std::string& path, const io::FileSource& file);

  // Who is told, on another thread, that there is more at hand; empty for nobody. Nobody else is
  // told any more once this has returned.
  void setOnNews(std::function<void()> onNews);
  // Waits until everything that was asked for is at hand.
  void finish();

 private:
  // A file as it was when it was asked for.
  struct Key {
    std::string path;
    std::uint64_t size;
    double modificationTime;
    bool operator==(const Key&) const = default;
  };
  struct Book {
    Key key;
    std::optional<Answer> answer;  // none: it waits to be read
  };

  ContainerShelf() : _thread([this] { run(); }) {}
  void run();

  std::mutex _mutex;  // guards what follows
  std::condition_variable _changed;
  std::list<Book> _books;  // the last asked for first
  std::function<void()> _onNews;
  bool _isReading = false;

  std::thread _thread;  // last: it uses all the others
};

}  // namespace media::movie
