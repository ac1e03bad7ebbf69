// SPDX-License-Identifier: MIT
#include "convert/events.h"

#include <cstdio>

#include "flags/flags.h"
#include "osi/strings.h"
#include "widget/tree.h"

enum Answer {
  kCallback,           // the callback of the row
  kBySelectionPolicy,  // a list's callback
  kSilent,             // none
  kNoMapping,          // none, and a note that names the event
  kUseValueChanged,    // none, and a note on toggle buttons
  kUseItems,           // none, and a note on menus
};

struct EventRow {
  const char* event;
  const char* class_name;  // empty: any other
  Answer answer;
  const char* callback_name;
};

// In the order of the look-up. An event that is not listed has no callback, silently.
static const EventRow kEvents[] = {
    {"AnyEvent", "", kNoMapping, nullptr},
    {"Enter", "", kNoMapping, nullptr},
    {"Exit", "", kNoMapping, nullptr},
    {"Adjust", "", kNoMapping, nullptr},
    {"Menu", "", kNoMapping, nullptr},
    {"Notify", "XmPushButton", kCallback, "XmNactivateCallback"},
    {"Notify", "XmToggleButton", kUseValueChanged, nullptr},
    {"Notify", "XmText", kCallback, "XmNactivateCallback"},
    {"Notify", "XmTextField", kCallback, "XmNactivateCallback"},
    {"Notify", "XmScale", kCallback, "XmNvalueChangedCallback"},
    {"Notify", "XmList", kBySelectionPolicy, nullptr},
    {"Notify", "XmPulldownMenu", kUseItems, nullptr},
    {"Notify", "XmPopupMenu", kUseItems, nullptr},
    {"Notify", "", kSilent, nullptr},
    {"Resize", "XmDrawingArea", kCallback, "XmNresizeCallback"},
    {"Resize", "", kNoMapping, nullptr},
    {"Select", "XmDrawingArea", kCallback, "XmNinputCallback"},
    {"Select", "", kNoMapping, nullptr},
    {"Repaint", "XmDrawingArea", kCallback, "XmNexposeCallback"},
    {"Repaint", "", kSilent, nullptr},
    {"KeyPress", "XmDrawingArea", kCallback, "XmNinputCallback"},
    {"KeyPress", "XmText", kCallback, "XmNvalueChangedCallback"},
    {"KeyPress", "XmTextField", kCallback, "XmNvalueChangedCallback"},
    {"KeyPress", "", kNoMapping, nullptr},
    {"DoubleClick", "", kNoMapping, nullptr},
};

// note [the policy is read under another name]
// The misspelt resource below is never set, so every list answers to "Notify" with its
// single-selection callback, whatever its policy. Programs rely on it.
static const char* ListCallback(const Widg* list) {
  const char* policy = GetResourceValue(list, "XmNselectionionPolicy");
  const bool multiple =
      OsiStrcmp(policy, "XmBROWSE_SELECT") == 0 || OsiStrcmp(policy, "XmMULTIPLE_SELECT") == 0;
  return multiple ? "XmNmultipleSelectionCallback" : "XmNsingleSelectionCallback";
}

// Writes the note of an answer that has one.
static void Note(Answer answer, const Widg* widg, const char* when) {
  if (answer == kNoMapping) {
    std::fprintf(stderr, "Ignoring %s action on widget %s. No direct callback mapping.\n", when,
                 widg->name);
  } else if (answer == kUseValueChanged) {
    std::fprintf(stderr,
                 "No direct callback mapping for Notify action for toggle button %s. Try using "
                 "a valueChangedCallback\n",
                 widg->name);
  } else if (answer == kUseItems) {
    std::fprintf(stderr,
                 "Ignoring Notify action on menu %s. Try activateCallback's on PushButton "
                 "children instead\n",
                 widg->name);
  }
}

static const EventRow* FindRow(const Widg* widg, const char* when) {
  for (const EventRow& row : kEvents) {
    if (OsiStrcmp(when, row.event) == 0 && (!*row.class_name || IsClass(widg, row.class_name))) {
      return &row;
    }
  }
  return nullptr;
}

const char* MapActionToCallback(const Widg* widg, const char* when) {
  const EventRow* row = FindRow(widg, when);
  if (!row) return nullptr;
  if (row->answer == kBySelectionPolicy) return ListCallback(widg);
  if (verbose) Note(row->answer, widg, when);
  return row->callback_name;
}
