// SPDX-License-Identifier: MIT
//
// A folder with a few photos and a movie whose reports are known.
#pragma once

#include <string>

#include "tests/support/temporary_folder.h"

namespace lumifact::tool {

class SampleFolder {
 public:
  SampleFolder();

  const std::string& path() const { return _folder.path(); }
  std::string file(std::string_view name) const { return _folder.file(name); }
  std::string write(std::string_view name, std::string_view bytes) const {
    return _folder.write(name, bytes);
  }
  // Another plain photo of that name.
  std::string writePhoto(std::string_view name) const;

  // 40 x 30 stored, turned by a quarter, in Sydney, taken 2018-09-30 14:03:11 +02:00.
  std::string photo;
  // Says nothing but its size, 40 x 30.
  std::string plain;
  // 1920 x 1080, turned by a quarter, with a place.
  std::string movie;

 private:
  support::TemporaryFolder _folder;
};

}  // namespace lumifact::tool
