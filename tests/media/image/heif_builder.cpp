// SPDX-License-Identifier: MIT
#include "tests/media/image/heif_builder.h"

#include "tests/media/image/container_builder.h"

namespace media::image {

namespace {

using namespace std::string_literals;

std::string unsignedNumber(std::size_t value, int bytes) {
  return bigEndian(static_cast<std::uint64_t>(value), bytes);
}

std::string itemInformation(const HeifToWrite& heif) {
  const int idWidth = heif.itemVersion > 2 ? 4 : 2;
  std::string entries;
  for (const HeifItemToWrite& item : heif.items) {
    std::string entry = unsignedNumber(item.id, idWidth) + "\0\0"s + item.type + "name\0"s;
    if (item.type == "mime") entry += item.contentType + "\0"s;
    entries += fullBox("infe", heif.itemVersion, 0, entry);
  }
  return fullBox("iinf", 0, 0, unsignedNumber(heif.items.size(), 2) + entries);
}

std::string associations(const HeifToWrite& heif) {
  std::string entries;
  for (const HeifItemToWrite& item : heif.items) {
    entries += unsignedNumber(item.id, 2) + unsignedNumber(item.properties.size(), 1);
    for (const int number : item.properties) {
      entries += unsignedNumber(static_cast<std::size_t>(number) | 0x80, 1);
    }
  }
  return fullBox("ipma", 0, 0, unsignedNumber(heif.items.size(), 4) + entries);
}

std::string itemProperties(const HeifToWrite& heif) {
  std::string boxes;
  for (const std::string& property : heif.properties) boxes += property;
  return isoBox("iprp", isoBox("ipco", boxes) + associations(heif));
}

std::string itemReferences(const HeifToWrite& heif) {
  std::string boxes;
  for (const HeifReferenceToWrite& reference : heif.references) {
    std::string payload =
        unsignedNumber(reference.from, 2) + unsignedNumber(reference.to.size(), 2);
    for (const std::uint32_t to : reference.to) payload += unsignedNumber(to, 2);
    boxes += isoBox(reference.type, payload);
  }
  return boxes.empty() ? "" : fullBox("iref", 0, 0, boxes);
}

// Offsets count from `mediaData` in the file, or from the start of the item data box.
std::string itemLocations(const HeifToWrite& heif, std::size_t mediaData) {
  const int idWidth = heif.locationVersion == 2 ? 4 : 2;
  std::string entries;
  std::size_t inFile = mediaData + heif.padding;
  std::size_t inItemData = 0;
  for (const HeifItemToWrite& item : heif.items) {
    std::size_t& offset = item.isInItemData ? inItemData : inFile;
    entries += unsignedNumber(item.id, idWidth);
    if (heif.locationVersion > 0) entries += unsignedNumber(item.isInItemData ? 1 : 0, 2);
    entries += "\0\0"s + unsignedNumber(1, 2) + unsignedNumber(offset, 4) +
               unsignedNumber(item.bytes.size(), 4);
    offset += item.bytes.size();
  }
  return fullBox("iloc", heif.locationVersion, 0,
                 "\x44\0"s + unsignedNumber(heif.items.size(), idWidth) + entries);
}

std::string metaBox(const HeifToWrite& heif, std::size_t mediaData) {
  std::string itemData;
  for (const HeifItemToWrite& item : heif.items) {
    if (item.isInItemData) itemData += item.bytes;
  }
  return fullBox("meta", 0, 0,
                 fullBox("hdlr", 0, 0, "\0\0\0\0pict"s + std::string(13, '\0')) +
                     fullBox("pitm", 0, 0, unsignedNumber(heif.primary, 2)) +
                     itemLocations(heif, mediaData) + itemInformation(heif) + itemReferences(heif) +
                     itemProperties(heif) + (itemData.empty() ? "" : isoBox("idat", itemData)));
}

}  // namespace

std::string heifFile(const HeifToWrite& heif) {
  const std::string type = isoBox("ftyp", heif.brand + "\0\0\0\0mif1"s + heif.brand);
  std::string media(heif.padding, 'c');
  for (const HeifItemToWrite& item : heif.items) {
    if (!item.isInItemData) media += item.bytes;
  }
  const std::string mediaBox = isoBox("mdat", media);
  if (heif.hasMetaAtEnd) return type + mediaBox + metaBox(heif, type.size() + 8);
  const std::size_t metaSize = metaBox(heif, 0).size();
  return type + metaBox(heif, type.size() + metaSize + 8) + mediaBox;
}

std::string heifExtents(std::uint32_t width, std::uint32_t height) {
  return fullBox("ispe", 0, 0, bigEndian(width, 4) + bigEndian(height, 4));
}

std::string heifPixelInformation(const std::vector<int>& depths) {
  std::string payload = unsignedNumber(depths.size(), 1);
  for (const int depth : depths) payload += unsignedNumber(static_cast<std::size_t>(depth), 1);
  return fullBox("pixi", 0, 0, payload);
}

std::string heifIccColors(std::string_view profile) {
  return isoBox("colr", "prof" + std::string(profile));
}

std::string heifCodedColors(int primaries, int transfer) {
  return isoBox("colr", "nclx" + unsignedNumber(static_cast<std::size_t>(primaries), 2) +
                            unsignedNumber(static_cast<std::size_t>(transfer), 2) + "\0\1\x80"s);
}

std::string heifExifItem(std::string_view tiff) {
  return unsignedNumber(6, 4) + "Exif\0\0"s + std::string(tiff);
}

}  // namespace media::image
