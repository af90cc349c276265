// SPDX-License-Identifier: MIT
#include "media/image/tiff/tiff_section.h"

#include "model/utf8.h"

namespace media::image {

namespace {

bool isBlank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

// The photographer's notice and the editor's, each ended by a NUL; a blank stands for a missing
// photographer.
std::optional<model::Value> copyrightValue(const TiffField& field) {
  if (!isTextLike(field.type) || field.count == 0) return std::nullopt;
  const std::string_view photographer = field.text();
  const std::string_view rest = field.bytes.from(photographer.size() + 1).text();
  const std::string_view editor = rest.substr(0, rest.find('\0'));
  if (isBlank(editor)) return model::Value(model::utf8OrLatin1(photographer));
  if (isBlank(photographer)) return model::Value(model::utf8OrLatin1(editor));
  return model::Value(model::utf8OrLatin1(photographer) + ", " + model::utf8OrLatin1(editor));
}

constexpr TagRow tiffRows[] = {
    {0x0103, "Compression", integerValue},
    {0x0106, "PhotometricInterpretation", integerValue},
    {0x010D, "DocumentName", textValue},
    {0x010E, "ImageDescription", textValue},
    {0x010F, "Make", textValue},
    {0x0110, "Model", textValue},
    {0x0112, "Orientation", integerValue},
    {0x011A, "XResolution", realValue},
    {0x011B, "YResolution", realValue},
    {0x0128, "ResolutionUnit", integerValue},
    {0x012D, "TransferFunction", integerArray},
    {0x0131, "Software", textValue},
    {0x0132, "DateTime", textValue},
    {0x013B, "Artist", textValue},
    {0x013C, "HostComputer", textValue},
    {0x013E, "WhitePoint", realValue},
    {0x013F, "PrimaryChromaticities", realValue},
    {0x0142, "TileWidth", integerValue},
    {0x0143, "TileLength", integerValue},
    {0x8298, "Copyright", copyrightValue},
};
static_assert(tagsAscend(tiffRows));

void liftOrientation(model::Dictionary& properties) {
  const model::Value* tiff = model::find(properties, "{TIFF}");
  const model::Value* value =
      tiff && tiff->asDictionary() ? model::find(*tiff->asDictionary(), "Orientation") : nullptr;
  const std::int64_t* orientation = value ? value->asInteger() : nullptr;
  if (!orientation || *orientation < 1 || *orientation > 8) return;
  properties.insert_or_assign("Orientation", *orientation);
}

}  // namespace

std::span<const TagRow> tiffTags() {
  return tiffRows;
}

void readTiffSection(TiffStructure& structure, const Ifd& first, model::Dictionary& properties) {
  readTags(structure, first, tiffRows, "{TIFF}", properties);
  liftOrientation(properties);
}

}  // namespace media::image
