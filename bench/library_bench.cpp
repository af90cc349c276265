// SPDX-License-Identifier: MIT
//
// What opening a large library costs: until its first photos can be shown, until all are known, and
// what grouping and naming them takes.
//
//   library_bench [--benchmark_...]     100,000 small files in 100 folders below a temporary one
#include <benchmark/benchmark.h>
#include <poll.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "desktop/library/photo_library.h"
#include "desktop/library/sections.h"

namespace {

using namespace desktop::library;

// Made once, gone at the end.
class ManyFiles {
 public:
  ManyFiles() : _path((std::filesystem::temp_directory_path() / "library-bench-XXXXXX").native()) {
    if (::mkdtemp(_path.data()) == nullptr) throw std::runtime_error("no temporary folder");
    for (int folder = 0; folder < 100; ++folder) {
      const auto below = std::filesystem::path(_path) / std::to_string(folder);
      std::filesystem::create_directory(below);
      for (int file = 0; file < 1000; ++file) {
        std::ofstream(below / ("IMG_" + std::to_string(file) + ".JPG")) << "x";
      }
    }
  }
  ~ManyFiles() { std::filesystem::remove_all(_path); }
  ManyFiles(const ManyFiles&) = delete;
  ManyFiles& operator=(const ManyFiles&) = delete;

  const std::string& path() const { return _path; }

  std::unique_ptr<PhotoLibrary> open() const {
    return *PhotoLibrary::open(_path, foundation::DeviceRoot("/nowhere"));
  }

 private:
  std::string _path;
};

const ManyFiles& manyFiles() {
  static const ManyFiles files;
  return files;
}

void deliverUntil(PhotoLibrary& library, const std::function<bool()>& condition) {
  while (!condition()) {
    pollfd wake{library.wakeDescriptor(), POLLIN, 0};
    ::poll(&wake, 1, 1000);
    library.deliverChanges();
  }
}

void firstItems(benchmark::State& state) {
  manyFiles();
  while (state.KeepRunning()) {
    const auto library = manyFiles().open();
    deliverUntil(*library, [&] { return !library->items().empty(); });
    state.PauseTiming();
    state.counters["items"] = static_cast<double>(library->items().size());
    state.ResumeTiming();
  }
}
BENCHMARK(firstItems)->Unit(benchmark::kMillisecond)->UseRealTime();

void allItems(benchmark::State& state) {
  while (state.KeepRunning()) {
    const auto library = manyFiles().open();
    deliverUntil(*library, [&] { return library->state() == LoadingState::ready; });
    if (library->items().size() != 100'000) state.SkipWithError("not all items");
  }
}
BENCHMARK(allItems)->Unit(benchmark::kMillisecond)->UseRealTime();

void readAgain(benchmark::State& state) {
  const auto library = manyFiles().open();
  while (state.KeepRunning()) library->waitAndDeliver();
}
BENCHMARK(readAgain)->Unit(benchmark::kMillisecond)->UseRealTime();

void albums(benchmark::State& state) {
  const auto library = manyFiles().open();
  library->waitAndDeliver();
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(makeAlbums({.libraryFolder = library->folder(),
                                         .items = library->items(),
                                         .isPanorama = [](const ItemPointer&) { return false; },
                                         .isShared = [](const std::string&) { return false; }}));
  }
}
BENCHMARK(albums)->Unit(benchmark::kMillisecond);

// A photo an hour, so that there are thousands of days.
void moments(benchmark::State& state) {
  std::vector<ItemPointer> items;
  items.reserve(100'000);
  for (int hour = 0; hour < 100'000; ++hour) {
    items.push_back(std::make_shared<const LibraryItem>(
        LibraryItem{.path = "/a.jpg", .modificationDate = {hour * 3600.0}}));
  }
  while (state.KeepRunning()) {
    benchmark::DoNotOptimize(makeSections(items, ZoomLevel::moments, foundation::Locale()));
  }
}
BENCHMARK(moments)->Unit(benchmark::kMillisecond);

}  // namespace
