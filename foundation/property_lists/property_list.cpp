// SPDX-License-Identifier: MIT
#include "foundation/property_lists/property_list.h"

#include <vector>

#include "foundation/property_lists/binary_property_list.h"
#include "foundation/property_lists/xml_property_list.h"
#include "io/byte_source.h"

namespace foundation {

namespace {

constexpr std::string_view tooLarge = "property list larger than 1 MiB";
static_assert(largestPropertyList == 1 << 20);

model::Result<PropertyList> withFormat(model::Result<model::Value> root,
                                       PropertyListFormat format) {
  if (!root) return root.error();
  return PropertyList{.root = std::move(*root), .format = format};
}

}  // namespace

model::Result<PropertyList> parsePropertyList(io::ByteView bytes) {
  if (bytes.size() > largestPropertyList) return model::Error{std::string(tooLarge)};
  if (isBinaryPropertyList(bytes)) {
    return withFormat(parseBinaryPropertyList(bytes), PropertyListFormat::binary);
  }
  return withFormat(parseXmlPropertyList(bytes), PropertyListFormat::xml);
}

model::Result<PropertyList> readPropertyList(const std::string& path) {
  auto file = io::FileSource::open(path);
  if (!file) return file.error();
  if ((*file)->size() > largestPropertyList) return model::Error{std::string(tooLarge)};
  std::vector<std::uint8_t> bytes(static_cast<std::size_t>((*file)->size()));
  const model::Result<std::size_t> count = (*file)->readAt(0, bytes);
  if (!count) return count.error();
  bytes.resize(*count);
  return parsePropertyList(io::ByteView(bytes));
}

model::Result<std::string> serializePropertyList(const model::Value& root,
                                                 PropertyListFormat format) {
  return format == PropertyListFormat::binary ? binaryPropertyList(root) : xmlPropertyList(root);
}

}  // namespace foundation
