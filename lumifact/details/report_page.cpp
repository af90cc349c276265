// SPDX-License-Identifier: MIT
#include "lumifact/details/report_page.h"

#include "bridge/convert.h"
#include "lumifact/assets/file_names.h"
#include "lumifact/details/data_parser_class.h"
#include "lumifact/details/map_link.h"
#include "lumifact/state/current_settings.h"
#include "lumifact/views/lf_presenter.h"
#include "lumifact/views/lumifact_view_controller.h"

namespace lumifact {
namespace {

constexpr std::int32_t asText = 1;  // the viewType of the text page; any other is the table's

std::optional<model::Location> locationOf(PHAsset asset) {
  const CLLocation location = asset.location();
  if (!location) return std::nullopt;
  const CLLocationCoordinate2D place = location.coordinate();
  return model::Location{.latitude = place.latitude, .longitude = place.longitude};
}

// Nil where the item has no place.
NSString mapLinkOf(const Report& report, PHAsset asset) {
  const auto link = buildMapLink(report.coordinates, locationOf(asset), settings);
  return link ? NSString::make(*link) : NSString();
}

Owned<UIViewController> textPage(const Report& report, const FileFacts& facts, PHAsset asset) {
  const NSString message = NSString::make(headerText(facts)).appending(report.text);
  return LFPresenter::make(message, mapLinkOf(report, asset), 0, settings.fontSize);
}

Owned<UIViewController> tablePage(const Report& report, NSDictionary tableData,
                                  const FileFacts& facts, PHAsset asset) {
  const auto record = toObject(fileSummaryRecord(facts));
  return LumifactViewController::make({.tableData = tableData,
                                       .extraData = copy(NSDictionary(record->get())).get(),
                                       .mapType = settings.mapType,
                                       .mapLink = mapLinkOf(report, asset),
                                       .title = NSString::make(fileName(facts.path))});
}

Owned<UIViewController> imagePage(NSDictionary properties, const FileFacts& facts, PHAsset asset) {
  const auto tableData = mutableCopy(properties);
  const Report report = reportOfImage(tableData);
  if (settings.viewType == asText) return textPage(report, facts, asset);
  return tablePage(report, tableData.get(), facts, asset);
}

}  // namespace

Owned<UIViewController> makeReportPage(PHAsset asset, const ItemFile& file) {
  const auto properties = copyImageProperties(file.source);
  const FileFacts facts = factsOf(file.path, asset);
  if (properties) return imagePage(properties, facts, asset);
  if (!asset.isVideo()) return {};
  return textPage(reportOfVideo(AVURLAsset::withURL(asset.mainFileURL())), facts, asset);
}

}  // namespace lumifact
