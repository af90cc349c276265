// SPDX-License-Identifier: MIT
//
// What the commands need to know beside their files: settings, customs, and the device's root.
#pragma once

#include <string>

#include "apps/lumifact/command_line/options.h"
#include "foundation/device_root.h"
#include "foundation/locale.h"
#include "lumifact/state/settings.h"
#include "model/key_order.h"

namespace lumifact::tool {

// Who reads the results. Programs get the same bytes in every locale, unless one is asked for by
// --locale.
enum class Reader { person, program };

struct Environment {
  foundation::DeviceRoot root;
  Settings settings;
  foundation::Locale dates;
  foundation::Locale numbers;
  model::KeyComparison keyOrder;
};

// The environment of the options, the user's variables and the settings file. Dates are those of
// the process's time zone, which the program sets before.
Environment environmentOf(const Options& options, Reader reader);

// The root of the device, and where the settings file lies.
foundation::DeviceRoot rootOf(const Options& options);
std::string settingsFileOf(const Options& options);

// The settings of the file with the options' own choices put over them. A missing or unreadable
// file means the defaults.
Settings settingsOf(const Options& options);

}  // namespace lumifact::tool
