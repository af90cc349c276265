// SPDX-License-Identifier: MIT
//
// The motifs of the library's pictures.
#pragma once

#include "samples/pictures/picture.h"

namespace samples {

enum class Scene {
  aurora,
  milkyWay,
  tableMountain,
  fjord,
  volcano,
  alpineLake,
  graniteBay,
  hills,
  tropicalSunset,
  fishingHarbour,
  lighthouse,
  lagoon,
  surf,
  duskSkyline,
  harbourBridge,
  tram,
  rooftops,
  gables,
  saltShore,
  dunes,
  bamboo,
  fruit,
  lemons,
  mural,
  tiles,
  scales,
  weatherScreen,
};

// The scene at a size. Any size works; each scene looks best near the shape it was made for.
// `phase` moves what moves (waves, lights), in seconds; for films.
Picture paintScene(Scene scene, int width, int height, float phase = 0);

}  // namespace samples
