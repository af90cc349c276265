// SPDX-License-Identifier: MIT
//
// Foundation, as far as it is used: all of bridge/foundation.
#pragma once

#include "bridge/foundation/ns_collections.h"
#include "bridge/foundation/ns_data.h"
#include "bridge/foundation/ns_files.h"
#include "bridge/foundation/ns_formatters.h"
#include "bridge/foundation/ns_number.h"
#include "bridge/foundation/ns_object.h"
#include "bridge/foundation/ns_string.h"
#include "bridge/foundation/ns_text.h"
