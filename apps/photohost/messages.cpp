// SPDX-License-Identifier: MIT
#include "apps/photohost/messages.h"

#include <QMessageLogContext>
#include <QString>
#include <iostream>

#include "foundation/terminal_text.h"

namespace photohost {

void complain(std::string_view text) {
  std::cerr << "photohost: " + terminalSafe(text, foundation::Keep::nothing) + "\n";
}

void takeQtMessages() {
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) {
    complain(text.toStdString());
  });
}

}  // namespace photohost
