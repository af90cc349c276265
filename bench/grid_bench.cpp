// SPDX-License-Identifier: MIT
//
// A frame of a grid of 100,000 photos that scrolls fast, painted at two pixels a point: layout,
// new cells with their thumbnails, and every pixel of the screen; first without the extension, then
// with its captions of pixel and file size.
//
//   grid_bench [--benchmark_...]
#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <QImage>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string_view>

#include "bridge/runtime/autorelease_pool.h"
#include "bridge/uikit.h"
#include "desktop/faces/foundation/foundation_runtime.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/photos_ui/photos_ui.h"
#include "desktop/pictures/workers/serve_decoder.h"
#include "desktop/render/renderer.h"
#include "desktop/render/screen_picture.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/base/screen.h"

namespace {

using namespace desktop;

constexpr std::size_t itemCount = 100'000;
constexpr int fileCount = 64;
constexpr std::size_t sectionLength = 11;  // an ordinary day
constexpr double scale = 2;
constexpr char decoderArgument[] = "--decode-pictures";

// Pictures of many colours, which all items share; gone at the end.
class PictureFiles {
 public:
  PictureFiles() : _path((std::filesystem::temp_directory_path() / "grid-bench-XXXXXX").native()) {
    if (::mkdtemp(_path.data()) == nullptr) throw std::runtime_error("no temporary folder");
    for (int file = 0; file < fileCount; ++file) {
      QImage image(400, 300, QImage::Format_RGB32);
      for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
          image.setPixel(x, y, qRgb((x + 7 * file) % 256, y % 256, (4 * file) % 256));
      image.save(QString::fromStdString(fileAt(file)), "png");
    }
  }
  ~PictureFiles() { std::filesystem::remove_all(_path); }
  PictureFiles(const PictureFiles&) = delete;
  PictureFiles& operator=(const PictureFiles&) = delete;

  const std::string& path() const { return _path; }

  std::vector<library::ItemPointer> items() const {
    std::vector<library::ItemPointer> all;
    for (std::size_t index = 0; index < itemCount; ++index)
      all.push_back(std::make_shared<library::LibraryItem>(
          library::LibraryItem{.path = fileAt(static_cast<int>(index % fileCount)),
                               .uuid = std::to_string(index),
                               .modificationDate = {static_cast<double>(index)}}));
    return all;
  }

 private:
  std::string fileAt(int number) const { return _path + "/" + std::to_string(number) + ".png"; }

  std::string _path;
};

const PictureFiles& pictureFiles() {
  static const PictureFiles files;
  return files;
}

// The settings that the extension finds when it is mapped, below a device root of its own.
void writeSettings(const std::string& root) {
  const std::string folder = root + "/var/mobile/Library/Preferences";
  std::filesystem::create_directories(folder);
  std::ofstream(folder + "/net.korvu.lumifact.plist")
      << "<plist version=\"1.0\"><dict><key>thumbnailInfoDisplay</key><integer>3</integer></dict>"
         "</plist>";
}

// Once for good: from then on every grid has captions.
bool mapExtension() {
  static const bool isMapped = dlopen(EXTENSION, RTLD_NOW | RTLD_LOCAL) != nullptr;
  return isMapped;
}

photos_ui::ItemListPointer listOf(std::vector<library::ItemPointer> items, bool hasSections) {
  if (!hasSections) return std::make_shared<photos_ui::ItemList>(std::move(items));
  std::vector<library::Section> sections;
  for (std::size_t first = 0; first < items.size(); first += sectionLength)
    sections.push_back({.title = "Day " + std::to_string(sections.size()),
                        .first = first,
                        .count = std::min(sectionLength, items.size() - first)});
  return std::make_shared<photos_ui::ItemList>(std::move(items), std::move(sections));
}

// The grid on the screen, below its bar.
bridge::Owned<bridge::UIViewController> show(const photos_ui::ItemListPointer& list,
                                             bool hasSections) {
  uikit::resetApplication();
  auto grid = photos_ui::PUPhotosGridViewControllerState::make(
      photos_ui::PUPhotosGridViewControllerState::classObject(),
      {.title = "Moments", .list = [list] { return list; }, .hasHeaders = hasSections});
  const auto window = bridge::makeView<bridge::UIWindow>(uikit::rectOfSize(uikit::screen().size));
  window->setRootViewController(bridge::UINavigationController::withRoot(grid).get());
  window->makeKeyAndVisible();
  return grid;
}

// A frame after a sixtieth of a second of a fling.
void scrollingGrid(benchmark::State& state) {
  constexpr double step = 47;  // points
  const bridge::AutoreleasePool pool;
  if (state.range(0) != 0 && !mapExtension())
    return state.SkipWithError("the extension cannot be mapped");
  const bool hasSections = state.range(1) != 0;
  const auto grid = show(listOf(pictureFiles().items(), hasSections), hasSections);
  const bridge::UICollectionView view =
      photos_ui::PUPhotosGridViewControllerState::of(grid.get()).collectionView();
  render::ScreenPicture screen;
  double y = 0;
  std::vector<double> times;  // milliseconds
  const auto frame = [&] {
    const bridge::AutoreleasePool framePool;
    y += step;
    bridge::send<void, "setContentOffset:">(view, CGPoint{0, y});
    uikit::application().advance(1.0 / 60);
    photos_ui::host().pictures->deliverFinished();
    screen.update(scale);
  };
  for (int warm = 0; warm < 120; ++warm) {
    frame();
    photos_ui::host().pictures->waitUntilIdle(std::chrono::seconds(5));
  }
  for ([[maybe_unused]] const auto _ : state) {
    const auto start = std::chrono::steady_clock::now();
    frame();
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    times.push_back(took.count());
  }
  const auto late = times.begin() + static_cast<std::ptrdiff_t>(times.size() * 99 / 100);
  std::ranges::nth_element(times, late);
  state.counters["p99_ms"] = *late;
  const QImage shown = screen.image();
  int painted = 0;
  for (int row = 0; row < shown.height(); ++row)
    painted += shown.pixel(40, row) != qRgb(255, 255, 255);
  if (painted < shown.height() / 2) state.SkipWithError("the thumbnails are not on screen");
}
BENCHMARK(scrollingGrid)
    ->ArgNames({"extension", "sections"})
    ->Args({0, 0})
    ->Args({0, 1})
    ->Args({1, 0})
    ->Args({1, 1})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1'000);

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && std::string_view(argv[1]) == decoderArgument)
    return pictures::serveDecoder(pictures::decoderSocket);
  const render::Renderer renderer(argc, argv, render::Display::none);
  const bridge::AutoreleasePool pool;
  const foundation::DeviceRoot root(pictureFiles().path() + "/root");
  writeSettings(pictureFiles().path() + "/root");
  faces::correctFoundation({root, "com.apple.mobileslideshow"});
  uikit::registerUIKit();
  photos_ui::registerPhotosUI();
  const auto library = *library::PhotoLibrary::open(pictureFiles().path(), root);
  photos_ui::host().library = library.get();
  pictures::PictureLoader pictures({.command = {"/proc/self/exe", decoderArgument}});
  photos_ui::host().pictures = &pictures;
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  uikit::resetApplication();
  photos_ui::host() = {};
  return 0;
}
