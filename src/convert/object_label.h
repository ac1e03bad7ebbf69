// SPDX-License-Identifier: MIT
// The label that an OPEN LOOK control carries and a Motif control has beside it.
#ifndef PANDREL_CONVERT_OBJECT_LABEL_H
#define PANDREL_CONVERT_OBJECT_LABEL_H

struct Obj;
struct Widg;

// Gives the control its label, if the object has one that is not empty, and the width that the
// label leaves. With `useRowColumn` both move into a row-column, which takes the control's place
// and is returned. Otherwise the label becomes the control's next sibling, and the control is
// returned.
Widg* SpecProcObjLabel(Obj* obj, Widg* widg, int useRowColumn);

#endif
