// SPDX-License-Identifier: MIT
//
// A page shows one container of the report, below the rows of extra data that the first page has. A
// row whose value is a container leads to a page of the same class for that one. Everything is
// answered when the table asks for it, row by row, from the objects that the page was made with.
// The selectors are those that other programs know the class by.
#include "lumifact/views/lumifact_view_controller.h"

#include <limits>

#include "bridge/class_builder.h"
#include "lumifact/views/report_bar.h"

namespace lumifact {
namespace {

constexpr FixedString tableInitialiser =
    "initWithStyle:tableData:extraData:mapType:mapString:dataTitle:";

// A grouped table leaves a gap above its rows unless it has a header of some height.
constexpr CGRect hardlyAnyHeight = {{0, 0}, {0, std::numeric_limits<double>::min()}};

Owned<UIActivityViewController> makeShareSheet(NSString text) {
  auto sheet = UIActivityViewController::withItems(NSArray::of(text));
  sheet->setExcludedActivityTypes({});
  return sheet;
}

UITableViewCell cellOf(UITableView table) {
  const NSString identifier = NSString::make("cellIdentifier");
  if (const UITableViewCell used = table.dequeueCell(identifier)) return used;
  return UITableViewCell::make(UITableViewCell::value1, identifier).autorelease();
}

void showText(UILabel label, NSString text) {
  label.setText(text);
  label.setAdjustsFontSizeToFitWidth(true);
}

}  // namespace

Class LumifactViewController::classObject() {
  using Self = LumifactViewController;
  static const Class made =
      ClassBuilder<Self>("LumifactViewController")
          .method<tableInitialiser, &Self::initWithStyle>()
          .method<"viewDidLoad", &Self::viewDidLoad>()
          .method<"numberOfSectionsInTableView:", &Self::numberOfSections>()
          .method<"tableView:numberOfRowsInSection:", &Self::numberOfRows>()
          .method<"tableView:cellForRowAtIndexPath:", &Self::cellForRow>()
          .method<"tableView:didSelectRowAtIndexPath:", &Self::didSelectRow>()
          .method<"tableView:shouldShowMenuForRowAtIndexPath:", &Self::shouldShowMenu>()
          .method<"tableView:canPerformAction:forRowAtIndexPath:withSender:",
                  &Self::canPerformAction>()
          .method<"tableView:performAction:forRowAtIndexPath:withSender:", &Self::performAction>()
          .method<"dataShouldHaveNewPage:", &Self::dataShouldHaveNewPage>()
          .method<"getCellDetailStringForData:", &Self::detailStringFor>()
          .method<"cellTitle:andDetail:forData:withTitle:andIndexPath:andOffset:",
                  &Self::fillTitleAndDetail>()
          .method<"shareButtonTouched:", &Self::shareButtonTouched>()
          .method<"openMaps:", &Self::openMaps>()
          .method<"dismissButtonTouched:", &Self::dismissButtonTouched>()
          .build();
  return made;
}

Owned<UIViewController> LumifactViewController::make(const Contents& contents) {
  return makeWith<UIViewController, tableInitialiser>(
      classObject(), NSInteger{UITableView::grouped}, contents.tableData, contents.extraData,
      contents.mapType, contents.mapLink, contents.title);
}

UITableViewController LumifactViewController::initWithStyle(NSInteger style, Object tableData,
                                                            NSDictionary extraData,
                                                            std::int32_t mapType,
                                                            NSString mapString,
                                                            NSString dataTitle) {
  if (!super<UITableViewController, "initWithStyle:">(style)) return UITableViewController();
  _tableData = Owned<Object>::retain(tableData);
  _extraData = Owned<NSDictionary>::retain(extraData);
  _extraDataCount = static_cast<std::int32_t>(extraData.count());
  _mapType = mapType;
  _dataTitle = Owned<NSString>::retain(dataTitle);
  _mapString = Owned<NSString>::retain(mapString);
  return self();
}

void LumifactViewController::viewDidLoad() {
  super<void, "viewDidLoad">();
  self().tableView().setTableHeaderView(makeView<UIView>(hardlyAnyHeight));
  const UINavigationItem item = self().navigationItem();
  item.setTitle(_dataTitle);
  if (_mapType != subPage) item.setLeftBarButtonItems(NSArray::of(makeDismissButton(self()).get()));
  const auto share = UIBarButtonItem::withSystemItem(UIBarButtonItem::action, self(),
                                                     selector<"shareButtonTouched:">());
  item.setRightBarButtonItems(rightBarItems(share, _mapString, self()));
}

NSInteger LumifactViewController::numberOfRows(UITableView, NSInteger) const {
  if (kindOf(_tableData.get()) == ValueKind::unknown) return 0;
  return static_cast<NSInteger>(rowCount(_tableData.get())) + _extraDataCount;
}

UITableViewCell LumifactViewController::cellForRow(UITableView table, NSIndexPath path) {
  const UITableViewCell cell = cellOf(table);
  const TableRow row = rowAt(path);
  showText(cell.textLabel(), row.title);
  showText(cell.detailTextLabel(), row.detail);
  const bool hasPage = dataShouldHaveNewPage(row.value);
  cell.setAccessoryType(hasPage ? UITableViewCell::disclosureIndicator
                                : UITableViewCell::noAccessory);
  cell.setSelectionStyle(hasPage ? UITableViewCell::blueSelection : UITableViewCell::noSelection);
  return cell;
}

void LumifactViewController::didSelectRow(UITableView table, NSIndexPath path) {
  table.deselectRow(path, UIViewController::animated);
  if (isExtraRow(path)) return;
  const TableRow row = rowAt(path);
  if (dataShouldHaveNewPage(row.value)) openPageOf(row);
}

void LumifactViewController::openPageOf(const TableRow& row) const {
  const auto page = make({.tableData = row.value,
                          .mapType = subPage,
                          .mapLink = _mapString.get(),
                          .title = row.title});
  self().navigationController().push(page, UIViewController::animated);
}

bool LumifactViewController::canPerformAction(UITableView, SEL action, NSIndexPath,
                                              NSObject) const {
  return sameSelector(action, selector<"copy:">());
}

// The edit menu's copy command hands the row to the share sheet; the pasteboard stays as it is.
void LumifactViewController::performAction(UITableView, SEL, NSIndexPath path,
                                           UIMenuController menu) {
  const auto sheet = makeShareSheet(sharedText(rowAt(path)));
  const auto popover = sheet->popoverPresentationController();
  popover.setSourceView(self().view());
  popover.setSourceRect(menu.menuFrame());
  self().present(sheet, UIViewController::animated, {});
}

Object LumifactViewController::fillTitleAndDetail(id* title, id* detail, Object data,
                                                  NSString pageTitle, NSIndexPath path,
                                                  std::int32_t offset) {
  if (kindOf(data) == ValueKind::unknown) return {};
  const TableRow row = tableRow(data, keysOf(data), path.row() - offset, pageTitle);
  *title = row.title.get();
  *detail = row.detail.get();
  return row.value;
}

TableRow LumifactViewController::rowAt(NSIndexPath path) {
  if (isExtraRow(path)) return tableRow(_extraData.get(), _extraKeys, path.row(), _dataTitle);
  return tableRow(_tableData.get(), _tableKeys, path.row() - _extraDataCount, _dataTitle);
}

SortedKeys& LumifactViewController::keysOf(Object data) {
  return data == _extraData.get() ? _extraKeys : _tableKeys;
}

void LumifactViewController::shareButtonTouched(UIBarButtonItem sender) {
  const auto sheet = makeShareSheet(printed(_tableData.get()));
  sheet->popoverPresentationController().setBarButtonItem(sender);
  self().present(sheet, UIViewController::animated, {});
}

void LumifactViewController::openMaps(NSObject) {
  openMapLink(_mapString);
}

void LumifactViewController::dismissButtonTouched(NSObject) {
  dismissPage(self());
}

}  // namespace lumifact
