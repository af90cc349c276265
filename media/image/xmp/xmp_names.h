// SPDX-License-Identifier: MIT
//
// The XML namespaces of XMP that are read, told apart by their URI and never by their prefix.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace pugi {
class xml_node;
}

namespace media::image {

enum class XmpNamespace : std::uint8_t {
  other,
  appleFaceInfo,
  aux,
  dublinCore,
  exif,
  exifEx,
  iptcCore,
  iptcExt,
  mwgRegions,
  photoshop,
  rdf,
  stArea,
  stDimensions,
  tiff,
  xml,
  xmp,
  xmpRights,
};

// The namespace of a URI; `other` where it is none of those.
XmpNamespace xmpNamespace(std::string_view uri);

// A name with its prefix resolved. Borrowed from the document.
struct XmpName {
  XmpNamespace space = XmpNamespace::other;
  std::string_view local;
  bool operator==(const XmpName&) const = default;
};

// The namespace declarations in force at a place in the document: those of one element, and of the
// elements around it.
class XmpScope {
 public:
  XmpScope() = default;  // outside of everything

  // What an element in the outer scope says and contains. REQUIRES: the outer scope outlives this.
  XmpScope(const pugi::xml_node& element, const XmpScope& outer);

  // Resolves "prefix:local". Names without a prefix, or with one that was not declared, are of no
  // namespace that is read.
  XmpName resolve(std::string_view qualifiedName) const;

 private:
  struct Declaration {
    std::string_view prefix;
    XmpNamespace space;
  };

  const XmpScope* _outer = nullptr;
  std::vector<Declaration> _declarations;
  std::size_t _count = 0;  // declarations in this scope and those around it
};

}  // namespace media::image
