// SPDX-License-Identifier: MIT
#include "lumifact/details/view_details_action.h"

namespace lumifact {

void PUOneUpViewController_LXErrorAlert(id, SEL, id) {}

void PUOneUpViewController_LXViewExifData(id, SEL, id) {}

}  // namespace lumifact
