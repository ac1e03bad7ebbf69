// SPDX-License-Identifier: MIT
// The special processing of controls that show a value: sliders, gauges, text fields.
#ifndef PANDREL_CONVERT_CONTROLS_H
#define PANDREL_CONVERT_CONTROLS_H

struct Obj;
struct Widg;

// Each returns the widget that stands for the control: itself, or what holds it and its label.
Widg* SpecProcSlider(Obj* obj, Widg* widg);
Widg* SpecProcTextField(Obj* obj, Widg* widg);

// A gauge is a scale that nobody can move. Returns the scale, without its label.
Widg* SpecProcGauge(Obj* obj, Widg* scale);

// Turns a text field into a text of several lines.
Widg* MakeText(Obj* obj, Widg* widg);

#endif
