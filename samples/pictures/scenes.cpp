// SPDX-License-Identifier: MIT
#include "samples/pictures/scenes.h"

#include "samples/pictures/scene_painters.h"

namespace samples {

namespace {

struct Painter {
  Scene scene;
  void (*paint)(Picture&, float);
  float vignette;  // how much darker the corners are
  float grain;     // strength of the sensor's noise
};

constexpr Painter painters[] = {
    {Scene::aurora, paintAuroraScene, 0.25f, 0.010f},
    {Scene::milkyWay, paintMilkyWayScene, 0.25f, 0.012f},
    {Scene::tableMountain, paintTableMountain, 0.10f, 0.005f},
    {Scene::fjord, paintFjord, 0.12f, 0.006f},
    {Scene::volcano, paintVolcano, 0.12f, 0.005f},
    {Scene::alpineLake, paintAlpineLake, 0.08f, 0.005f},
    {Scene::graniteBay, paintGraniteBay, 0.08f, 0.005f},
    {Scene::hills, paintHills, 0.15f, 0.008f},
    {Scene::tropicalSunset, paintTropicalSunset, 0.15f, 0.006f},
    {Scene::fishingHarbour, paintFishingHarbour, 0.15f, 0.006f},
    {Scene::lighthouse, paintLighthouse, 0.12f, 0.006f},
    {Scene::lagoon, paintLagoon, 0.10f, 0.005f},
    {Scene::surf, paintSurf, 0.10f, 0.004f},
    {Scene::duskSkyline, paintDuskSkyline, 0.15f, 0.006f},
    {Scene::harbourBridge, paintHarbourBridge, 0.10f, 0.005f},
    {Scene::tram, paintTram, 0.22f, 0.008f},
    {Scene::rooftops, paintRooftops, 0.12f, 0.006f},
    {Scene::gables, paintGables, 0.20f, 0.010f},
    {Scene::saltShore, paintSaltShore, 0.10f, 0.005f},
    {Scene::dunes, paintDunes, 0.15f, 0.006f},
    {Scene::bamboo, paintBamboo, 0.22f, 0.008f},
    {Scene::fruit, paintFruit, 0.22f, 0.007f},
    {Scene::lemons, paintLemons, 0.22f, 0.009f},
    {Scene::mural, paintMural, 0.08f, 0.008f},
    {Scene::tiles, paintTiles, 0.10f, 0.008f},
    {Scene::scales, paintScales, 0.10f, 0.008f},
    {Scene::weatherScreen, paintWeatherScreen, 0, 0},
};

const Painter& painterOf(Scene scene) {
  const Painter* found = painters;
  for (const Painter& painter : painters)
    if (painter.scene == scene) found = &painter;
  return *found;
}

}  // namespace

Picture paintScene(Scene scene, int width, int height, float phase) {
  const Painter& painter = painterOf(scene);
  Picture picture(width, height);
  painter.paint(picture, phase);
  if (painter.grain > 0)
    addFilmLook(picture, painter.vignette, painter.grain, static_cast<std::uint32_t>(scene) * 77);
  return picture;
}

}  // namespace samples
