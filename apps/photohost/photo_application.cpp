// SPDX-License-Identifier: MIT
//
// The order counts: Foundation is corrected and the platform's classes are there before extensions
// are mapped, so that hooks find what they replace; then the library opens, and only then is
// anything shown. A window's main loop takes over, or a script on a clock of its own.
#include "apps/photohost/photo_application.h"

#include "apps/photohost/host_commands.h"
#include "apps/photohost/main_loop.h"
#include "apps/photohost/messages.h"
#include "apps/photohost/outside.h"
#include "bridge/corefoundation.h"
#include "bridge/foundation.h"
#include "bridge/uikit.h"
#include "desktop/faces/foundation/foundation_runtime.h"
#include "desktop/faces/movie/avfoundation_runtime.h"
#include "desktop/loader/extension_loader.h"
#include "desktop/photos_ui/base/library_observer.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/navigation/navigation.h"
#include "desktop/photos_ui/photos_ui.h"
#include "desktop/runtime/darwin_notifications.h"
#include "desktop/runtime/debug_log.h"
#include "desktop/script/script_runner.h"
#include "desktop/script/system_commands.h"
#include "desktop/uikit/application/application.h"
#include "desktop/uikit/application/uikit.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/base/outside.h"
#include "desktop/uikit/base/platform_log.h"
#include "desktop/uikit/base/screen.h"
#include "foundation/notification_core.h"
#include "io/on_demand_module.h"
#include "workers/greeting.h"

namespace photohost {
namespace {

using namespace desktop;
using uikit::application;
using uikit::outside;
using uikit::platformLog;
using uikit::screen;

// For pictures, in scripts. Each ends by what it takes of the processor, not by the clock.
constexpr std::chrono::hours longestWait{24};

foundation::DeviceRoot rootOf(const Options& options) {
  return options.root.empty() ? foundation::DeviceRoot::ofUser()
                              : foundation::DeviceRoot(options.root);
}

render::Display displayOf(const Options& options) {
  return options.isHeadless ? render::Display::none : render::Display::real;
}

}  // namespace

// Foundation is corrected and the platform's classes are there before anything is made of them;
// extensions come last, when all that they may hook is in place.
PhotoApplication::PhotoApplication(int& argumentCount, char** arguments, const Options& options)
    : _options(options),
      _root(rootOf(options)),
      _renderer(argumentCount, arguments, displayOf(options)),
      _pictures({.command = {PHOTOHOST_DECODER, decoderArgument}}) {
  faces::correctFoundation({.root = _root, .bundleIdentifier = options.bundleIdentifier});
  runtime::openDarwinNotifications(foundation::notificationFolder(_root.folder()));
  runtime::setDebugLogSink(
      [](const runtime::DebugLogLine& line) { platformLog().push_back(line.message()); });
  uikit::registerUIKit();
  photos_ui::registerPhotosUI();
  faces::registerAVFoundation();
  screen().size = options.size;
  screen().scale = options.scale;
  application().statusBar = {.isShown = true};
  loadExtensions();
  openLibrary();
}

PhotoApplication::~PhotoApplication() {
  uikit::resetApplication();
  photos_ui::host() = {};
}

void PhotoApplication::loadExtensions() {
  if (_options.extensions.empty()) return;
  photos_ui::host().settingsFolder = _options.extensions + "/Preferences";
  photos_ui::host().deviceRoot = _root;
  loader::loadExtensions(
      _options.extensions, {_options.bundleIdentifier, kCFCoreFoundationVersionNumber},
      [](const std::string& path, const std::string& reason) { complain(path + ": " + reason); });
}

void PhotoApplication::openLibrary() {
  const std::string folder = _options.library.empty() ? userPictureFolder() : _options.library;
  auto library = library::PhotoLibrary::open(folder, _root);
  if (library) {
    _library = *std::move(library);
    _library->onChange(
        [](const library::LibraryChange& change) { photos_ui::tellLibraryObservers(change); });
  } else {
    photos_ui::host().libraryProblem = folder + ": " + library.error().reason;
    complain(photos_ui::host().libraryProblem);
  }
  photos_ui::host().library = _library.get();
  photos_ui::host().pictures = &_pictures;
}

void PhotoApplication::showWindow() {
  const AutoreleasePool pool;
  const auto window = bridge::makeView<UIWindow>(uikit::rectOfSize(screen().size));
  window->setRootViewController(photos_ui::makeRootController().get());
  window->makeKeyAndVisible();
}

void PhotoApplication::tellProblems() {
  for (const std::string& problem : io::takeModuleProblems()) complain(problem);
  if (const auto refused = workers::takeRefusedProtections())
    complain("decoders and readers of other containers: this system refuses them: " + *refused);
}

void PhotoApplication::deliver() {
  if (_library) _library->deliverChanges();
  _pictures.deliverFinished();
  runtime::deliverDarwinNotifications();
  tellProblems();
}

void PhotoApplication::deliverAll() {
  if (_library) _library->waitAndDeliver();
  runtime::deliverDarwinNotifications();
  application().prepareFrame();
  _pictures.waitUntilIdle(longestWait);
  application().prepareFrame();
  tellProblems();
}

int PhotoApplication::run() {
  showWindow();
  return _options.isHeadless ? runScript() : runWindow();
}

int PhotoApplication::runScript() {
  outside() = recordingOutside();
  script::ScriptRunner runner;
  script::addTouchCommands(runner);
  script::addScreenCommands(runner);
  script::addSystemCommands(runner, _root);
  addHostCommands(runner);
  runner.turn = [this] { deliverAll(); };
  if (_options.script.empty()) return 0;
  const auto failed = runner.runFile(_options.script);
  if (failed) complain(failed->reason);
  return failed ? 1 : 0;
}

int PhotoApplication::runWindow() {
  outside() = desktopOutside();
  MainLoop loop([this] { deliver(); });
  loop.watch(_pictures.wakeDescriptor());
  if (_library) loop.watch(_library->wakeDescriptor());
  loop.watch(runtime::darwinNotificationDescriptor());
  return loop.run();
}

}  // namespace photohost
