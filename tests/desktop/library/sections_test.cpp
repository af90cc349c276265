// SPDX-License-Identifier: MIT
#include "desktop/library/sections.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/foundation/environment.h"
#include "tests/support/sample_photo.h"
#include "tests/support/temporary_folder.h"

namespace desktop::library {
namespace {

using testing::ElementsAre;

constexpr double day = 86'400;
constexpr double noon = 1'538'308'800;  // 2018-09-30 12:00 UTC

std::vector<ItemPointer> itemsAt(std::initializer_list<double> dates) {
  std::vector<ItemPointer> items;
  for (const double date : dates) {
    items.push_back(
        std::make_shared<const LibraryItem>(LibraryItem{.path = "/a", .modificationDate = {date}}));
  }
  return items;
}

std::vector<std::string> described(const std::vector<ItemPointer>& items, ZoomLevel level) {
  std::vector<std::string> texts;
  for (const Section& section : makeSections(items, level, foundation::Locale())) {
    texts.push_back(section.title + ": " + std::to_string(section.first) + "+" +
                    std::to_string(section.count));
  }
  return texts;
}

TEST(SectionsTest, areDaysMonthsOrYears) {
  const foundation::ScopedVariable zone("TZ", "UTC");
  const auto items = itemsAt({noon - 400 * day, noon - day, noon, noon + 1, noon + day});
  EXPECT_THAT(described(items, ZoomLevel::moments),
              ElementsAre("Aug 26, 2017: 0+1", "Sep 29, 2018: 1+1", "Sep 30, 2018: 2+2",
                          "Oct 1, 2018: 4+1"));
  EXPECT_THAT(described(items, ZoomLevel::collections),
              ElementsAre("August 2017: 0+1", "September 2018: 1+3", "October 2018: 4+1"));
  EXPECT_THAT(described(items, ZoomLevel::years), ElementsAre("2017: 0+1", "2018: 1+4"));
}

TEST(SectionsTest, aDayEndsAtMidnightOfTheLocalClock) {
  const auto items = itemsAt({noon + day / 2 - 7201, noon + day / 2 - 7200});
  {
    const foundation::ScopedVariable zone("TZ", "Europe/Berlin");
    EXPECT_EQ(described(items, ZoomLevel::moments).size(), 2U);
  }
  const foundation::ScopedVariable zone("TZ", "UTC");
  EXPECT_EQ(described(items, ZoomLevel::moments).size(), 1U);
}

TEST(SectionsTest, noItemsHaveNoSections) {
  EXPECT_THAT(described({}, ZoomLevel::moments), ElementsAre());
}

TEST(SectionsTest, datesFarOutsideTheCalendarAreTaken) {
  const foundation::ScopedVariable zone("TZ", "UTC");
  const auto items = itemsAt({-1e18, 0, 1e18});
  EXPECT_THAT(described(items, ZoomLevel::years), ElementsAre("1: 0+1", "1970: 1+1", "9999: 2+1"));
}

TEST(SectionsTest, placesAreToldOnceTheirFactsAreKnown) {
  const support::TemporaryFolder folder;
  FactsCache facts(foundation::DeviceRoot(folder.path()), 100);
  std::vector<ItemPointer> items;
  for (const char* city : {"Lyon", "Ulm", "Lyon", "", "Graz"}) {
    const std::string path = folder.write(std::to_string(items.size()) + ".jpg",
                                          media::facts::sampleJpeg({.city = city}));
    items.push_back(std::make_shared<const LibraryItem>(LibraryItem{.path = path}));
  }
  EXPECT_EQ(placesOf(items, facts), "");
  ASSERT_TRUE(facts.read(*items[1]));
  EXPECT_EQ(placesOf(items, facts), "Ulm");
  for (const ItemPointer& item : items) ASSERT_TRUE(facts.read(*item));
  EXPECT_EQ(placesOf(items, facts), "Lyon · Ulm · Graz");
  items.push_back(std::make_shared<const LibraryItem>(
      LibraryItem{.path = folder.write("5.jpg", media::facts::sampleJpeg({.city = "Rom"}))}));
  ASSERT_TRUE(facts.read(*items[5]));
  EXPECT_EQ(placesOf(items, facts), "Lyon · Ulm · Graz…");
}

}  // namespace
}  // namespace desktop::library
