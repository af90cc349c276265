// SPDX-License-Identifier: MIT
#include "desktop/foundation/locale_data.h"

#include "desktop/io/on_demand_module.h"

namespace desktop::foundation {

namespace {

const LocaleData* mapped() {
  const auto get =
      reinterpret_cast<GetLocaleData>(functionOfModule(localeDataModule, localeDataFunction));
  return get == nullptr ? nullptr : get();
}

}  // namespace

const LocaleData* localeData() {
  static const LocaleData* const data = mapped();
  return data;
}

}  // namespace desktop::foundation
