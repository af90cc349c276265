// SPDX-License-Identifier: MIT
//
// The platform's names, as bridge/ has them, in the extension's own namespace. For the files that
// speak to the object runtime; the pure ones do without.
#pragma once

namespace bridge {}

namespace lumifact {
using namespace bridge;
}
