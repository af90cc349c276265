// SPDX-License-Identifier: MIT
//
// What a dump tells of a view beyond its place: what its class shows, its layer, its gestures.
#pragma once

#include <string>

#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/script/node_dump.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::script {

std::string classNameOf(Object object);
// Whether it is of that class or a subclass; no where the class is unknown.
bool isA(Object object, const char* className);

// Text, font, editing, accessory and so on, of the classes that have them.
void addClassParts(UIView view, Json& node);
// "layer", where anything of it differs from a plain layer's.
void addLayer(CALayer layer, Json& node);
// "gestures", where there are any.
void addGestures(const uikit::UIViewState& view, Json& node);

}  // namespace desktop::script
