// SPDX-License-Identifier: MIT
#include "foundation/locale_data.h"

#include "io/on_demand_module.h"

namespace foundation {

namespace {

const LocaleData* mapped() {
  const auto get =
      reinterpret_cast<GetLocaleData>(io::functionOfModule(localeDataModule, localeDataFunction));
  return get == nullptr ? nullptr : get();
}

}  // namespace

const LocaleData* localeData() {
  static const LocaleData* const data = mapped();
  return data;
}

bool localeExists(std::string_view name) {
  const Locale locale(name);
  return Locale::isName(name) &&
         (locale.isEnUS() || localeData() == nullptr || localeData()->knows(locale));
}

}  // namespace foundation
