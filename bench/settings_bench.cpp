// SPDX-License-Identifier: MIT
//
// The first painted frame of a settings page of 200 rows at two pixels a point, from its file on:
// read, measured, and its rows in sight made and drawn. Every kind of row takes its turn; once with
// all rows in one group, once with a header and a footer of several lines for every four of them.
//
//   settings_bench [--benchmark_...]
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "bridge/runtime/autorelease_pool.h"
#include "bridge/uikit.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/photos_ui.h"
#include "desktop/photos_ui/settings/settings_page.h"
#include "desktop/render/renderer.h"
#include "desktop/render/screen_picture.h"
#include "desktop/settings/page_folder.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/base/screen.h"
#include "foundation/property_lists/property_list.h"

namespace {

using namespace desktop;

constexpr std::size_t rowCount = 200;
constexpr double scale = 2;
constexpr double goal = 16;  // milliseconds

// Pages of one extension, and its device root; gone at the end.
class PageFolder {
 public:
  PageFolder()
      : _path((std::filesystem::temp_directory_path() / "settings-bench-XXXXXX").native()) {
    if (::mkdtemp(_path.data()) == nullptr) throw std::runtime_error("no temporary folder");
  }
  ~PageFolder() { std::filesystem::remove_all(_path); }
  PageFolder(const PageFolder&) = delete;
  PageFolder& operator=(const PageFolder&) = delete;

  const std::string& path() const { return _path; }

 private:
  std::string _path;
};

model::Dictionary cell(const char* type, std::size_t number) {
  return {{"cell", type},
          {"label", "Row " + std::to_string(number)},
          {"key", "key" + std::to_string(number)},
          {"defaults", "com.example.bench"}};
}

model::Dictionary rowOf(std::size_t number) {
  switch (number % 4) {
    case 0:
      return cell("PSSwitchCell", number);
    case 1:
      return cell("PSSliderCell", number);
    default:
      break;
  }
  auto made = cell(number % 4 == 2 ? "PSSegmentCell" : "PSLinkListCell", number);
  made["validTitles"] = model::Array{"One", "Two", "Three"};
  made["validValues"] = model::Array{1, 2, 3};
  made["default"] = 2;
  return made;
}

void writePage(const std::string& folder, bool hasGroups) {
  model::Array items;
  for (std::size_t number = 0; number < rowCount; ++number) {
    if (hasGroups && number % 4 == 0)
      items.emplace_back(model::Dictionary{
          {"cell", "PSGroupCell"},
          {"label", "Group " + std::to_string(number / 4)},
          {"footerText",
           "What these four rows are for, in so many words that they take more lines "
           "than one below the group, as footers do."}});
    items.emplace_back(rowOf(number));
  }
  const model::Value page = model::Dictionary{{"entry", model::Dictionary{{"label", "Bench"}}},
                                              {"items", std::move(items)}};
  std::ofstream(folder + "/Bench.plist", std::ios::binary)
      << *foundation::serializePropertyList(page, foundation::PropertyListFormat::xml);
}

void firstFrame(benchmark::State& state) {
  const PageFolder folder;
  writePage(folder.path(), state.range(0) != 0);
  photos_ui::host().deviceRoot = foundation::DeviceRoot(folder.path());
  for (auto _ : state) {
    const bridge::AutoreleasePool pool;
    uikit::resetApplication();
    auto pages = settings::readPages(folder.path());
    const auto page = photos_ui::SettingsPage::make(std::move(pages->front()));
    const auto window = bridge::makeView<bridge::UIWindow>(uikit::rectOfSize(uikit::screen().size));
    window->setRootViewController(bridge::UINavigationController::withRoot(page).get());
    window->makeKeyAndVisible();
    uikit::application().prepareFrame();
    render::ScreenPicture picture;
    picture.update(scale);
  }
  state.counters["goal_ms"] = goal;
}
BENCHMARK(firstFrame)->ArgName("groups")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  const render::Renderer renderer(argc, argv, render::Display::none);
  uikit::registerUIKit();
  photos_ui::registerPhotosUI();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  uikit::resetApplication();
  photos_ui::host() = {};
}
