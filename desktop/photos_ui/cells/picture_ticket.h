// SPDX-License-Identifier: MIT
//
// One picture that somebody waits for: who goes, or wants another one, waits no more.
#pragma once

#include "desktop/pictures/picture_loader.h"

namespace desktop::photos_ui {

class PictureTicket {
 public:
  PictureTicket() = default;
  ~PictureTicket() { cancel(); }
  PictureTicket(const PictureTicket&) = delete;
  PictureTicket& operator=(const PictureTicket&) = delete;

  // Asks the application's loader, in place of what was asked for before; without a loader nothing
  // ever comes.
  void request(const std::string& path, const pictures::Request& request,
               pictures::Priority priority, pictures::PictureLoader::Callback callback);
  void cancel();
  bool isWaiting() const { return _ticket != pictures::Ticket{0}; }

 private:
  pictures::Ticket _ticket{0};
};

}  // namespace desktop::photos_ui
