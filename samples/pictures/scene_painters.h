// SPDX-License-Identifier: MIT
//
// One function a scene; each fills the whole picture.
#pragma once

#include "samples/pictures/picture.h"

namespace samples {

// Skies at night (night_scenes.cpp).
void paintAuroraScene(Picture& picture, float phase);
void paintMilkyWayScene(Picture& picture, float phase);

// Mountains (mountain_scenes.cpp).
void paintTableMountain(Picture& picture, float phase);
void paintFjord(Picture& picture, float phase);
void paintVolcano(Picture& picture, float phase);
void paintAlpineLake(Picture& picture, float phase);
void paintGraniteBay(Picture& picture, float phase);

// Open country (country_scenes.cpp).
void paintHills(Picture& picture, float phase);
void paintSaltShore(Picture& picture, float phase);
void paintDunes(Picture& picture, float phase);
void paintBamboo(Picture& picture, float phase);

// The sea (sea_scenes.cpp).
void paintTropicalSunset(Picture& picture, float phase);
void paintLagoon(Picture& picture, float phase);
void paintSurf(Picture& picture, float phase);

// The coast (harbour_scenes.cpp).
void paintFishingHarbour(Picture& picture, float phase);
void paintLighthouse(Picture& picture, float phase);

// Towns (city_scenes.cpp, town_scenes.cpp).
void paintDuskSkyline(Picture& picture, float phase);
void paintHarbourBridge(Picture& picture, float phase);
void paintTram(Picture& picture, float phase);
void paintRooftops(Picture& picture, float phase);
void paintGables(Picture& picture, float phase);

// Indoors (still_life_scenes.cpp).
void paintFruit(Picture& picture, float phase);
void paintLemons(Picture& picture, float phase);

// Patterns (pattern_scenes.cpp).
void paintMural(Picture& picture, float phase);
void paintTiles(Picture& picture, float phase);
void paintScales(Picture& picture, float phase);
void paintWeatherScreen(Picture& picture, float phase);

}  // namespace samples
