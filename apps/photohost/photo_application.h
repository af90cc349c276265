// SPDX-License-Identifier: MIT
//
// The application as a whole: what it is made of, in the order it comes up, and its main loop.
#pragma once

#include <memory>

#include "apps/photohost/options.h"
#include "bridge/runtime/autorelease_pool.h"
#include "desktop/library/photo_library.h"
#include "desktop/pictures/picture_loader.h"
#include "desktop/render/renderer.h"
#include "foundation/device_root.h"

namespace photohost {

// Makes this program a decoder of pictures instead of an application.
inline constexpr char decoderArgument[] = "--decode-pictures";

class PhotoApplication {
 public:
  // The arguments outlive the application.
  PhotoApplication(int& argumentCount, char** arguments, const Options& options);
  ~PhotoApplication();

  // Runs until the window is closed or the script has ended; the exit status.
  int run();

 private:
  void openLibrary();
  void loadExtensions();
  void showWindow();
  // What modules and workers lack, each once.
  static void tellProblems();
  // What waits outside the views: changes of the library, pictures, notifications.
  void deliver();
  // The same, and waits for what is under way: for scripts, which see nothing half done.
  void deliverAll();
  int runScript();
  int runWindow();

  const bridge::AutoreleasePool _pool;
  const Options _options;
  const foundation::DeviceRoot _root;
  desktop::render::Renderer _renderer;
  desktop::pictures::PictureLoader _pictures;
  std::unique_ptr<desktop::library::PhotoLibrary> _library;  // null where it cannot be opened
};

}  // namespace photohost
