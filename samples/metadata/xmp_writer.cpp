// SPDX-License-Identifier: MIT
#include "samples/metadata/xmp_writer.h"

#include <string_view>
#include <utility>
#include <vector>

#include "samples/metadata/date_text.h"
#include "samples/metadata/words.h"

namespace samples {

namespace {

std::string escaped(std::string_view text) {
  std::string safe;
  for (const char character : text) {
    if (character == '&')
      safe += "&amp;";
    else if (character == '<')
      safe += "&lt;";
    else if (character == '"')
      safe += "&quot;";
    else
      safe += character;
  }
  return safe;
}

// A property without structure is an attribute of the description.
void addAttribute(std::string& packet, std::string_view name, std::string_view value) {
  packet.append("\n   ").append(name).append("=\"").append(escaped(value)).append("\"");
}

void addAttribute(std::string& packet, std::string_view name, const char* value) {
  if (value != nullptr) addAttribute(packet, name, std::string_view(value));
}

// A list ("Bag", "Seq") or a text in several languages ("Alt").
void addList(std::string& packet, std::string_view name, std::string_view kind,
             const std::vector<std::string_view>& items) {
  if (items.empty()) return;
  packet.append("   <").append(name).append("><rdf:").append(kind).append(">");
  for (const std::string_view item : items)
    packet.append(kind == "Alt" ? "<rdf:li xml:lang=\"x-default\">" : "<rdf:li>")
        .append(escaped(item))
        .append("</rdf:li>");
  packet.append("</rdf:").append(kind).append("></").append(name).append(">\n");
}

std::vector<std::string_view> oneOrNone(const char* text) {
  if (text == nullptr) return {};
  return {text};
}

// A structure with the fields that have a text, as the only item of a list.
void addStructure(std::string& packet, std::string_view name,
                  const std::vector<std::pair<std::string_view, const char*>>& fields) {
  packet.append("   <").append(name).append("><rdf:Bag><rdf:li rdf:parseType=\"Resource\">\n");
  for (const auto& [field, text] : fields) {
    if (text == nullptr) continue;
    packet.append("    <").append(field).append(">").append(escaped(text));
    packet.append("</").append(field).append(">\n");
  }
  packet.append("   </rdf:li></rdf:Bag></").append(name).append(">\n");
}

// Where it was taken, in the words of the IPTC's extension schema.
void addLocation(std::string& packet, const Photo& photo) {
  if (!photo.namesPlace || photo.place == nullptr) return;
  const Place& place = *photo.place;
  addStructure(packet, "Iptc4xmpExt:LocationCreated",
               {{"Iptc4xmpExt:Sublocation", place.spot},
                {"Iptc4xmpExt:City", place.city},
                {"Iptc4xmpExt:ProvinceState", place.province},
                {"Iptc4xmpExt:CountryName", place.country},
                {"Iptc4xmpExt:CountryCode", place.countryCode}});
}

void addAttributes(std::string& packet, const Photo& photo) {
  const int zone = photo.place != nullptr ? photo.place->utcOffset : 0;
  addAttribute(packet, "xmp:CreateDate", isoTime(photo.taken, zone, ":"));
  addAttribute(packet, "photoshop:DateCreated", isoTime(photo.taken, zone, ":"));
  if (photo.camera != nullptr) {
    addAttribute(packet, "xmp:CreatorTool", photo.camera->software);
    addAttribute(packet, "aux:Lens", photo.camera->lensModel);
    addAttribute(packet, "aux:SerialNumber", photo.camera->bodySerial);
  }
  if (photo.rating > 0) addAttribute(packet, "xmp:Rating", std::to_string(photo.rating));
  addAttribute(packet, "photoshop:Headline", photo.title);
  if (!photo.namesPlace || photo.place == nullptr) return;
  addAttribute(packet, "photoshop:City", photo.place->city);
  addAttribute(packet, "photoshop:State", photo.place->province);
  addAttribute(packet, "photoshop:Country", photo.place->country);
  addAttribute(packet, "Iptc4xmpCore:Location", photo.place->spot);
  addAttribute(packet, "Iptc4xmpCore:CountryCode", photo.place->countryCode);
}

}  // namespace

std::string xmpPacket(const Photo& photo) {
  std::string packet =
      "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
      "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n"
      " <rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
      "  <rdf:Description rdf:about=\"\"\n"
      "   xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\"\n"
      "   xmlns:dc=\"http://purl.org/dc/elements/1.1/\"\n"
      "   xmlns:aux=\"http://ns.adobe.com/exif/1.0/aux/\"\n"
      "   xmlns:photoshop=\"http://ns.adobe.com/photoshop/1.0/\"\n"
      "   xmlns:Iptc4xmpCore=\"http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/\"\n"
      "   xmlns:Iptc4xmpExt=\"http://iptc.org/std/Iptc4xmpExt/2008-02-29/\"";
  addAttributes(packet, photo);
  packet.append(">\n");
  addList(packet, "dc:title", "Alt", oneOrNone(photo.title));
  addList(packet, "dc:description", "Alt", oneOrNone(photo.caption));
  addList(packet, "dc:creator", "Seq", oneOrNone(photo.author));
  addList(packet, "dc:subject", "Bag", words(photo.keywords));
  addLocation(packet, photo);
  return packet.append("  </rdf:Description>\n </rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"w\"?>");
}

}  // namespace samples
