// SPDX-License-Identifier: MIT
//
// The object runtime as typed C++: all of bridge/runtime.
#pragma once

#include "bridge/runtime/associated_property.h"
#include "bridge/runtime/autorelease_pool.h"
#include "bridge/runtime/class_lookup.h"
#include "bridge/runtime/encoding.h"
#include "bridge/runtime/fields.h"
#include "bridge/runtime/owned.h"
#include "bridge/runtime/send.h"
