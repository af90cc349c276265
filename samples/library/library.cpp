// SPDX-License-Identifier: MIT
#include "samples/library/library.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "samples/library/file_output.h"
#include "samples/library/film.h"
#include "samples/library/items.h"
#include "samples/library/photo_file.h"

namespace samples {

namespace {

// A digest of this program's sources, so that any change makes a new generation.
constexpr std::string_view generation = SAMPLES_GENERATION;
constexpr std::string_view stampName = ".generation";

using Failure = std::optional<model::Error>;

Failure writePhoto(const std::string& folder, const Photo& photo) {
  model::Result<Bytes> bytes = makePhoto(photo);
  if (!bytes) return model::Error{std::string(photo.path) + ": " + bytes.error().reason};
  return writeFile(folder + "/" + photo.path, {.head = std::move(*bytes)},
                   momentOf(photo.taken, photo.place));
}

Failure writeMovie(const std::string& folder, const Movie& movie) {
  const model::Result<FileContent> content = makeMovie(movie);
  if (!content) return model::Error{std::string(movie.path) + ": " + content.error().reason};
  return writeFile(folder + "/" + movie.path, *content, momentOf(movie.taken, movie.place));
}

// Movies first: they take longest, so that no thread is left alone with one at the end.
Failure writeItem(const std::string& folder, std::size_t index) {
  const auto movies = allMovies();
  return index < movies.size() ? writeMovie(folder, movies[index])
                               : writePhoto(folder, allPhotos()[index - movies.size()]);
}

std::size_t itemCount() {
  return allMovies().size() + allPhotos().size();
}

// Each item is made by one thread alone, so the number of threads does not change the bytes.
Failure writeItems(const std::string& folder) {
  std::atomic<std::size_t> next = 0;
  std::mutex guard;
  Failure first;
  const auto work = [&] {
    for (std::size_t index = next++; index < itemCount(); index = next++) {
      const Failure failure = writeItem(folder, index);
      if (!failure) continue;
      const std::lock_guard lock(guard);
      if (!first) first = failure;
    }
  };
  std::vector<std::jthread> threads(std::max(std::thread::hardware_concurrency(), 1u));
  for (std::jthread& thread : threads) thread = std::jthread(work);
  threads.clear();
  return first;
}

Failure makeFolders(const std::string& folder) {
  std::error_code error;
  const auto makeParent = [&](const char* path) {
    if (!error)
      std::filesystem::create_directories(std::filesystem::path(folder + "/" + path).parent_path(),
                                          error);
  };
  for (const Photo& photo : allPhotos()) makeParent(photo.path);
  for (const Movie& movie : allMovies()) makeParent(movie.path);
  for (const char* marker : allMarkers()) makeParent(marker);
  if (error) return model::Error{folder + ": " + error.message()};
  return std::nullopt;
}

std::string stampPath(const std::string& folder) {
  return folder + "/" + std::string(stampName);
}

bool isCurrent(const std::string& folder) {
  std::ifstream stamp(stampPath(folder));
  std::string held;
  if (!std::getline(stamp, held) || held != generation) return false;
  const auto exists = [&](const auto& item) {
    std::error_code ignored;
    return std::filesystem::exists(folder + "/" + item.path, ignored);
  };
  return std::ranges::all_of(allPhotos(), exists) && std::ranges::all_of(allMovies(), exists);
}

}  // namespace

model::Result<Outcome> makeLibrary(const std::string& folder, Rewrite rewrite) {
  if (rewrite == Rewrite::ifOutdated && isCurrent(folder)) return Outcome::current;
  if (const Failure failure = makeFolders(folder)) return *failure;
  if (const Failure failure = writeItems(folder)) return *failure;
  constexpr model::Date beginning{};
  for (const char* marker : allMarkers())
    if (const Failure failure = writeFile(folder + "/" + marker, {}, beginning)) return *failure;
  // The stamp comes last: a run that was cut short leaves none.
  Bytes stamp(generation.begin(), generation.end());
  stamp.push_back('\n');
  if (const Failure failure = writeFile(stampPath(folder), {.head = stamp}, beginning))
    return *failure;
  return Outcome::written;
}

}  // namespace samples
