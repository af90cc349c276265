// SPDX-License-Identifier: MIT
#include "samples/formats/heic_items.h"

#include "samples/formats/box_writer.h"

namespace samples {

namespace {

std::size_t numberOf(std::size_t index) {
  return index + 1;
}

void writeFileType(BoxWriter& out) {
  out.begin("ftyp");
  out.text("heic");
  out.u32(0);
  out.text("mif1heic");
  out.end();
}

void writeHandler(BoxWriter& out) {
  out.begin("hdlr", 0);
  out.u32(0);
  out.text("pict");
  out.zeros(14);
  out.end();
  out.begin("dinf");
  out.begin("dref", 0);
  out.u32(1);
  out.begin("url ", 1);  // the data are in this file
  out.end();
  out.end();
  out.end();
}

void writeItemInfos(BoxWriter& out, const HeifPicture& picture) {
  out.begin("iinf", 0);
  out.u16(picture.items.size());
  for (std::size_t index = 0; index < picture.items.size(); ++index) {
    const HeifItem& item = picture.items[index];
    out.begin("infe", 0x02000000 | (item.isHidden ? 1 : 0));
    out.u16(numberOf(index));
    out.u16(0);  // not protected
    out.text(item.type);
    out.u8(0);  // no name
    if (item.type == "mime") out.text(std::string_view("application/rdf+xml\0", 20));
    out.end();
  }
  out.end();
}

void writeReferences(BoxWriter& out, const HeifPicture& picture) {
  out.begin("iref", 0);
  for (std::size_t index = 0; index < picture.items.size(); ++index) {
    const HeifItem& item = picture.items[index];
    if (item.reference.empty()) continue;
    out.begin(item.reference);
    out.u16(numberOf(index));
    out.u16(item.targets.size());
    for (const std::size_t target : item.targets) out.u16(numberOf(target));
    out.end();
  }
  out.end();
}

void writeProperties(BoxWriter& out, const HeifPicture& picture) {
  out.begin("iprp");
  out.begin("ipco");
  for (const Bytes& property : picture.properties) out.append(property);
  out.end();
  std::size_t count = 0;
  for (const HeifItem& item : picture.items) count += item.properties.empty() ? 0 : 1;
  out.begin("ipma", 0);
  out.u32(count);
  for (std::size_t index = 0; index < picture.items.size(); ++index) {
    const HeifItem& item = picture.items[index];
    if (item.properties.empty()) continue;
    out.u16(numberOf(index));
    out.u8(item.properties.size());
    for (const int property : item.properties) out.u8(0x80 | property);  // all essential
  }
  out.end();
  out.end();
}

void writeInsideData(BoxWriter& out, const HeifPicture& picture) {
  out.begin("idat");
  for (const HeifItem& item : picture.items)
    if (item.insideMeta) out.append(item.data);
  out.end();
}

// Writes the table of places; returns where each item's offset belongs.
std::vector<std::size_t> writeLocations(BoxWriter& out, const HeifPicture& picture) {
  std::vector<std::size_t> offsetFields;
  std::size_t inside = 0;
  out.begin("iloc", 0x01000000);
  out.u16(0x4400);  // offsets and lengths of four bytes, no base
  out.u16(picture.items.size());
  for (std::size_t index = 0; index < picture.items.size(); ++index) {
    const HeifItem& item = picture.items[index];
    out.u16(numberOf(index));
    out.u16(item.insideMeta ? 1 : 0);
    out.u16(0);
    out.u16(1);
    offsetFields.push_back(out.size());
    out.u32(inside);
    out.u32(item.data.size());
    if (item.insideMeta) inside += item.data.size();
  }
  out.end();
  return offsetFields;
}

}  // namespace

Bytes heifFile(const HeifPicture& picture) {
  BoxWriter out;
  writeFileType(out);
  out.begin("meta", 0);
  writeHandler(out);
  out.begin("pitm", 0);
  out.u16(numberOf(picture.primary));
  out.end();
  writeItemInfos(out, picture);
  writeReferences(out, picture);
  writeProperties(out, picture);
  writeInsideData(out, picture);
  const std::vector<std::size_t> offsetFields = writeLocations(out, picture);
  out.end();
  out.begin("mdat");
  for (const std::size_t index : picture.order) {
    out.patchU32(offsetFields[index], out.size());
    out.append(picture.items[index].data);
  }
  out.end();
  return out.take();
}

}  // namespace samples
