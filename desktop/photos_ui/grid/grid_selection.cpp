// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/grid_selection.h"

#include <cmath>
#include <utility>

namespace desktop::photos_ui {

GridSelection::~GridSelection() {
  _recognizer->setDelegate({});
}

const std::set<uikit::ItemPath>& GridSelection::paths() const {
  static const std::set<uikit::ItemPath> nothing;
  return _isOn && _grid.view() ? _grid.viewState().selectedItems() : nothing;
}

std::vector<library::ItemPointer> GridSelection::items() const {
  std::vector<library::ItemPointer> items;
  for (const uikit::ItemPath path : paths())
    if (const auto index = _grid.list()->indexOf(path)) items.push_back(_grid.list()->at(*index));
  return items;
}

void GridSelection::setOn(bool isOn) {
  _isOn = isOn;
  undoSwipe();
  const auto selected = _grid.viewState().selectedItems();
  for (const uikit::ItemPath path : selected)
    _grid.view().deselectItem(uikit::indexPathOf(path), false);
  _grid.view().setAllowsMultipleSelection(isOn);
}

void GridSelection::select(std::size_t index, bool isSelected) const {
  const auto path = _grid.list()->pathOf(index);
  if (!path || paths().contains(*path) == isSelected) return;
  const auto shown = uikit::indexPathOf(*path);
  if (isSelected)
    _grid.view().selectItem(shown, false, NSUInteger{0});
  else
    _grid.view().deselectItem(shown, false);
}

void GridSelection::selectAgain(const std::vector<library::ItemPointer>& items) {
  for (const auto& item : items)
    if (const auto index = _grid.list()->find(*item)) select(*index, true);
}

void GridSelection::addRecognizer(NSObject owner, SEL handler) {
  _recognizer = Owned<UIGestureRecognizer>::retain(
      makeRecognizer<UIPanGestureRecognizer>(owner, handler).get());
  _recognizer->setDelegate(owner);
  _grid.view().addGestureRecognizer(_recognizer);
}

// A swipe goes across; scrolling goes down.
bool GridSelection::shouldBegin(UIGestureRecognizer recognizer) const {
  if (recognizer != _recognizer.get()) return true;
  if (!_isOn) return false;
  const UIPanGestureRecognizer pan(recognizer.get());
  const CGPoint way = pan.translationIn(_grid.view());
  return std::abs(way.x) >= std::abs(way.y);
}

std::optional<std::size_t> GridSelection::indexAt(CGPoint point) const {
  return _grid.indexOf(_grid.view().indexPathForItemAt(point));
}

SwipeSelection::Select GridSelection::selecting() const {
  return [this](std::size_t index, bool isSelected) { select(index, isSelected); };
}

// A swipe is recognised when the finger has moved already: it began where that came down.
void GridSelection::beginSwipe(UIGestureRecognizer recognizer) {
  const UIPanGestureRecognizer pan(recognizer.get());
  const CGPoint way = pan.translationIn(_grid.view());
  const CGPoint now = recognizer.locationIn(_grid.view());
  const auto first = indexAt({now.x - way.x, now.y - way.y});
  if (!first) return;
  std::set<std::size_t> selected;
  for (const uikit::ItemPath each : paths())
    if (const auto index = _grid.list()->indexOf(each)) selected.insert(*index);
  _swipe.emplace(*first, std::move(selected));
}

void GridSelection::swipeTo(UIGestureRecognizer recognizer) {
  if (const auto index = indexAt(recognizer.locationIn(_grid.view())))
    _swipe->goTo(*index, selecting());
}

// The recogniser is the one that was added, and stays as long as this.
void GridSelection::scrollAtEdges(UIGestureRecognizer recognizer, std::function<void()> scrolled) {
  _edges.follow(recognizer.locationIn(_grid.view()),
                [this, recognizer, scrolled = std::move(scrolled)] {
                  swipeTo(recognizer);
                  scrolled();
                  scrollAtEdges(recognizer, scrolled);
                });
}

bool GridSelection::follow(UIGestureRecognizer recognizer, std::function<void()> scrolled) {
  using Recognizer = UIGestureRecognizer;
  const Recognizer::State state = recognizer.state();
  if (state == Recognizer::began) beginSwipe(recognizer);
  if (!_swipe) return false;
  if (state == Recognizer::cancelled)
    undoSwipe();
  else
    swipeTo(recognizer);
  if (state == Recognizer::ended) endSwipe();
  if (_swipe) scrollAtEdges(recognizer, std::move(scrolled));
  return state != Recognizer::began;
}

void GridSelection::endSwipe() {
  _edges.stop();
  _swipe.reset();
}

void GridSelection::undoSwipe() {
  if (!_swipe) return;
  _swipe->undo(selecting());
  endSwipe();
}

}  // namespace desktop::photos_ui
