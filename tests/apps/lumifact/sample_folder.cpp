// SPDX-License-Identifier: MIT
#include "tests/apps/lumifact/sample_folder.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "tests/support/movie_builder.h"
#include "tests/support/sample_photo.h"

namespace lumifact::tool {

SampleFolder::SampleFolder() {
  photo = _folder.write("photo.jpg",
                        media::facts::sampleJpeg({.width = 40,
                                                  .height = 30,
                                                  .orientation = 6,
                                                  .make = "Maker",
                                                  .dateTimeOriginal = "2018:09:30 14:03:11",
                                                  .offset = "+02:00",
                                                  .location = model::Location{-33.8568, 151.2153},
                                                  .city = "Sydney",
                                                  .country = "Australia"}));
  plain = _folder.write("plain.jpg", media::facts::sampleJpeg({}));
  movie = _folder.write("movie.mov", media::movie::phoneMovie());
  for (const std::string& path : {photo, plain, movie}) {
    // 2020-01-02 03:04:05 UTC
    const timespec times[2] = {{.tv_sec = 0, .tv_nsec = 0}, {.tv_sec = 1577934245, .tv_nsec = 0}};
    ::utimensat(AT_FDCWD, path.c_str(), times, 0);
  }
}

std::string SampleFolder::writePhoto(std::string_view name) const {
  return _folder.write(name, media::facts::sampleJpeg({}));
}

}  // namespace lumifact::tool
