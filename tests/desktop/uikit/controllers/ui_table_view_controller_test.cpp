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

constexpr auto animated = UIViewController::animated;

// A page of ten rows, each of which opens another such page.
class RowsPage : public Bound<RowsPage, UITableViewController> {
 public:
  using Bound::Bound;
  static Class classObject() {
    static const Class made =
        ClassBuilder<RowsPage>("RowsPage")
            .method<"tableView:numberOfRowsInSection:", &RowsPage::rows>()
            .method<"tableView:cellForRowAtIndexPath:", &RowsPage::cell>()
            .method<"tableView:didSelectRowAtIndexPath:", &RowsPage::didSelect>()
            .build();
    return made;
  }

  static Owned<UITableViewController> make(NSInteger style) {
    return Owned<UITableViewController>::adopt(
        send<UITableViewController, "initWithStyle:">(send<id, "alloc">(classObject()), style));
  }

 private:
  NSInteger rows(UITableView, NSInteger) const { return 10; }
  UITableViewCell cell(UITableView table, NSIndexPath) const {
    const auto identifier = NSString::make("row");
    if (const auto used = table.dequeueCell(identifier)) return used;
    return UITableViewCell::make(UITableViewCell::value1, identifier).autorelease();
  }
  void didSelect(UITableView, NSIndexPath) const {
    self().navigationController().push(make(UITableViewState::plain), animated);
  }
};

class UITableViewControllerTest : public ApplicationTest {
 protected:
  static Owned<UINavigationController> showIn(UITableViewController page) {
    auto navigation = UINavigationController::withRoot(page);
    window().setRootViewController(navigation);
    application().advance(0.1);
    return navigation;
  }

  static void tapRow(UITableViewController page, NSInteger row) {
    UITableViewState& table = UITableViewState::of(page.tableView());
    const CGPoint point = apply(UIViewState::of(page.tableView().get()).toScreen(),
                                middle(table.rectForRow(indexPathOf({0, row}))));
    touches().down(point);
    application().advance(0.05);
    touches().up(point);
    application().advance(1);
  }

  static NSUInteger pages(UINavigationController navigation) {
    return send<NSArray, "viewControllers">(navigation).count();
  }
};

TEST_F(UITableViewControllerTest, ItsViewIsATableOfTheStyleThatAsksIt) {
  for (const NSInteger style : {UITableViewState::plain, UITableViewState::grouped}) {
    const auto page = RowsPage::make(style);
    ASSERT_TRUE(page->tableView());
    EXPECT_EQ(page->view(), page->tableView());
    EXPECT_EQ(UITableViewState::of(page->tableView()).style(), style);
    EXPECT_EQ((send<id, "dataSource">(page->tableView())), page.get().get());
    EXPECT_EQ((send<id, "delegate">(page->tableView())), page.get().get());
  }
  const auto plain = makeNew<UITableViewController>();
  EXPECT_EQ(UITableViewState::of(plain->tableView()).style(), UITableViewState::plain);
}

TEST_F(UITableViewControllerTest, RowsBeginBelowTheNavigationBar) {
  const auto page = RowsPage::make(UITableViewState::plain);
  showIn(page);
  const auto& table = UITableViewState::of(page->tableView());
  ASSERT_EQ(table.cells().size(), 10u);
  const auto& first = UIViewState::of(table.cells().begin()->second.get());
  EXPECT_EQ(apply(first.toScreen(), CGPoint{}), (CGPoint{0, 64}));
}

TEST_F(UITableViewControllerTest, ARowOpensAPageAndIsNoLongerSelectedOnReturn) {
  const auto page = RowsPage::make(UITableViewState::grouped);
  const auto navigation = showIn(page);
  tapRow(page, 3);
  EXPECT_EQ(pages(navigation), 2u);
  EXPECT_TRUE(UITableViewState::of(page->tableView()).selectedRow());
  send<id, "popViewControllerAnimated:">(navigation, true);
  application().advance(1);
  EXPECT_EQ(pages(navigation), 1u);
  EXPECT_FALSE(UITableViewState::of(page->tableView()).selectedRow());
}

TEST_F(UITableViewControllerTest, TheSelectionCanStay) {
  const auto page = RowsPage::make(UITableViewState::grouped);
  send<void, "setClearsSelectionOnViewWillAppear:">(page, false);
  const auto navigation = showIn(page);
  tapRow(page, 3);
  send<id, "popViewControllerAnimated:">(navigation, true);
  application().advance(1);
  EXPECT_TRUE(UITableViewState::of(page->tableView()).selectedRow());
}

TEST_F(UITableViewControllerTest, ATableMayOutliveItsController) {
  Owned<UITableView> table;
  {
    const AutoreleasePool pool;
    const auto page = RowsPage::make(UITableViewState::plain);
    table = Owned<UITableView>::retain(page->tableView());
    window().addSubview(table);
    application().prepareFrame();
    EXPECT_EQ(UITableViewState::of(table.get()).cells().size(), 10u);
  }
  application().prepareFrame();
  EXPECT_TRUE(UITableViewState::of(table.get()).cells().empty());
  table->removeFromSuperview();
}

TEST_F(UITableViewControllerTest, NothingStaysBehind) {
  const auto showAndLeave = [] {
    const AutoreleasePool pool;
    {
      const auto page = RowsPage::make(UITableViewState::grouped);
      const auto navigation = showIn(page);
      tapRow(page, 3);
      send<id, "popViewControllerAnimated:">(navigation, true);
      application().advance(1);
    }
    window().setRootViewController({});
    application().advance(1);
  };
  showAndLeave();
  const long before = liveBoundObjects();
  showAndLeave();
  EXPECT_EQ(liveBoundObjects(), before);
}

}  // namespace
}  // namespace desktop::uikit
