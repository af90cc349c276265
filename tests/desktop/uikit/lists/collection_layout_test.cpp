// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/collection_layout.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "bridge/class_builder.h"
#include "desktop/uikit/lists/ui_collection_view_layout_attributes.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

using testing::ElementsAre;
using testing::Key;

// Shows two items side by side and a header across them; does what a test wants while it prepares.
class PairLayout : public Bound<PairLayout, UICollectionViewLayout> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<PairLayout>("PairLayout")
            .method<"prepareLayout", &PairLayout::prepare>()
            .method<"collectionViewContentSize", &PairLayout::contentSize>()
            .method<"layoutAttributesForElementsInRect:", &PairLayout::elements>()
            .build();
    return made;
  }

  CGSize size{100, 50};
  int prepared = 0;
  std::function<void()> meanwhile = [] {};

 private:
  void prepare() {
    ++prepared;
    meanwhile();
  }
  CGSize contentSize() const { return size; }
  Object elements(CGRect) const {
    return NSArray::of(UICollectionViewLayoutAttributesState::forSupplementary(
                           NSString::make("header"), {0, 0}, {{0, 0}, {100, 20}}),
                       UICollectionViewLayoutAttributesState::forItem({0, 1}, {{50, 0}, {50, 50}}),
                       UICollectionViewLayoutAttributesState::forItem({0, 0}, {{0, 0}, {50, 50}}));
  }
};

class CollectionLayoutTest : public ApplicationTest {
 protected:
  CollectionLayoutTest() {
    layout.replace(object, {}, [this] {
      ++invalidated;
      layout.outdate();
    });
  }

  PairLayout& pair() { return PairLayout::of(object.get()); }

  int invalidated = 0;
  const Owned<UICollectionViewLayout> object = Owned<UICollectionViewLayout>::adopt(
      send<UICollectionViewLayout, "init">(send<id, "alloc">(PairLayout::classObject())));
  CollectionLayout layout;
  const CollectionLayout::Has hasAll = [](ItemPath) { return true; };
};

TEST_F(CollectionLayoutTest, IsPreparedOnceUntilItIsInvalid) {
  EXPECT_EQ(layout.prepare(), (CGSize{100, 50}));
  EXPECT_EQ(layout.prepare(), std::nullopt);
  object->invalidateLayout();
  EXPECT_EQ(invalidated, 1);
  EXPECT_EQ(layout.prepare(), (CGSize{100, 50}));
  EXPECT_EQ(pair().prepared, 2);
}

TEST_F(CollectionLayoutTest, OneThatBecomesInvalidWhileItPreparesIsPreparedTheNextTime) {
  pair().meanwhile = [this] {
    object->invalidateLayout();
    EXPECT_EQ(layout.prepare(), std::nullopt);
  };
  layout.prepare();
  EXPECT_EQ(pair().prepared, 1);
  layout.prepare();
  EXPECT_EQ(pair().prepared, 2);
}

TEST_F(CollectionLayoutTest, ASizeThatIsNoneIsEmpty) {
  for (const CGSize size : {CGSize{double{NAN}, 10}, CGSize{-5, 0}}) {
    pair().size = size;
    layout.outdate();
    EXPECT_EQ(layout.prepare(), CGSize{}) << size.width;
  }
}

TEST_F(CollectionLayoutTest, ElementsAreThoseInTheRectangleThatThereAre) {
  EXPECT_THAT(layout.elementsIn({{0, 0}, {100, 50}}, hasAll),
              ElementsAre(Key(CollectionElement{"", {0, 0}}), Key(CollectionElement{"", {0, 1}}),
                          Key(CollectionElement{"header", {0, 0}})));
  EXPECT_THAT(layout.elementsIn({{0, 30}, {100, 20}}, [](ItemPath path) { return path.item == 1; }),
              ElementsAre(Key(CollectionElement{"", {0, 1}})));
}

TEST_F(CollectionLayoutTest, APointIsInAnItemNotInAHeader) {
  EXPECT_EQ(layout.itemAt({60, 10}, hasAll), (ItemPath{0, 1}));
  EXPECT_EQ(layout.itemAt({60, 60}, hasAll), std::nullopt);
}

TEST_F(CollectionLayoutTest, ALayoutThatWasReplacedIsNotHeard) {
  layout.replace({}, {}, {});
  object->invalidateLayout();
  EXPECT_EQ(invalidated, 0);
  EXPECT_FALSE(layout.object());
}

}  // namespace
}  // namespace desktop::uikit
