// SPDX-License-Identifier: MIT
//
// Pages of settings in the form that the phone's settings application reads without code: a
// property list of cells.
#pragma once

#include <string>

#include "desktop/settings/page.h"
#include "model/result.h"

namespace desktop::settings {

// The page in a property list:
//
//   entry = { cell = PSLinkCell; label = NAME; };
//   title = "...";
//   items = ( { cell = PSGroupCell; label = "..."; footerText = "..."; },
//             { cell = PSSwitchCell; label = "..."; key = "..."; defaults = DOMAIN;
//               default = <true>; PostNotification = "..."; }, ... );
//
// Cells of other types than the reader knows become unknown rows, other keys are passed over.
//
// Errors: a list that is nested, long or wordy beyond pageLimits; a key that is missing, or whose
// value is of another type than its cell needs, with the number of the row, counted from 1.
model::Result<Page> parsePage(const model::Value& list);

// The page in a file. Errors: as above; why the file cannot be read as a property list; a file that
// is not named like its entry's label, by which alone the phone finds it.
model::Result<Page> readPage(const std::string& path);

}  // namespace desktop::settings
