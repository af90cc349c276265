// SPDX-License-Identifier: MIT
//
// The single photo: how others open it, and what keys do to it.
#pragma once

#include <cstddef>
#include <memory>

#include "bridge/uikit.h"

namespace desktop::photos_ui {

class ItemList;

// Ordinary is by itself, with bars; a preview is a look at it, as a card over the grid.
enum class Presentation { ordinary, preview };

// A single-photo controller (PUOneUpViewController) for a list of items, at one of them, numbered
// from 0 through all sections.
bridge::Owned<bridge::UIViewController> makeOneUp(std::shared_ptr<const ItemList> items,
                                                  std::size_t index, Presentation presentation);

enum class OneUpAction { next, previous, first, last, zoomIn, zoomOut, fit, actualSize, play };

// Whether the controller is a single photo and did something.
bool performOneUpAction(bridge::UIViewController controller, OneUpAction action);

}  // namespace desktop::photos_ui
