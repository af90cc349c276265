// SPDX-License-Identifier: MIT
//
// A settings file, and the settings in effect as texts.
#include <cstdint>

#include "foundation/property_lists/property_list.h"
#include "lumifact/state/settings.h"
#include "model/description.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto list = foundation::parsePropertyList(io::ByteView({data, size}));
  const model::Dictionary* file = list ? list->root.asDictionary() : nullptr;
  const lumifact::Settings settings = lumifact::settingsFromFile(file);
  for (const lumifact::SettingRow& row : lumifact::settingRows())
    static_cast<void>(model::valueText(lumifact::settingValue(settings, row.key)));
  return 0;
}
