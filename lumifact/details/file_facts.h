// SPDX-License-Identifier: MIT
//
// The facts of an item's file, as the header of the text report and as rows of the table report.
#pragma once

#include <cstdint>
#include <string>

#include "model/value.h"

namespace lumifact {

// The facts as texts, made ready by the platform's formatters. An unreadable date is "(null)".
struct FileFacts {
  std::string path;      // as shown
  std::string fileDate;  // medium date and time
  std::string fileSize;  // byte count text
  std::int64_t pixelHeight = 0;
  std::int64_t pixelWidth = 0;
};

// The header text, which ends in a line break.
std::string headerText(const FileFacts& facts);

// The file summary record: five strings under the keys LF742J01FilePath to LF742J05AssetWidth.
model::Dictionary fileSummaryRecord(const FileFacts& facts);

}  // namespace lumifact
