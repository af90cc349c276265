// SPDX-License-Identifier: MIT
//
// The options that several commands take.
#pragma once

#include <array>

#include "apps/lumifact/command_line/option.h"

namespace lumifact::tool::option {

extern const Option recursive;
extern const Option filesFrom;
extern const Option null;
extern const Option jobs;
extern const Option settings;
extern const Option mapType;
extern const Option mapZoom;
extern const Option mapView;
extern const Option locale;
extern const Option timeZone;
extern const Option root;
extern const Option help;
extern const Option version;

// Every command takes these, without naming them, and so does the tool without a command.
inline constexpr std::array everywhere = {&help, &version};

}  // namespace lumifact::tool::option
