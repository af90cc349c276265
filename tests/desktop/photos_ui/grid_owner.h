// SPDX-License-Identifier: MIT
//
// A grid's parts without a controller: what its collection asks is answered, and nothing else.
#pragma once

#include "bridge/bound.h"
#include "bridge/class_builder.h"
#include "desktop/photos_ui/grid/grid_place.h"
#include "desktop/photos_ui/grid/grid_selection.h"
#include "desktop/photos_ui/photos_ui.h"
#include "tests/desktop/photos_ui/sample_items.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::photos_ui {

class GridOwner : public Bound<GridOwner, NSObject> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<GridOwner>("GridOwner")
            .method<"numberOfSectionsInCollectionView:", &GridOwner::sections>()
            .method<"collectionView:numberOfItemsInSection:", &GridOwner::items>()
            .method<"collectionView:cellForItemAtIndexPath:", &GridOwner::cell>()
            .method<"scrollViewDidScroll:", &GridOwner::scrolled>()
            .build();
    return made;
  }

  GridCollection grid;
  GridPlace place{grid};
  GridSelection selection{grid};

 private:
  NSInteger sections(UICollectionView) const { return grid.sectionCount(); }
  NSInteger items(UICollectionView, NSInteger section) const { return grid.itemCount(section); }
  UIView cell(UICollectionView view, NSIndexPath path) const { return grid.cell(view, path); }
  void scrolled(UIView) { place.scrolled(); }
};

// A window of 375 by 667 points with a grid in it: rows of four items, one point apart, of which
// the window shows about seven.
class GridPartTest : public uikit::ApplicationTest {
 protected:
  GridPartTest() {
    registerPhotosUI();
    _owner = makeWith<NSObject, "init">(GridOwner::classObject());
    grid().make(_owner.get(), window().bounds(), 0);
    send<void, "setItemSize:">(grid().layout().self(), CGSize{93, 93});
    window().addSubview(grid().view());
  }

  GridCollection& grid() const { return GridOwner::of(_owner.get()).grid; }
  GridPlace& place() const { return GridOwner::of(_owner.get()).place; }
  GridSelection& selection() const { return GridOwner::of(_owner.get()).selection; }

  void show(ItemListPointer list) const {
    grid().show(std::move(list));
    layOut();
  }
  void layOut() const { send<void, "layoutIfNeeded">(grid().view()); }
  CGFloat offset() const { return grid().scroll().contentOffset().y; }
  void scrollTo(CGFloat y) const {
    send<void, "setContentOffset:">(grid().view(), CGPoint{0, y});
    layOut();
  }

 private:
  Owned<NSObject> _owner;
};

}  // namespace desktop::photos_ui
