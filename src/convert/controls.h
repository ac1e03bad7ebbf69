// SPDX-License-Identifier: MIT
// The special processing of controls that show a value: sliders, gauges, text fields.
#ifndef PANDREL_CONVERT_CONTROLS_H
#define PANDREL_CONVERT_CONTROLS_H

struct Obj;
struct Widg;

// Each gives the control its label and returns the widget that stands for both: the control itself,
// with the label as its next sibling, or the row-column around them.
Widg* SpecProcSlider(Obj* obj, Widg* widg);
Widg* SpecProcGauge(Obj* obj, Widg* scale);
Widg* SpecProcTextField(Obj* obj, Widg* widg);

#endif
