// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/cells/picture_ticket.h"

#include "desktop/photos_ui/base/photos_host.h"

namespace desktop::photos_ui {

void PictureTicket::request(const std::string& path, const pictures::Request& request,
                            pictures::Priority priority,
                            pictures::PictureLoader::Callback callback) {
  cancel();
  if (!host().pictures) return;
  _ticket = host().pictures->request(path, request, priority,
                                     [this, callback = std::move(callback)](const auto& outcome) {
                                       _ticket = pictures::Ticket{0};
                                       callback(outcome);
                                     });
}

// The loader may be gone before the last view.
void PictureTicket::cancel() {
  const auto ticket = std::exchange(_ticket, pictures::Ticket{0});
  if (ticket != pictures::Ticket{0} && host().pictures) host().pictures->cancel(ticket);
}

}  // namespace desktop::photos_ui
