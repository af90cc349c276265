// SPDX-License-Identifier: MIT
//
// What the samples were "taken" with, as such devices describe themselves.
#pragma once

#include "samples/library/item.h"

namespace samples::cameras {

inline constexpr Camera iphoneXsMax{.make = "Apple",
                                    .model = "iPhone XS Max",
                                    .software = "12.4",
                                    .lensMake = "Apple",
                                    .lensModel = "iPhone XS Max back dual camera 4.25mm f/1.8",
                                    .focalLength = 4.25,
                                    .focalLength35 = 26,
                                    .fNumber = 1.8,
                                    .lensRange = {4.25, 6, 1.8, 2.4},
                                    .makerNoteVersion = 10};

inline constexpr Camera iphoneXsTele{.make = "Apple",
                                     .model = "iPhone XS",
                                     .software = "12.3.1",
                                     .lensMake = "Apple",
                                     .lensModel = "iPhone XS back dual camera 6mm f/2.4",
                                     .focalLength = 6,
                                     .focalLength35 = 52,
                                     .fNumber = 2.4,
                                     .lensRange = {4.25, 6, 1.8, 2.4},
                                     .makerNoteVersion = 10};

inline constexpr Camera iphone8{.make = "Apple",
                                .model = "iPhone 8",
                                .software = "12.4",
                                .lensMake = "Apple",
                                .lensModel = "iPhone 8 back camera 3.99mm f/1.8",
                                .focalLength = 3.99,
                                .focalLength35 = 28,
                                .fNumber = 1.8,
                                .lensRange = {3.99, 3.99, 1.8, 1.8},
                                .makerNoteVersion = 10};

inline constexpr Camera iphone7Front{.make = "Apple",
                                     .model = "iPhone 7",
                                     .software = "12.1.4",
                                     .lensMake = "Apple",
                                     .lensModel = "iPhone 7 front camera 2.87mm f/2.2",
                                     .focalLength = 2.87,
                                     .focalLength35 = 32,
                                     .fNumber = 2.2,
                                     .lensRange = {2.87, 2.87, 2.2, 2.2},
                                     .makerNoteVersion = 10};

inline constexpr Camera iphoneSe{.make = "Apple",
                                 .model = "iPhone SE",
                                 .software = "12.2",
                                 .lensMake = "Apple",
                                 .lensModel = "iPhone SE back camera 4.15mm f/2.2",
                                 .focalLength = 4.15,
                                 .focalLength35 = 29,
                                 .fNumber = 2.2,
                                 .lensRange = {4.15, 4.15, 2.2, 2.2},
                                 .makerNoteVersion = 10};

inline constexpr Camera canon6d{.make = "Canon",
                                .model = "Canon EOS 6D",
                                .software = "Firmware Version 1.1.8",
                                .lensModel = "EF24-105mm f/4L IS USM",
                                .focalLength = 47,
                                .focalLength35 = 47,
                                .fNumber = 8,
                                .lensRange = {24, 105, 4, 4},
                                .bodySerial = "043021004512",
                                .lensSerial = "0000c1a7f2",
                                .lensId = 237};

inline constexpr Camera nikonD750{.make = "NIKON CORPORATION",
                                  .model = "NIKON D750",
                                  .software = "Ver.1.12 ",
                                  .lensModel = "35.0 mm f/1.8",
                                  .focalLength = 35,
                                  .focalLength35 = 35,
                                  .fNumber = 5.6,
                                  .lensRange = {35, 35, 1.8, 1.8},
                                  .bodySerial = "6098123",
                                  .lensId = 165};

inline constexpr Camera fujiXt20{.make = "FUJIFILM",
                                 .model = "X-T20",
                                 .software = "Digital Camera X-T20 Ver2.00",
                                 .lensMake = "FUJIFILM",
                                 .lensModel = "XF23mmF2 R WR",
                                 .focalLength = 23,
                                 .focalLength35 = 35,
                                 .fNumber = 4,
                                 .lensRange = {23, 23, 2, 2},
                                 .bodySerial = "73A02511",
                                 .lensSerial = "82A06933"};

inline constexpr Camera slideScanner{
    .make = "EPSON", .model = "Perfection V600", .software = "EPSON Scan"};

inline constexpr Camera androidPhone{.make = "samsung", .model = "SM-G960F", .software = "9"};

inline constexpr Camera videoEditor{
    .make = nullptr, .model = nullptr, .software = "HandBrake 1.2.2"};

}  // namespace samples::cameras
