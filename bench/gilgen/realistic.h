// SPDX-License-Identifier: MIT
// Interfaces like those that applications have: base windows with dialogs, each with a control area
// of 20 to 60 controls laid out in rows, menus on buttons and canvases, some controls in groups,
// and connections that call procedures, show dialogs and enable or disable other controls.
#ifndef PANDREL_BENCH_GILGEN_REALISTIC_H
#define PANDREL_BENCH_GILGEN_REALISTIC_H

#include "gilgen/plan.h"

// Writes `plan.objects` objects in all, or whole windows until `plan.bytes` bytes are written.
void WriteRealistic(const Plan& plan, Random* random, const Target& target);

#endif
