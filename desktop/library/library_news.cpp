// SPDX-License-Identifier: MIT
#include "desktop/library/library_news.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <iterator>
#include <utility>

namespace desktop::library {

namespace {

template <typename T>
void moveToEnd(std::vector<T>& all, std::vector<T>& more) {
  all.insert(all.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

}  // namespace

NewsBox::NewsBox() : _descriptor(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)) {}

NewsBox::~NewsBox() {
  if (_descriptor >= 0) ::close(_descriptor);
}

void NewsBox::post(LibraryNews news) {
  if (news.isEmpty()) return;
  const std::lock_guard lock(_mutex);
  moveToEnd(_news.items, news.items);
  moveToEnd(_news.problems, news.problems);
  moveToEnd(_news.sharing, news.sharing);
  moveToEnd(_news.panoramas, news.panoramas);
  _news.isWalkComplete |= news.isWalkComplete;
  wake();
}

void NewsBox::wake() {
  ::eventfd_write(_descriptor, 1);
}

LibraryNews NewsBox::take() {
  const std::lock_guard lock(_mutex);
  eventfd_t count = 0;
  ::eventfd_read(_descriptor, &count);
  return std::exchange(_news, {});
}

}  // namespace desktop::library
