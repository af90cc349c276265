// SPDX-License-Identifier: MIT
//
// Each observed name is a small file in the folder; posting writes one byte to it, and the
// observers watch their files (inotify(7)). So there is nobody to connect to: a process that died
// leaves a file that the next one uses, the system keeps what is posted until a process looks, and
// a folder that somebody clears away is made anew by those that still watch it.
#include "foundation/notification_core.h"

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace foundation {
namespace {

constexpr std::size_t longestFileName = 255;
constexpr unsigned watchedEvents = IN_MODIFY | IN_DELETE_SELF | IN_MOVE_SELF;

bool standsForItself(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
         (character >= '0' && character <= '9') || character == '-' || character == '_';
}

// The name with all but letters, digits, '-', '_' and inner dots as %XX: no separators, no "..".
std::string fileName(std::string_view name) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string escaped = name.empty() ? "%" : "";
  for (const char character : name) {
    if (standsForItself(character) || (character == '.' && !escaped.empty())) {
      escaped += character;
    } else {
      const auto byte = static_cast<unsigned char>(character);
      escaped += {'%', digits[byte >> 4], digits[byte & 15]};
    }
  }
  return escaped;
}

model::Result<std::string> pathOf(const std::string& folder, std::string_view name) {
  const std::string file = fileName(name);
  if (file.size() > longestFileName) return model::Error{"notification name too long"};
  return folder + "/" + file;
}

model::Error systemError() {
  return {std::strerror(errno)};
}

// The folder with all above it; the last one is for the user alone.
model::Result<bool> makeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(std::filesystem::path(folder).parent_path(), error);
  if (error) return model::Error{error.message()};
  if (mkdir(folder.c_str(), S_IRWXU) != 0 && errno != EEXIST) return systemError();
  return true;
}

}  // namespace

std::string notificationFolder(std::string_view deviceRoot) {
  return std::string(deviceRoot) + "/var/run/notifications";
}

model::Result<bool> postNotification(const std::string& folder, std::string_view name) {
  const model::Result<std::string> path = pathOf(folder, name);
  if (!path) return path.error();
  const int file = open(path->c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
  if (file < 0 && errno == ENOENT) return true;  // never observed
  if (file < 0) return systemError();
  const bool written = pwrite(file, "\n", 1, 0) == 1;
  const model::Error failure = systemError();
  close(file);
  if (!written) return failure;
  return true;
}

NotificationCentre::NotificationCentre(std::string folder)
    : _folder(std::move(folder)), _descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {}

NotificationCentre::~NotificationCentre() {
  if (_descriptor >= 0) close(_descriptor);
}

model::Result<int> NotificationCentre::watch(const std::string& name) {
  const model::Result<std::string> path = pathOf(_folder, name);
  if (!path) return path.error();
  if (const auto made = makeFolder(_folder); !made) return made.error();
  const int file =
      open(path->c_str(), O_WRONLY | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600);
  if (file < 0) return systemError();
  close(file);
  const int made = inotify_add_watch(_descriptor, path->c_str(), watchedEvents);
  if (made < 0) return systemError();
  return made;
}

model::Result<bool> NotificationCentre::addObserver(std::string name, Callback callback) {
  const model::Result<int> made = watch(name);
  if (!made) return made.error();
  _observers.push_back({std::move(name), std::move(callback), *made});
  return true;
}

int NotificationCentre::deliver() {
  const std::vector<std::string> posted = takePosted();
  for (const std::string& name : posted) {
    const std::vector<Observer> observers = _observers;  // a callback may add to them
    for (const Observer& observer : observers)
      if (observer.name == name) observer.callback(name);
  }
  return static_cast<int>(posted.size());
}

std::vector<std::string> NotificationCentre::takePosted() {
  std::vector<std::string> posted;
  alignas(inotify_event) std::array<char, 4096> events;
  ssize_t length = 0;
  while ((length = read(_descriptor, events.data(), events.size())) > 0) {
    for (std::size_t at = 0; at < static_cast<std::size_t>(length);) {
      inotify_event event;
      std::memcpy(&event, events.data() + at, sizeof event);
      at += sizeof event + event.len;
      notePosted(event.wd, event.mask, posted);
    }
  }
  return posted;
}

void NotificationCentre::notePosted(int watchNumber, unsigned mask,
                                    std::vector<std::string>& posted) {
  const bool lost = mask & IN_Q_OVERFLOW;  // too many at once: any name may have been posted
  for (Observer& observer : _observers) {
    if (!lost && observer.watch != watchNumber) continue;
    if (mask & (IN_DELETE_SELF | IN_MOVE_SELF | IN_IGNORED)) {
      if (const auto again = watch(observer.name); again) observer.watch = *again;
    }
    if ((lost || (mask & IN_MODIFY)) && std::ranges::find(posted, observer.name) == posted.end())
      posted.push_back(observer.name);
  }
}

}  // namespace foundation
