// SPDX-License-Identifier: MIT
#include "media/movie/other/container_shelf.h"

#include <algorithm>
#include <utility>

namespace media::movie {

namespace {

constexpr std::size_t mostBooks = 256;  // some kilobytes each

ContainerShelf::Answer readFile(const std::string& path) {
  const auto file = io::FileSource::open(path);
  if (!file) return file.error();
  return readOtherContainer(**file);
}

}  // namespace

// Threads may still ask when the program ends.
ContainerShelf& ContainerShelf::ofProcess() {
  static auto& shelf = *new ContainerShelf;
  return shelf;
}

std::optional<ContainerShelf::Answer> ContainerShelf::find(const std::string& path,
                                                           const io::FileSource& file) {
  const Key key{path, file.size(), file.modificationTime()};
  const std::lock_guard lock(_mutex);
  const auto book = std::ranges::find(_books, key, &Book::key);
  if (book != _books.end()) {
    _books.splice(_books.begin(), _books, book);
    return book->answer;
  }
  _books.push_front({key, std::nullopt});
  if (_books.size() > mostBooks) _books.pop_back();
  _changed.notify_all();
  return std::nullopt;
}

void ContainerShelf::setOnNews(std::function<void()> onNews) {
  const std::lock_guard lock(_mutex);
  _onNews = std::move(onNews);
}

void ContainerShelf::finish() {
  std::unique_lock lock(_mutex);
  _changed.wait(lock, [this] {
    return !_isReading &&
           std::ranges::none_of(_books, [](const Book& book) { return !book.answer; });
  });
}

// What was asked for last comes first: it is what is seen.
void ContainerShelf::run() {
  std::unique_lock lock(_mutex);
  const auto isWaiting = [](const Book& book) { return !book.answer; };
  while (true) {
    _changed.wait(lock, [&] { return std::ranges::any_of(_books, isWaiting); });
    const Key key = std::ranges::find_if(_books, isWaiting)->key;
    _isReading = true;
    lock.unlock();
    Answer answer = readFile(key.path);
    lock.lock();
    _isReading = false;
    // It may have been taken away meanwhile.
    const auto book = std::ranges::find(_books, key, &Book::key);
    if (book != _books.end()) book->answer = std::move(answer);
    if (_onNews) _onNews();
    _changed.notify_all();
  }
}

}  // namespace media::movie
