// SPDX-License-Identifier: MIT
//
// The caption of a thumbnail: a bar over its lower edge with one line of text. Both views are made
// with the cell, live as long as it does, and look as the settings said when they were made.
#pragma once

#include "bridge/photos.h"
#include "lumifact/platform.h"

namespace lumifact {

// The two properties that cells are given: the bar, in the cell's content view, and the label in
// it. Nil where the cell was made without a caption.
extern constinit AssociatedProperty<UIView> sizeLabelView;
extern constinit AssociatedProperty<UILabel> sizeLabel;

// Gives a new cell its caption, where the user wants one.
void addCaption(PUPhotosGridCell cell);

// Puts the bar along the lower edge of the photo, or along the upper one where a banner is below.
// Where the user wants no captions any more, the bar becomes invisible; nothing here shows it
// again.
void layOutCaption(PUPhotosGridCell cell);

}  // namespace lumifact
