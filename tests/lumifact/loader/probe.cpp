// SPDX-License-Identifier: MIT
//
// Linked with the extension's own objects into a library of its own.
#include "tests/lumifact/loader/probe.h"

#include "lumifact/loader/current_settings.h"
#include "lumifact/loader/hook_table.h"

extern "C" __attribute__((visibility("default"))) const lumifact::host::Probe* extensionProbe();

extern "C" const lumifact::host::Probe* extensionProbe() {
  static const lumifact::host::Probe probe = {lumifact::settings, lumifact::infoLineHeight,
                                              lumifact::hookTable()};
  return &probe;
}
