// SPDX-License-Identifier: MIT
//
// How facts stand depends on who writes the file: keys in a box of their own and values under their
// numbers, or atoms that are named for what they hold.
#include "samples/movies/movie_metadata.h"

#include <cmath>
#include <cstdlib>
#include <string_view>
#include <utility>
#include <vector>

#include "samples/formats/box_writer.h"
#include "samples/metadata/date_text.h"

namespace samples {

namespace {

using Facts = std::vector<std::pair<std::string, std::string>>;  // key, UTF-8 text

// A number with its sign, digits before and after the point.
std::string signedText(double value, int before, int after) {
  int scale = 1;
  for (int digit = 0; digit < after; ++digit) scale *= 10;
  const auto units = static_cast<int>(std::lround(std::abs(value) * scale));
  return (value < 0 ? "-" : "+") + padded(units / scale, before) + "." +
         padded(units % scale, after);
}

void writeHandler(BoxWriter& out, std::string_view type, std::string_view maker) {
  out.begin("hdlr", 0);
  out.u32(0);
  out.text(type);
  out.text(maker);
  out.zeros(14 - maker.size());
  out.end();
}

void writeDataBox(BoxWriter& out, std::string_view text) {
  out.begin("data");
  out.u32(1);  // UTF-8
  out.u32(0);  // any locale
  out.text(text);
  out.end();
}

// QuickTime's metadata with named keys.
void writeKeyedFacts(BoxWriter& out, const Facts& facts) {
  out.begin("meta");
  writeHandler(out, "mdta", "");
  out.begin("keys", 0);
  out.u32(facts.size());
  for (const auto& [key, text] : facts) {
    out.begin("mdta");
    out.text(key);
    out.end();
  }
  out.end();
  out.begin("ilst");
  for (std::size_t index = 0; index < facts.size(); ++index) {
    const std::size_t start = out.size();
    out.u32(0);
    out.u32(index + 1);
    writeDataBox(out, facts[index].second);
    out.patchU32(start, out.size() - start);
  }
  out.end();
  out.end();
}

Facts phoneFacts(const Movie& movie) {
  const std::string prefix = "com.apple.quicktime.";
  Facts facts;
  if (movie.livePhoto != nullptr) facts.push_back({prefix + "content.identifier", movie.livePhoto});
  if (movie.place != nullptr)
    facts.push_back({prefix + "location.ISO6709", locationText(*movie.place, movie.hasAltitude)});
  facts.push_back({prefix + "make", movie.camera->make});
  facts.push_back({prefix + "model", movie.camera->model});
  facts.push_back({prefix + "software", movie.camera->software});
  const int zone = movie.place != nullptr ? movie.place->utcOffset : 0;
  facts.push_back({prefix + "creationdate", isoTime(movie.taken, zone, "")});
  return facts;
}

// A text of QuickTime's user data: length, language, text.
void writeUserText(BoxWriter& out, std::string_view type, std::string_view text) {
  out.begin(type);
  out.u16(text.size());
  out.u16(0x15C7);  // English
  out.text(text);
  out.end();
}

void writeAndroidFacts(BoxWriter& out, const Movie& movie) {
  if (movie.place != nullptr) {
    out.begin("udta");
    writeUserText(out, "\xA9xyz", locationText(*movie.place, movie.hasAltitude));
    out.end();
  }
  writeKeyedFacts(out, {{"com.android.version", movie.camera->software}});
}

void writeExportedFacts(BoxWriter& out, const Movie& movie) {
  const Facts facts = {{"\xA9nam", movie.title != nullptr ? movie.title : "Untitled"},
                       {"\xA9"
                        "ART",
                        "Sample maker"},
                       {"\xA9"
                        "day",
                        dateText(movie.taken, "-")},
                       {"\xA9too", movie.camera->software}};
  out.begin("udta");
  if (movie.place != nullptr)
    writeUserText(out, "\xA9xyz", locationText(*movie.place, movie.hasAltitude));
  out.begin("meta", 0);
  writeHandler(out, "mdir", "appl");
  out.begin("ilst");
  for (const auto& [type, text] : facts) {
    out.begin(type);
    writeDataBox(out, text);
    out.end();
  }
  out.end();
  out.end();
  out.end();
}

}  // namespace

std::string locationText(const Place& place, bool withAltitude) {
  std::string text = signedText(place.latitude, 2, 4) + signedText(place.longitude, 3, 4);
  if (withAltitude) text += signedText(place.altitude, 3, 3);
  return text + "/";
}

Bytes movieMetadata(const Movie& movie) {
  BoxWriter out;
  switch (movie.brand) {
    case MovieBrand::quickTime:
      writeKeyedFacts(out, phoneFacts(movie));
      break;
    case MovieBrand::android:
      writeAndroidFacts(out, movie);
      break;
    case MovieBrand::exported:
      writeExportedFacts(out, movie);
      break;
    case MovieBrand::sequence:
      break;
  }
  return out.take();
}

}  // namespace samples
