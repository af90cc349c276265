// SPDX-License-Identifier: MIT
//
// Which items of a grid are selected in select mode, by taps or by swipes.
#pragma once

#include <functional>
#include <set>
#include <vector>

#include "desktop/photos_ui/grid/edge_scrolling.h"
#include "desktop/photos_ui/grid/grid_collection.h"
#include "desktop/photos_ui/grid/swipe_selection.h"

namespace desktop::photos_ui {

class GridSelection {
 public:
  // Of a grid that outlives it.
  explicit GridSelection(const GridCollection& grid) : _grid(grid) {}
  GridSelection(const GridSelection&) = delete;
  GridSelection& operator=(const GridSelection&) = delete;
  ~GridSelection();

  // Begins or ends select mode; nothing is selected then. REQUIRES: the grid's view is made.
  void setOn(bool isOn);
  bool isEmpty() const { return paths().empty(); }
  // In the order of the list; none outside select mode.
  std::vector<library::ItemPointer> items() const;
  // Selects those that are still in the list, as files.
  void selectAgain(const std::vector<library::ItemPointer>& items);

  // The owner is the delegate of the swipe's recogniser, which is added to the view, and gets its
  // messages.
  void addRecognizer(NSObject owner, SEL handler);
  // Whether a recogniser may begin, also one of somebody else.
  bool shouldBegin(UIGestureRecognizer recognizer) const;
  // Whether a finger that swipes has moved on or left. Near the top and the bottom the grid scrolls
  // below it; `scrolled` is called where more is swiped over by that.
  bool follow(UIGestureRecognizer recognizer, std::function<void()> scrolled);
  // What a swipe that is under way did is undone, and it ends.
  void undoSwipe();

 private:
  const std::set<uikit::ItemPath>& paths() const;
  void select(std::size_t index, bool isSelected) const;
  SwipeSelection::Select selecting() const;
  void beginSwipe(UIGestureRecognizer recognizer);
  void swipeTo(UIGestureRecognizer recognizer);
  void endSwipe();
  void scrollAtEdges(UIGestureRecognizer recognizer, std::function<void()> scrolled);
  std::optional<std::size_t> indexAt(CGPoint point) const;

  const GridCollection& _grid;
  Owned<UIGestureRecognizer> _recognizer;
  std::optional<SwipeSelection> _swipe;
  EdgeScrolling _edges{_grid};
  bool _isOn = false;
};

}  // namespace desktop::photos_ui
