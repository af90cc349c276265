// SPDX-License-Identifier: MIT
//
// What keys do: what viewers of photos do with them.
#pragma once

#include <QKeyEvent>
#include <QWindow>

namespace photohost {

// Whether the key was used.
bool pressKey(const QKeyEvent& event, QWindow& window);

// Presses the first enabled bar item on screen whose view is an info button, whoever put it there;
// whether there was one.
bool pressInfoButton();

}  // namespace photohost
