// SPDX-License-Identifier: MIT
#include "lumifact/report/flash_codes.h"

#include "lumifact/report/label.h"

namespace lumifact {

namespace {

// The spelling of the unknown mode and the blank at the end of 95 are part of the report's format.
constexpr std::string_view unknownMode = "Unkown Flash mode";

constexpr Label modes[] = {
    {0, "Flash did not fire"},
    {1, "Flash fired"},
    {5, "Strobe return light not detected"},
    {7, "Strobe return light detected"},
    {9, "Flash fired, compulsory flash mode"},
    {13, "Flash fired, compulsory flash mode, return light not detected"},
    {15, "Flash fired, compulsory flash mode, return light detected"},
    {16, "Flash did not fire, compulsory flash mode"},
    {24, "Flash did not fire, auto mode"},
    {25, "Flash fired, auto mode"},
    {29, "Flash fired, auto mode, return light not detected"},
    {31, "Flash fired, auto mode, return light detected"},
    {32, "No flash function"},
    {65, "Flash fired, red-eye reduction mode"},
    {69, "Flash fired, red-eye reduction mode, return light not detected"},
    {71, "Flash fired, red-eye reduction mode, return light detected"},
    {73, "Flash fired, compulsory flash mode, red-eye reduction mode"},
    {77, "Flash fired, compulsory flash mode, red-eye reduction mode, return light not detected"},
    {79, "Flash fired, compulsory flash mode, red-eye reduction mode, return light detected"},
    {89, "Flash fired, auto mode, red-eye reduction mode"},
    {93, "Flash fired, auto mode, return light not detected, red-eye reduction mode"},
    {95, "Flash fired, auto mode, return light detected, red-eye reduction mode "},
};
static_assert(keysAscend(modes));

}  // namespace

std::string_view flashMode(std::int64_t code) {
  return labelOf(modes, code).value_or(unknownMode);
}

}  // namespace lumifact
