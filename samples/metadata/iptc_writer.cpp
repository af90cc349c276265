// SPDX-License-Identifier: MIT
#include "samples/metadata/iptc_writer.h"

#include <string>
#include <string_view>

#include "samples/metadata/date_text.h"
#include "samples/metadata/words.h"

namespace samples {

namespace {

void addRecord(ByteWriter& out, int record, int dataset, std::string_view text) {
  out.u8(0x1C);
  out.u8(record);
  out.u8(dataset);
  out.u16(text.size());
  out.text(text);
}

void addText(ByteWriter& out, int dataset, const char* text) {
  if (text != nullptr) addRecord(out, 2, dataset, text);
}

void addPlace(ByteWriter& out, const Place& place) {
  addText(out, 90, place.city);
  addText(out, 92, place.spot);
  addText(out, 95, place.province);
  addText(out, 100, place.countryCode);
  addText(out, 101, place.country);
}

}  // namespace

bool hasCaptions(const Photo& photo) {
  return photo.title != nullptr || photo.caption != nullptr || photo.namesPlace;
}

Bytes iptcRecords(const Photo& photo) {
  ByteWriter out;
  addRecord(out, 1, 90, "\x1B%G");  // the texts are UTF-8
  addRecord(out, 2, 0, std::string_view("\0\4", 2));
  addText(out, 5, photo.title);
  for (const std::string_view word : words(photo.keywords)) addRecord(out, 2, 25, word);
  addRecord(out, 2, 55, dateText(photo.taken, ""));
  const int zone = photo.place != nullptr ? photo.place->utcOffset : 0;
  addRecord(out, 2, 60, clockText(photo.taken, "") + zoneText(zone, ""));
  addText(out, 80, photo.author);
  if (photo.namesPlace) addPlace(out, *photo.place);
  addText(out, 105, photo.title);
  if (photo.author != nullptr)
    addRecord(out, 2, 116, std::string("Public domain, ") + photo.author);
  addText(out, 120, photo.caption);
  return out.take();
}

Bytes photoshopResources(const Bytes& iptc) {
  ByteWriter out;
  out.text("8BIM");
  out.u16(0x0404);
  out.u16(0);  // no name
  out.u32(iptc.size());
  out.append(iptc);
  if (out.size() % 2 != 0) out.u8(0);
  return out.take();
}

Bytes photoshopSegment(const Bytes& iptc) {
  ByteWriter out;
  out.text(std::string_view("Photoshop 3.0\0", 14));
  out.append(photoshopResources(iptc));
  return out.take();
}

}  // namespace samples
