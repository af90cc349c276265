// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/one_up/photo_pages.h"

#include <gmock/gmock.h>

#include "desktop/photos_ui/photos_ui.h"
#include "desktop/uikit/application/application.h"
#include "tests/desktop/photos_ui/sample_items.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::photos_ui {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Pages in a window; pictures are not asked for.
class PhotoPagesTest : public uikit::ApplicationTest {
 protected:
  PhotoPagesTest() {
    registerPhotosUI();
    const auto view = PhotoPages::makeView(window().bounds());
    window().addSubview(view);
    pages.setView(view);
    pages.onChange([this](std::size_t index) { turned.push_back(index); });
  }

  void show(ItemListPointer list, std::size_t index) {
    items.set(std::move(list), index);
    pages.show(items);
    send<void, "layoutIfNeeded">(pages.view());
  }
  bool perform(OneUpAction action) {
    const bool isDone = pages.perform(action);
    uikit::application().advance(1);
    return isDone;
  }
  UIView currentPage() const { return PUTilingView::of(pages.view()).currentPage(); }

  BrowsedItems items;
  PhotoPages pages;
  std::vector<std::size_t> turned;
};

TEST_F(PhotoPagesTest, TurnsToNeighboursAndEnds) {
  show(sampleList(4), 1);
  EXPECT_TRUE(perform(OneUpAction::next));
  EXPECT_TRUE(perform(OneUpAction::previous));
  EXPECT_TRUE(perform(OneUpAction::last));
  EXPECT_FALSE(perform(OneUpAction::next));
  EXPECT_TRUE(perform(OneUpAction::first));
  EXPECT_FALSE(perform(OneUpAction::previous));
  EXPECT_FALSE(perform(OneUpAction::first));
  EXPECT_THAT(turned, ElementsAre(2, 1, 3, 0));
}

TEST_F(PhotoPagesTest, DoesNothingWithoutPages) {
  PhotoPages none;
  EXPECT_FALSE(none.perform(OneUpAction::next));
  show(sampleList(0), 0);
  for (const auto action : {OneUpAction::next, OneUpAction::last, OneUpAction::zoomIn,
                            OneUpAction::fit, OneUpAction::play})
    EXPECT_FALSE(perform(action));
  EXPECT_THAT(turned, IsEmpty());
}

TEST_F(PhotoPagesTest, KeepsThePageOfAnItemThatStays) {
  const auto list = sampleList(4);
  show(list, 1);
  const auto page = Owned<UIView>::retain(currentPage());
  show(std::make_shared<ItemList>(std::vector{list->at(1), list->at(2)}), 0);
  EXPECT_EQ(currentPage(), page.get());
  show(sampleList(4), 1);
  EXPECT_NE(currentPage(), page.get()) << "another item of the same file has another picture";
}

TEST_F(PhotoPagesTest, PlaysNoPhotos) {
  show(sampleList(1), 0);
  EXPECT_FALSE(perform(OneUpAction::play));
}

TEST_F(PhotoPagesTest, IsNotAskedOnceItIsGone) {
  {
    PhotoPages before;
    before.setView(pages.view());
    before.onChange([this](std::size_t index) { turned.push_back(index); });
  }
  show(sampleList(4), 1);
  EXPECT_TRUE(perform(OneUpAction::next));
  EXPECT_THAT(turned, IsEmpty());
}

}  // namespace
}  // namespace desktop::photos_ui
