// SPDX-License-Identifier: MIT
//
// The platform's names, as bridge/ has them, in the desktop's own namespaces: there a platform's
// name means the handle. The class behind it, where it is bound to C++, is the name with State.
#pragma once

namespace bridge {}

namespace desktop {
using namespace bridge;
}
