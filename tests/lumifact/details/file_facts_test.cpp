// SPDX-License-Identifier: MIT
#include "lumifact/details/file_facts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "model/key_order.h"

namespace lumifact {
namespace {

FileFacts photo() {
  return {.path = "100APPLE/IMG_0001.JPG",
          .fileDate = "Sep 30, 2018 at 2:03:11 PM",
          .fileSize = "2.4 MB",
          .pixelHeight = 3024,
          .pixelWidth = 4032};
}

TEST(HeaderTextTest, listsTheFactsHeightBeforeWidthAndEndsInALineBreak) {
  EXPECT_EQ(headerText(photo()),
            "100APPLE/IMG_0001.JPG\n"
            "File Date: Sep 30, 2018 at 2:03:11 PM\n"
            "File Size: 2.4 MB\n"
            "Asset Height: 3024\n"
            "Asset Width: 4032\n");
}

TEST(HeaderTextTest, takesTheTextsAsTheyAre) {
  FileFacts facts;
  facts.fileDate = "(null)";
  facts.fileSize = "Zero KB";
  facts.path = "a %@ b";
  facts.pixelWidth = std::numeric_limits<std::int64_t>::min();
  EXPECT_EQ(headerText(facts),
            "a %@ b\nFile Date: (null)\nFile Size: Zero KB\nAsset Height: 0\n"
            "Asset Width: -9223372036854775808\n");
}

TEST(FileSummaryRecordTest, holdsFiveStrings) {
  const model::Dictionary expected = {
      {"LF742J01FilePath", "100APPLE/IMG_0001.JPG"},
      {"LF742J02FileDate", "Sep 30, 2018 at 2:03:11 PM"},
      {"LF742J03FileSize", "2.4 MB"},
      {"LF742J04AssetHeight", "3024"},
      {"LF742J05AssetWidth", "4032"},
  };
  EXPECT_EQ(fileSummaryRecord(photo()), expected);
}

TEST(FileSummaryRecordTest, sortsHeightBeforeWidth) {
  const model::Dictionary record = fileSummaryRecord(photo());
  EXPECT_THAT(model::sortedKeys(record),
              testing::ElementsAre("LF742J01FilePath", "LF742J02FileDate", "LF742J03FileSize",
                                   "LF742J04AssetHeight", "LF742J05AssetWidth"));
}

}  // namespace
}  // namespace lumifact
