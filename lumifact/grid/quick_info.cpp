// SPDX-License-Identifier: MIT
#include "lumifact/grid/quick_info.h"

#include "lumifact/assets/file_names.h"
#include "lumifact/assets/platform_texts.h"
#include "lumifact/grid/asset_file_size.h"
#include "lumifact/grid/quick_info_text.h"
#include "lumifact/state/current_settings.h"
#include "lumifact/views/lumifact_pop_up_view_controller.h"

namespace lumifact {
namespace {

std::optional<std::string> placeOf(PHAsset asset) {
  const auto place = as<NSString>(asset.localizedGeoDescription());
  return place ? std::optional(place.utf8()) : std::nullopt;
}

QuickInfo quickInfoOf(PHAsset asset) {
  return {.path = shownPath(printed(asset.mainFileURL().absoluteString()).utf8()),
          .dateText = dateText(asset.creationDate()),
          .sizeText = fileSizeText(mainOrPreviewFileSize(asset).value_or(0)),
          .pixelWidth = static_cast<std::int64_t>(asset.pixelWidth()),
          .pixelHeight = static_cast<std::int64_t>(asset.pixelHeight()),
          .isVideo = asset.isVideo(),
          .duration = asset.duration(),
          .exifOrientation = asset.exifOrientation(),
          .place = placeOf(asset)};
}

void showInAlert(UIViewController over, NSString message) {
  const auto alert = UIAlertController::make(NSString::make(""), message, UIAlertController::alert);
  alert.addAction(UIAlertAction::make(NSString::make("Ok"), UIAlertAction::normal,
                                      Block<void(UIAlertAction)>([](UIAlertAction) {})));
  over.present(alert, UIViewController::immediately, {});
}

}  // namespace

void showQuickInfo(PUPhotosGridViewController grid, PHAsset asset) {
  const bool isLabelled = settings.thumbnailQuickInfo == 1;
  const NSString message = NSString::make(quickInfoText(
      quickInfoOf(asset), isLabelled ? QuickInfoForm::labelled : QuickInfoForm::compact));
  if (isLabelled) return LumifactPopUpViewController::show(grid.view(), message);
  showInAlert(grid, message);
}

}  // namespace lumifact
