// SPDX-License-Identifier: MIT
#include "desktop/uikit/controllers/ui_table_view_controller.h"

#include <gtest/gtest.h>

#include "bridge/class_builder.h"
#include "desktop/uikit/lists/ui_table_view.h"
#include "desktop/uikit/lists/ui_table_view_cell.h"
#include "desktop/uikit/touch/touch_dispatcher.h"
#include "tests/desktop/uikit/application_test.h"

namespace desktop::uikit {
namespace {

using bridge::Owned;
constexpr auto animated = bridge::UIViewController::animated;

// A page of ten rows, each of which opens another such page.
class RowsPage : public bridge::Bound<RowsPage, bridge::UITableViewController> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        bridge::ClassBuilder<RowsPage>("RowsPage")
            .method<"tableView:numberOfRowsInSection:", &RowsPage::rows>()
            .method<"tableView:cellForRowAtIndexPath:", &RowsPage::cell>()
            .method<"tableView:didSelectRowAtIndexPath:", &RowsPage::didSelect>()
            .build();
    return made;
  }

  static Owned<bridge::UITableViewController> make(NSInteger style) {
    return Owned<bridge::UITableViewController>::adopt(
        bridge::send<bridge::UITableViewController, "initWithStyle:">(
            bridge::send<id, "alloc">(classObject()), style));
  }

 private:
  NSInteger rows(bridge::UITableView, NSInteger) const { return 10; }
  bridge::UITableViewCell cell(bridge::UITableView table, bridge::NSIndexPath) const {
    const auto identifier = bridge::NSString::make("row");
    if (const auto used = table.dequeueCell(identifier)) return used;
    return bridge::UITableViewCell::make(bridge::UITableViewCell::value1, identifier).autorelease();
  }
  void didSelect(bridge::UITableView, bridge::NSIndexPath) const {
    self().navigationController().push(make(UITableView::plain), animated);
  }
};

class UITableViewControllerTest : public ApplicationTest {
 protected:
  static Owned<bridge::UINavigationController> showIn(bridge::UITableViewController page) {
    auto navigation = bridge::UINavigationController::withRoot(page);
    window().setRootViewController(navigation);
    application().advance(0.1);
    return navigation;
  }

  static void tapRow(bridge::UITableViewController page, NSInteger row) {
    UITableView& table = UITableView::of(page.tableView());
    const CGPoint point = apply(UIView::of(page.tableView().get()).toScreen(),
                                middle(table.rectForRow(indexPathOf({0, row}))));
    touches().down(point);
    application().advance(0.05);
    touches().up(point);
    application().advance(1);
  }

  static NSUInteger pages(bridge::UINavigationController navigation) {
    return bridge::send<bridge::NSArray, "viewControllers">(navigation).count();
  }
};

TEST_F(UITableViewControllerTest, ItsViewIsATableOfTheStyleThatAsksIt) {
  for (const NSInteger style : {UITableView::plain, UITableView::grouped}) {
    const auto page = RowsPage::make(style);
    ASSERT_TRUE(page->tableView());
    EXPECT_EQ(page->view(), page->tableView());
    EXPECT_EQ(UITableView::of(page->tableView()).style(), style);
    EXPECT_EQ((bridge::send<id, "dataSource">(page->tableView())), page.get().get());
    EXPECT_EQ((bridge::send<id, "delegate">(page->tableView())), page.get().get());
  }
  const auto plain = bridge::makeNew<bridge::UITableViewController>();
  EXPECT_EQ(UITableView::of(plain->tableView()).style(), UITableView::plain);
}

TEST_F(UITableViewControllerTest, RowsBeginBelowTheNavigationBar) {
  const auto page = RowsPage::make(UITableView::plain);
  showIn(page);
  const auto& table = UITableView::of(page->tableView());
  ASSERT_EQ(table.cells().size(), 10u);
  const auto& first = UIView::of(table.cells().begin()->second.get());
  EXPECT_EQ(apply(first.toScreen(), CGPoint{}), (CGPoint{0, 64}));
}

TEST_F(UITableViewControllerTest, ARowOpensAPageAndIsNoLongerSelectedOnReturn) {
  const auto page = RowsPage::make(UITableView::grouped);
  const auto navigation = showIn(page);
  tapRow(page, 3);
  EXPECT_EQ(pages(navigation), 2u);
  EXPECT_TRUE(UITableView::of(page->tableView()).selectedRow());
  bridge::send<id, "popViewControllerAnimated:">(navigation, true);
  application().advance(1);
  EXPECT_EQ(pages(navigation), 1u);
  EXPECT_FALSE(UITableView::of(page->tableView()).selectedRow());
}

TEST_F(UITableViewControllerTest, TheSelectionCanStay) {
  const auto page = RowsPage::make(UITableView::grouped);
  bridge::send<void, "setClearsSelectionOnViewWillAppear:">(page, false);
  const auto navigation = showIn(page);
  tapRow(page, 3);
  bridge::send<id, "popViewControllerAnimated:">(navigation, true);
  application().advance(1);
  EXPECT_TRUE(UITableView::of(page->tableView()).selectedRow());
}

TEST_F(UITableViewControllerTest, ATableMayOutliveItsController) {
  Owned<bridge::UITableView> table;
  {
    const bridge::AutoreleasePool pool;
    const auto page = RowsPage::make(UITableView::plain);
    table = Owned<bridge::UITableView>::retain(page->tableView());
    window().addSubview(table);
    application().prepareFrame();
    EXPECT_EQ(UITableView::of(table.get()).cells().size(), 10u);
  }
  application().prepareFrame();
  EXPECT_TRUE(UITableView::of(table.get()).cells().empty());
  table->removeFromSuperview();
}

TEST_F(UITableViewControllerTest, NothingStaysBehind) {
  const auto showAndLeave = [] {
    const bridge::AutoreleasePool pool;
    {
      const auto page = RowsPage::make(UITableView::grouped);
      const auto navigation = showIn(page);
      tapRow(page, 3);
      bridge::send<id, "popViewControllerAnimated:">(navigation, true);
      application().advance(1);
    }
    window().setRootViewController({});
    application().advance(1);
  };
  showAndLeave();
  const long before = bridge::liveBoundObjects();
  showAndLeave();
  EXPECT_EQ(bridge::liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
