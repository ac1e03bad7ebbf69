// SPDX-License-Identifier: MIT
// Moves groups of resources between widgets: sets each one that is not empty on the target and
// removes it from the source.
#ifndef PANDREL_WIDGET_RESOURCES_H
#define PANDREL_WIDGET_RESOURCES_H

struct Widg;

// Moves "XmNx", then "XmNy".
void MovePositionResources(Widg* from, Widg* to);

// Copies "XmNwidth", then "XmNheight"; the source keeps them.
void CopySizeResources(Widg* from, Widg* to);

// Moves "XmNmappedWhenManaged".
void MoveVisibilityResources(Widg* from, Widg* to);

// Makes the widget's position relative to the new parent's: its x and y minus the parent's, absent
// ones counting as 0.
void ReparentGeometry(const Widg* new_parent, Widg* widg);

// Sets zero margins, and the policy to grow with the children but never to shrink.
void SetTightBoard(Widg* board);

// A new text: a widget list of one, "(WL)[<text>]" between double quotes.
char* MakeWidgList(const char* text);

#endif
