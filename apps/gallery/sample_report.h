// SPDX-License-Identifier: MIT
//
// A photo that does not exist, with everything that a phone's camera would say about it.
#pragma once

#include <string>

#include "model/value.h"

namespace gallery {

struct SampleReport {
  std::string header;
  std::string text;
  model::Dictionary table;        // rewritten by the report
  model::Dictionary fileSummary;  // the rows about the file
  std::string mapLink;
  std::string quickInfo;
  std::string title;
};

SampleReport sampleReport();

}  // namespace gallery
