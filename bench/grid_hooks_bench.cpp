// SPDX-License-Identifier: MIT
//
// What the grid's hooks take by themselves, in a grid that answers at once: the title of 10,000
// selected photos, and a press on a photo whose place has a name of a megabyte, until the summary
// is painted.
//
//   grid_hooks_bench [--benchmark_...]
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "bridge/class_builder.h"
#include "bridge/photos.h"
#include "desktop/faces/foundation/foundation_runtime.h"
#include "desktop/render/renderer.h"
#include "desktop/render/screen_picture.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/base/screen.h"
#include "lumifact/loader/hook_table.h"
#include "lumifact/state/current_settings.h"
#include "lumifact/state/file_size_cache.h"

namespace {

using namespace bridge;
using desktop::uikit::application;

constexpr std::size_t photoCount = 10'000;
constexpr std::size_t placeLength = 1'000'000;
constexpr double scale = 2;

// One small file for every photo; gone at the end.
class Files {
 public:
  Files() : _path((std::filesystem::temp_directory_path() / "grid-hooks-bench-XXXXXX").native()) {
    if (::mkdtemp(_path.data()) == nullptr) throw std::runtime_error("no temporary folder");
    for (std::size_t photo = 0; photo < photoCount; ++photo)
      std::ofstream(fileAt(photo)) << "some bytes";
  }
  ~Files() { std::filesystem::remove_all(_path); }
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  std::string fileAt(std::size_t photo) const { return _path + "/" + std::to_string(photo); }

 private:
  std::string _path;
};

class Asset : public Bound<Asset, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made = ClassBuilder<Asset>("PHAsset")
                                  .method<"uuid", &Asset::uuid>()
                                  .method<"mainFileURL", &Asset::mainFileURL>()
                                  .method<"fileURLForFullsizeImage", &Asset::noFile>()
                                  .method<"fileURLForLargePreview", &Asset::noFile>()
                                  .method<"fileURLForMediumPreview", &Asset::noFile>()
                                  .method<"isVideo", &Asset::isVideo>()
                                  .method<"creationDate", &Asset::creationDate>()
                                  .method<"pixelWidth", &Asset::pixels>()
                                  .method<"pixelHeight", &Asset::pixels>()
                                  .method<"duration", &Asset::duration>()
                                  .method<"exifOrientation", &Asset::exifOrientation>()
                                  .method<"localizedGeoDescription", &Asset::placeName>()
                                  .build();
    return made;
  }
  static Owned<Object> make(std::size_t number, const std::string& file) {
    auto made = Owned<Object>::adopt(send<Object, "new">(classObject()));
    Asset& asset = of(made.get());
    asset._uuid = Owned<NSString>::retain(NSString::make("uuid " + std::to_string(number)));
    asset._file = Owned<NSURL>::retain(NSURL::withString(NSString::make("file://" + file)));
    return made;
  }

  Owned<NSString> place;

 private:
  NSString uuid() const { return _uuid; }
  NSURL mainFileURL() const { return _file; }
  NSURL noFile() const { return {}; }
  bool isVideo() const { return false; }
  NSDate creationDate() const { return NSDate::withTimeIntervalSince1970(1e9); }
  NSUInteger pixels() const { return 3'000; }
  double duration() const { return 0; }
  short exifOrientation() const { return 6; }
  NSString placeName() const { return place; }

  Owned<NSString> _uuid;
  Owned<NSURL> _file;
};

