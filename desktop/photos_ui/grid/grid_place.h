// SPDX-License-Identifier: MIT
//
// Where one is in a grid, and how that is kept while the grid changes under one: the end stays in
// sight for whoever is there, and otherwise the item at the top does.
#pragma once

#include "desktop/photos_ui/grid/grid_collection.h"

namespace desktop::photos_ui {

class GridPlace {
 public:
  // Of a grid that outlives it.
  explicit GridPlace(const GridCollection& grid) : _grid(grid) {}

  // Whether the grid begins at its end, and follows that.
  void setStartsAtEnd(bool startsAtEnd);

  // The first item in sight.
  struct Anchor {
    std::size_t index;
    CGFloat y;  // of the item's top edge, from the top of what is seen
  };
  // None where nothing is in sight.
  std::optional<Anchor> anchor() const;
  // Scrolls until the item is there again, except for whoever is at the end.
  void restore(const Anchor& anchor);
  // Scrolls to the end for whoever is there.
  void stayAtEnd();
  // Scrolls until an item is in sight, in the middle where it was not. Does nothing for one that is
  // not in the list.
  void reveal(std::size_t index);

  // The collection view scrolled, whoever did it.
  void scrolled();

 private:
  struct Room {
    CGSize content;
    CGSize view;
    uikit::EdgeInsets insets;
    bool operator==(const Room& other) const;
  };
  Room room() const;
  bool isAtEnd() const;
  void scrollTo(CGFloat y);

  const GridCollection& _grid;
  Room _placedRoom;  // as it was when the end was placed
  bool _startsAtEnd = false;
  bool _staysAtEnd = false;  // until somebody scrolls away
  bool _isPlacing = false;
};

}  // namespace desktop::photos_ui
