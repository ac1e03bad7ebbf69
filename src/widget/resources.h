// SPDX-License-Identifier: MIT
// Moving groups of resources between widgets. To move is to set on the target and to remove from
// the source, for each resource that is not empty.
#ifndef PANDREL_WIDGET_RESOURCES_H
#define PANDREL_WIDGET_RESOURCES_H

struct Widg;

// "XmNx", then "XmNy".
void MovePositionResources(Widg* from, Widg* to);

// Copies "XmNwidth", then "XmNheight"; the source keeps them.
void CopySizeResources(Widg* from, Widg* to);

// "XmNmappedWhenManaged".
void MoveVisibilityResources(Widg* from, Widg* to);

// Makes the widget's position relative to the new parent's: its x and y minus the parent's, absent
// ones counting as 0.
void ReparentGeometry(const Widg* new_parent, Widg* widg);

// Zero margins, and the policy to grow with the children but never to shrink.
void SetTightBoard(Widg* board);

// A new text: a widget list of one, "(WL)[<text>]" between double quotes.
char* MakeWidgList(const char* text);

#endif
