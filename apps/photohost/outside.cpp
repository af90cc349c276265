// SPDX-License-Identifier: MIT
#include "apps/photohost/outside.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>
#include <QUrl>

#include "bridge/block.h"
#include "bridge/uikit.h"
#include "desktop/uikit/application/application.h"
#include "io/file_replacement.h"

namespace photohost {
namespace {

using bridge::Block;
using bridge::NSString;
using bridge::UIAlertAction;
using bridge::UIAlertController;
using bridge::UIViewController;
using desktop::uikit::application;

constexpr int mostNames = 1'000;  // of one document, before giving up

void copyText(const std::string& text) {
  QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

UIViewController topController() {
  if (application().windows.empty()) return {};
  auto top = bridge::UIWindow(application().windows.front()->get()).rootViewController();
  while (const auto next = top.presentedViewController()) top = next;
  return top;
}

UIAlertController alert(const std::string& title, const std::string& message) {
  const auto made = UIAlertController::make(NSString::make(title), NSString::make(message),
                                            UIAlertController::alert);
  made.addAction(UIAlertAction::make(NSString::make("OK"), UIAlertAction::cancel, {}));
  return made;
}

void tell(const std::string& title, const std::string& message) {
  topController().present(alert(title, message), UIViewController::animated, {});
}

bool openLink(const std::string& link) {
  if (QDesktopServices::openUrl(QUrl(QString::fromStdString(link)))) return true;
  const UIAlertController told = alert("Cannot Open Link", link);
  told.addAction(
      UIAlertAction::make(NSString::make("Copy"), UIAlertAction::normal,
                          Block<void(UIAlertAction)>([link](UIAlertAction) { copyText(link); })));
  topController().present(told, UIViewController::animated, {});
  return false;
}

// "Report.txt", or the first of "Report 2.txt", "Report 3.txt" and so on that is not there.
QString freeName(const QDir& folder) {
  for (int number = 1; number <= mostNames; ++number) {
    const QString name = number == 1 ? QString("Report.txt") : QString("Report %1.txt").arg(number);
    if (!folder.exists(name)) return folder.filePath(name);
  }
  return folder.filePath("Report.txt");
}

void saveText(const std::string& text) {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  folder.mkpath(".");
  const std::string name = freeName(folder).toStdString();
  const auto failure = io::replaceFile(name, text);
  if (!failure) return tell("Saved", name);
  tell("Not Saved", name + ": " + failure->reason);
}

}  // namespace

desktop::uikit::Outside desktopOutside() {
  return {.openLink = openLink, .copyText = copyText, .saveText = saveText};
}

desktop::uikit::Outside recordingOutside() {
  return {
      .openLink = [](const std::string&) { return true; }, .copyText = copyText, .saveText = {}};
}

std::string userPictureFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::PicturesLocation).toStdString();
}

}  // namespace photohost
