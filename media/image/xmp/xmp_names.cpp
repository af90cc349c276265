// SPDX-License-Identifier: MIT
#include "media/image/xmp/xmp_names.h"

#include <algorithm>
#include <pugixml.hpp>

#include "media/image/blocks/limits.h"

namespace media::image {

namespace {

struct NamespaceRow {
  std::string_view uri;
  XmpNamespace space;
};

constexpr NamespaceRow namespaceRows[] = {
    {"http://cipa.jp/exif/1.0/", XmpNamespace::exifEx},
    {"http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/", XmpNamespace::iptcCore},
    {"http://iptc.org/std/Iptc4xmpExt/2008-02-29/", XmpNamespace::iptcExt},
    {"http://ns.adobe.com/exif/1.0/", XmpNamespace::exif},
    {"http://ns.adobe.com/exif/1.0/aux/", XmpNamespace::aux},
    {"http://ns.adobe.com/photoshop/1.0/", XmpNamespace::photoshop},
    {"http://ns.adobe.com/tiff/1.0/", XmpNamespace::tiff},
    {"http://ns.adobe.com/xap/1.0/", XmpNamespace::xmp},
    {"http://ns.adobe.com/xap/1.0/rights/", XmpNamespace::xmpRights},
    {"http://ns.adobe.com/xap/1.0/sType/Area#", XmpNamespace::stArea},
    {"http://ns.adobe.com/xap/1.0/sType/Dimensions#", XmpNamespace::stDimensions},
    {"http://ns.adobe.com/xmp/sType/Area#", XmpNamespace::stArea},
    {"http://ns.apple.com/faceinfo/1.0/", XmpNamespace::appleFaceInfo},
    {"http://purl.org/dc/elements/1.1/", XmpNamespace::dublinCore},
    {"http://www.metadataworkinggroup.com/schemas/regions/", XmpNamespace::mwgRegions},
    {"http://www.w3.org/1999/02/22-rdf-syntax-ns#", XmpNamespace::rdf},
};

}  // namespace

XmpNamespace xmpNamespace(std::string_view uri) {
  for (const NamespaceRow& row : namespaceRows) {
    if (row.uri == uri) return row.space;
  }
  return XmpNamespace::other;
}

XmpScope::XmpScope(const pugi::xml_node& element, const XmpScope& outer)
    : _outer(&outer), _count(outer._count) {
  constexpr std::string_view declares = "xmlns:";
  for (const pugi::xml_attribute& attribute : element.attributes()) {
    const std::string_view name = attribute.name();
    if (!name.starts_with(declares)) continue;
    if (_count == limits.xmpNamespaces) break;
    _declarations.push_back({name.substr(declares.size()), xmpNamespace(attribute.value())});
    ++_count;
  }
}

XmpName XmpScope::resolve(std::string_view qualifiedName) const {
  const std::size_t colon = qualifiedName.find(':');
  if (colon == std::string_view::npos) return {XmpNamespace::other, qualifiedName};
  const std::string_view prefix = qualifiedName.substr(0, colon);
  const std::string_view local = qualifiedName.substr(colon + 1);
  if (prefix == "xml") return {XmpNamespace::xml, local};
  for (const XmpScope* scope = this; scope; scope = scope->_outer) {
    const auto found = std::ranges::find(scope->_declarations, prefix, &Declaration::prefix);
    if (found != scope->_declarations.end()) return {found->space, local};
  }
  return {XmpNamespace::other, local};
}

}  // namespace media::image
