// SPDX-License-Identifier: MIT
#include "samples/metadata/icc_profile.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace samples {

namespace {

// The colour of a primary under the profile's D50 white.
struct Primary {
  double x, y, z;
};

struct Space {
  std::string_view name;
  Primary red, green, blue;
};

constexpr Space spaces[] = {
    {"sRGB IEC61966-2.1",
     {0.43607, 0.22249, 0.01392},
     {0.38515, 0.71687, 0.09708},
     {0.14307, 0.06061, 0.71410}},
    {"Display P3",
     {0.51512, 0.24120, -0.00105},
     {0.29198, 0.69225, 0.04189},
     {0.15710, 0.06657, 0.78407}},
};

void fixed(ByteWriter& out, double value) {
  out.u32(std::llround(value * 65536));
}

Bytes xyzTag(const Primary& color) {
  ByteWriter out;
  out.text("XYZ ");
  out.u32(0);
  for (const double part : {color.x, color.y, color.z}) fixed(out, part);
  return out.take();
}

// One text in one language, in UTF-16.
Bytes textTag(std::string_view text) {
  ByteWriter out;
  out.text("mluc");
  out.u32(0);
  out.u32(1);
  out.u32(12);
  out.text("enUS");
  out.u32(text.size() * 2);
  out.u32(28);
  for (const char character : text) out.u16(static_cast<unsigned char>(character));
  return out.take();
}

// The curve of sRGB: a straight piece, then a power.
Bytes curveTag() {
  ByteWriter out;
  out.text("para");
  out.u32(0);
  out.u16(3);
  out.u16(0);
  for (const double part : {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045}) fixed(out, part);
  return out.take();
}

// From D65 to D50, Bradford.
Bytes adaptationTag() {
  ByteWriter out;
  out.text("sf32");
  out.u32(0);
  for (const double part :
       {1.04788, 0.02292, -0.0502, 0.02959, 0.99048, -0.01706, -0.00923, 0.01508, 0.75168})
    fixed(out, part);
  return out.take();
}

void writeHeader(ByteWriter& out, std::size_t size) {
  out.u32(size);
  out.text("lcms");
  out.u32(0x04000000);
  out.text("mntrRGB XYZ ");
  for (const int part : {2019, 1, 1, 0, 0, 0}) out.u16(part);
  out.text("acsp");
  out.zeros(28);  // platform, flags, maker, model, attributes, intent
  fixed(out, 0.9642);
  fixed(out, 1);
  fixed(out, 0.82491);
  out.zeros(48);  // creator, identifier
}

}  // namespace

Bytes iccProfile(ColorSpace space) {
  const Space& chosen = spaces[static_cast<std::size_t>(space)];
  const struct {
    std::string_view name;
    Bytes bytes;
  } tags[] = {{"desc", textTag(chosen.name)},
              {"cprt", textTag("Public domain")},
              {"wtpt", xyzTag({0.9642, 1, 0.82491})},
              {"rXYZ", xyzTag(chosen.red)},
              {"gXYZ", xyzTag(chosen.green)},
              {"bXYZ", xyzTag(chosen.blue)},
              {"rTRC", curveTag()},
              {"gTRC", curveTag()},
              {"bTRC", curveTag()},
              {"chad", adaptationTag()}};
  ByteWriter table;
  ByteWriter data;
  table.u32(std::size(tags));
  const std::size_t dataStart = 128 + 4 + 12 * std::size(tags);
  for (const auto& tag : tags) {
    table.text(tag.name);
    table.u32(dataStart + data.size());
    table.u32(tag.bytes.size());
    data.append(tag.bytes);
    data.zeros((4 - data.size() % 4) % 4);
  }
  ByteWriter out;
  writeHeader(out, dataStart + data.size());
  out.append(table.bytes());
  out.append(data.bytes());
  return out.take();
}

}  // namespace samples
