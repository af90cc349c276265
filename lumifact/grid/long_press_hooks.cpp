// SPDX-License-Identifier: MIT
#include "bridge/guard.h"
#include "bridge/log.h"
#include "bridge/uikit/gesture_actions.h"
#include "lumifact/grid/grid_hooks.h"
#include "lumifact/grid/quick_info.h"
#include "lumifact/grid/shared_album.h"
#include "lumifact/state/current_settings.h"

namespace lumifact {
namespace {

constexpr FixedString pressMessage = "lumifactLongPress:";

SEL pressAction() {
  return selector<pressMessage>();
}

// A grid that can be zoomed shows items of which one can be pressed at its nearest level only.
bool hasItemsToPress(PUPhotosGridViewController grid) {
  const auto zoomable = as<PUZoomableGridViewController>(grid);
  return !zoomable || isKindOf(zoomable.zoomLevelInfo(), PUFullMomentsZoomLevelInfo::classObject());
}

// Of a view that loads again. The list may be the view's own: where it gets shorter under the walk,
// the next one has come to the place of the one that went.
void removeLongPress(UIView view) {
  const NSArray recognizers = view.gestureRecognizers();
  for (NSUInteger index = 0; index < recognizers.count();) {
    const NSUInteger before = recognizers.count();
    const UIGestureRecognizer recognizer(recognizers.at(index).get());
    if (sendsAction(recognizer, pressAction())) view.removeGestureRecognizer(recognizer);
    if (recognizers.count() >= before) ++index;
  }
}

void addLongPressTo(PUPhotosGridViewController grid) {
  if (settings.thumbnailQuickInfo == 0 || !hasItemsToPress(grid)) return;
  const UICollectionView view = grid.collectionView();
  removeLongPress(view);
  const auto recognizer = UILongPressGestureRecognizer::make(grid, pressAction());
  recognizer->setDelegate(grid);
  recognizer->setDelaysTouchesBegan(false);
  view.addGestureRecognizer(recognizer);
}

void answerPress(PUPhotosGridViewController grid, UIGestureRecognizer recognizer) {
  if (recognizer.state() != UIGestureRecognizer::began) return;
  const UICollectionView view = grid.collectionView();
  const NSIndexPath path = view.indexPathForItemAt(recognizer.locationIn(view));
  if (!path) return logDebug("Tweak", 1373, "couldn't find index path");
  if (isLastOfSharedAlbum(grid, path)) return;
  if (const PHAsset asset = grid.assetAt(path)) showQuickInfo(grid, asset);
}

void longPress(id self, SEL, id recognizer) {
  guarded([&] { answerPress(PUPhotosGridViewController(self), UIGestureRecognizer(recognizer)); });
}

void gridDidLoad(id self, SEL command) {
  stock<&gridDidLoad>(self, command);
  guarded([&] { addLongPressTo(PUPhotosGridViewController(self)); });
}

}  // namespace

constinit const HookRow longPressHooks[] = {
    added<"PUPhotosGridViewController", pressMessage, "v@:@", &longPress>,
    replaced<"PUPhotosGridViewController", "viewDidLoad", &gridDidLoad>,
};

}  // namespace lumifact
