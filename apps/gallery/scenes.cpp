// SPDX-License-Identifier: MIT
//
// Every scene is set up as a user would come to it: shown by the extension's own calls, then
// touched.
#include "apps/gallery/scenes.h"

#include "apps/gallery/sample_report.h"
#include "bridge/convert.h"
#include "bridge/uikit.h"
#include "desktop/script/screen_text.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "lumifact/views/lf_presenter.h"
#include "lumifact/views/lumifact_pop_up_view_controller.h"
#include "lumifact/views/lumifact_view_controller.h"

namespace gallery {
namespace {

using bridge::NSString;
using desktop::uikit::application;
using desktop::uikit::screen;
using desktop::uikit::touches;

constexpr std::int32_t fontSize = 12;            // points
constexpr desktop::uikit::Seconds restTime = 1;  // until everything stands still
constexpr desktop::uikit::Seconds pressTime = 0.6;

void rest() {
  application().advance(restTime);
}

void press(CGPoint at, desktop::uikit::Seconds time) {
  touches().down(at);
  application().advance(time);
  touches().up(at);
  rest();
}

void tap(std::string_view text) {
  if (const auto at = desktop::script::placeOf(text)) press(*at, 0.05);
}

void longPress(std::string_view text) {
  if (const auto at = desktop::script::placeOf(text)) press(*at, pressTime);
}

// An empty screen that others are presented on.
bridge::UIViewController makeRoot() {
  const auto window = bridge::makeView<bridge::UIWindow>(desktop::uikit::rectOfSize(screen().size));
  const auto root = bridge::makeNew<bridge::UIViewController>();
  root->view().setBackgroundColor(bridge::UIColor::white(0.85, 1));
  window->setRootViewController(root);
  window->makeKeyAndVisible();
  rest();
  return root;
}

void present(bridge::UIViewController page) {
  makeRoot().present(bridge::UINavigationController::withRoot(page),
                     bridge::UIViewController::animated, {});
  rest();
}

void showBox() {
  const bridge::UIViewController root = makeRoot();
  lumifact::LumifactPopUpViewController::show(root.view(),
                                              NSString::make(sampleReport().quickInfo));
  rest();
}

void showText() {
  const SampleReport report = sampleReport();
  present(lumifact::LFPresenter::make(NSString::make(report.header + report.text),
                                      NSString::make(report.mapLink), 0, fontSize));
}

void showSelectedText() {
  showText();
  tap("Select All");
}

void showTable() {
  const SampleReport report = sampleReport();
  const auto table = bridge::toObject(model::Value(report.table));
  const auto summary = bridge::toObject(model::Value(report.fileSummary));
  present(lumifact::LumifactViewController::make(
      {.tableData = table,
       .extraData = bridge::as<bridge::NSDictionary>(summary.get()),
       .mapLink = NSString::make(report.mapLink),
       .title = NSString::make(report.title)}));
}

void showTableSection() {
  showTable();
  touches().scroll({100, 400}, {0, 600});
  rest();
  tap("{Exif}");
}

void showTableMenu() {
  showTable();
  longPress("FileSize");
}

struct Scene {
  std::string_view name;
  void (*show)();
};
constexpr Scene scenes[] = {
    {"box", showBox},
    {"text", showText},
    {"text-selected", showSelectedText},
    {"table", showTable},
    {"table-section", showTableSection},
    {"table-menu", showTableMenu},
};

}  // namespace

std::optional<model::Error> showScene(std::string_view name) {
  const bridge::AutoreleasePool pool;
  std::string known;
  for (const Scene& scene : scenes) {
    if (scene.name == name) return scene.show(), std::nullopt;
    known.append(known.empty() ? "" : ", ").append(scene.name);
  }
  return model::Error{"unknown view '" + std::string(name) + "'; the views are " + known};
}

}  // namespace gallery