class Grid : public Bound<Grid, UIViewController> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made = ClassBuilder<Grid>("PUPhotosGridViewController")
                                  .method<"setEditing:animated:", &Grid::setEditing>()
                                  .method<"isAnyAssetSelected", &Grid::isAnyAssetSelected>()
                                  .method<"selectedAssets", &Grid::selectedAssets>()
                                  .method<"localizedSelectionTitle", &Grid::title>()
                                  .method<"collectionView", &Grid::collectionView>()
                                  .method<"indexPathForItemAtPoint:", &Grid::pathAt>()
                                  .method<"assetAtIndexPath:", &Grid::assetAt>()
                                  .method<"state", &Grid::gestureState>()
                                  .method<"locationInView:", &Grid::touch>()
                                  .build();
    return made;
  }

  Owned<NSMutableArray> selected = makeNew<NSMutableArray>();

 private:
  void setEditing(bool, bool) {}
  bool isAnyAssetSelected() const { return true; }
  NSArray selectedAssets() const { return selected; }
  NSString title() const { return NSString::make("10,000 Photos Selected"); }
  // It is its own view of items and its own gesture, too.
  Object collectionView() const { return self(); }
  NSIndexPath pathAt(CGPoint) const {
    return send<NSIndexPath, "indexPathForRow:inSection:">(NSIndexPath::classObject(), NSInteger{0},
                                                           NSInteger{0});
  }
  Object assetAt(NSIndexPath) const { return selected->at(0); }
  NSInteger gestureState() const { return UIGestureRecognizer::began; }
  CGPoint touch(Object) const { return {}; }
};

Owned<PUPhotosGridViewController> makeGrid() {
  static const Files files;
  auto made = makeNew<PUPhotosGridViewController>(Grid::classObject());
  for (std::size_t photo = 0; photo < photoCount; ++photo)
    Grid::of(made.get()).selected->add(Asset::make(photo, files.fileAt(photo)));
  send<void, "setEditing:animated:">(made, true, false);
  return made;
}

void perPhoto(benchmark::State& state) {
  state.counters["per_photo"] = benchmark::Counter(
      photoCount, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void titleWithSizesKnown(benchmark::State& state) {
  const AutoreleasePool pool;
  const auto grid = makeGrid();
  lumifact::createFileSizeCache();
  for ([[maybe_unused]] const auto _ : state) {
    const AutoreleasePool turn;
    benchmark::DoNotOptimize(grid->localizedSelectionTitle().get());
  }
  perPhoto(state);
}
BENCHMARK(titleWithSizesKnown)->Unit(benchmark::kMillisecond);

void titleWithSizesRead(benchmark::State& state) {
  const AutoreleasePool pool;
  const auto grid = makeGrid();
  for ([[maybe_unused]] const auto _ : state) {
    state.PauseTiming();
    lumifact::createFileSizeCache();
    state.ResumeTiming();
    const AutoreleasePool turn;
    benchmark::DoNotOptimize(grid->localizedSelectionTitle().get());
  }
  perPhoto(state);
}
BENCHMARK(titleWithSizesRead)->Unit(benchmark::kMillisecond);

// The argument is the form: 1 the box, 2 the alert.
void pressWithLongPlace(benchmark::State& state) {
  const AutoreleasePool pool;
  lumifact::settings.thumbnailQuickInfo = static_cast<std::int32_t>(state.range(0));
  std::string place;
  while (place.size() < placeLength) place += "Llanfairpwllgwyngyll, ";
  for ([[maybe_unused]] const auto _ : state) {
    state.PauseTiming();
    const AutoreleasePool turn;
    desktop::uikit::resetApplication();
    const auto grid = makeGrid();
    Asset::of(Grid::of(grid.get()).selected->at(0)).place =
        Owned<NSString>::retain(NSString::make(place));
    const auto window =
        makeView<UIWindow>(desktop::uikit::rectOfSize(desktop::uikit::screen().size));
    window->setRootViewController(grid);
    window->makeKeyAndVisible();
    desktop::render::ScreenPicture screen;
    screen.update(scale);
    state.ResumeTiming();
    send<void, "lumifactLongPress:">(grid, grid);
    application().advance(1.0 / 60);
    screen.update(scale);
  }
}
BENCHMARK(pressWithLongPlace)->ArgName("form")->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  const desktop::render::Renderer renderer(argc, argv, desktop::render::Display::none);
  const AutoreleasePool pool;
  desktop::faces::correctFoundation({});
  desktop::uikit::registerUIKit();
  Asset::classObject();
  Grid::classObject();
  for (const HookList rows : lumifact::hookTable()) applyHooks(rows);
  lumifact::settings.showSelectedSize = true;
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  desktop::uikit::resetApplication();
  return 0;
}
