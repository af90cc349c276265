// SPDX-License-Identifier: MIT
//
// Where the samples were "taken": places in all four quarters of the earth.
#pragma once

#include "samples/library/item.h"

namespace samples::places {

// North and west.
inline constexpr Place reykjavik{
    "Grótta", "Reykjavík", "Höfuðborgarsvæðið", "Iceland", "ISL", 64.164722, -22.018889, 4.2, 0};
inline constexpr Place honolulu{
    "Waikiki", "Honolulu", "Hawaii", "United States", "USA", 21.276389, -157.828056, 2.1, -600};
inline constexpr Place caboDaRoca{"Cabo da Roca", "Colares", "Lisboa", "Portugal", "PRT",
                                  38.780556,      -9.498611, 140.5,    60};
inline constexpr Place lisbon{"Alfama",  "Lisboa", "Lisboa", "Portugal", "PRT",
                              38.711944, -9.13,    52.4,     60};
inline constexpr Place chicago{"Museum Campus", "Chicago", "Illinois",
                               "United States", "USA",     41.866389,
                               -87.607222,      180.7,     -300};
inline constexpr Place mexicoCity{
    "Coyoacán", "Ciudad de México", "Ciudad de México", "Mexico", "MEX", 19.35, -99.161944, 2246.3,
    -360};

// North and east.
inline constexpr Place kyoto{"Arashiyama", "Kyōto",    "Kyōto", "Japan", "JPN",
                             35.016944,    135.671389, 56.8,    540};
inline constexpr Place shanghai{"The Bund", "Shanghai", "Shanghai", "China", "CHN",
                                31.24,      121.490278, 8.3,        480};
inline constexpr Place deadSea{"Ein Bokek", "Ein Bokek", "Southern District",
                               "Israel",    "ISR",       31.200278,
                               35.362778,   -430.5,      180};
inline constexpr Place lofoten{"Hamnøy",  "Reine",   "Nordland", "Norway", "NOR",
                               67.945833, 13.133056, 3.6,        60};
inline constexpr Place istanbul{"Galata",  "İstanbul", "İstanbul", "Turkey", "TUR",
                                41.025556, 28.974167,  61.2,       180};
inline constexpr Place tallinn{
    "Vanalinn", "Tallinn", "Harju maakond", "Estonia", "EST", 59.437222, 24.745278, 28.9, 120};
inline constexpr Place oeschinensee{
    "Oeschinensee", "Kandersteg", "Bern", "Switzerland", "CHE", 46.498056, 7.726944, 1578.4, 120};

// South and east.
inline constexpr Place capeTown{"Bloubergstrand", "Cape Town", "Western Cape",
                                "South Africa",   "ZAF",       -33.806944,
                                18.461944,        6.4,         120};
inline constexpr Place sydney{"Milsons Point", "Sydney", "New South Wales",
                              "Australia",     "AUS",    -33.847778,
                              151.212222,      11.8,     600};
inline constexpr Place melbourne{"Flinders Street", "Melbourne", "Victoria", "Australia", "AUS",
                                 -37.818333,        144.967222,  14.0,       660};
inline constexpr Place mauritius{
    "Le Morne", "Le Morne", "Rivière Noire", "Mauritius", "MUS", -20.451944, 57.313889, 1.9, 240};
inline constexpr Place queenstown{"Lake Wakatipu", "Queenstown", "Otago",
                                  "New Zealand",   "NZL",        -45.036389,
                                  168.660278,      311.6,        780};
inline constexpr Place sossusvlei{"Deadvlei", "Sossusvlei", "Hardap", "Namibia", "NAM",
                                  -24.762222, 15.2925,      571.3,    120};

// South and west.
inline constexpr Place ushuaia{"Canal Beagle", "Ushuaia", "Tierra del Fuego",
                               "Argentina",    "ARG",     -54.808056,
                               -68.311389,     7.5,       -180};
inline constexpr Place quito{"Lloa",    "Quito",    "Pichincha", "Ecuador", "ECU",
                             -0.247778, -78.583333, 3058.2,      -300};
inline constexpr Place atacama{"Valle de la Luna",
                               "San Pedro de Atacama",
                               "Antofagasta",
                               "Chile",
                               "CHL",
                               -22.923611,
                               -68.287778,
                               2544.8,
                               -240};
inline constexpr Place rio{"Niterói", "Rio de Janeiro", "Rio de Janeiro", "Brazil",
                           "BRA",     -22.906944,       -43.124722,       5.0,
                           -180};
inline constexpr Place montevideo{"Rambla",   "Montevideo", "Montevideo", "Uruguay", "URY",
                                  -34.918056, -56.166667,   9.7,          -180};

}  // namespace samples::places
