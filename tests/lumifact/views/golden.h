// SPDX-License-Identifier: MIT
//
// Views compared with texts that are kept beside the tests.
#pragma once

#include <string>

#include "bridge/uikit/ui_view.h"

namespace lumifact {

// Expects the view and all in it to be as goldens/NAME.json tells. Where it is not, the actual text
// is kept in the folder for temporary files, and its path is told.
void expectGolden(const std::string& name, bridge::UIView view);

}  // namespace lumifact
