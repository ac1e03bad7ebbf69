// SPDX-License-Identifier: MIT
#include "convert/events.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#include "flags/flags.h"
#include "unit/support/session_fixture.h"
#include "unit/support/stream_capture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

using Events = SessionFixture;

// The callback of an event on a widget of that class, "-" for none, and the note on standard error.
struct Mapping {
  std::string callback;
  std::string note;
};

Mapping Map(const char* class_name, const char* when) {
  const Widg* widg = NewWidg(class_name, "item");
  StreamCapture err(stderr);
  const char* callback = MapActionToCallback(widg, when);
  return {callback ? callback : "-", err.Take()};
}

struct EventRow {
  const char* when;
  const char* class_name;
  const char* callback;
};

const EventRow kCallbacks[] = {
    {"Notify", "XmPushButton", "XmNactivateCallback"},
    {"Notify", "XmText", "XmNactivateCallback"},
    {"Notify", "XmTextField", "XmNactivateCallback"},
    {"Notify", "XmScale", "XmNvalueChangedCallback"},
    {"Notify", "XmList", "XmNsingleSelectionCallback"},
    {"Resize", "XmDrawingArea", "XmNresizeCallback"},
    {"Select", "XmDrawingArea", "XmNinputCallback"},
    {"Repaint", "XmDrawingArea", "XmNexposeCallback"},
    {"KeyPress", "XmDrawingArea", "XmNinputCallback"},
    {"KeyPress", "XmText", "XmNvalueChangedCallback"},
    {"KeyPress", "XmTextField", "XmNvalueChangedCallback"},
};

const EventRow kSilent[] = {
    {"Notify", "XmLabel", "-"},
    {"Notify", "XmCascadeButton", "-"},
    {"Notify", "XmDrawingArea", "-"},
    {"Repaint", "XmPushButton", "-"},
    {"DroppedUpon", "XmDrawingArea", "-"},
    {"DraggedFrom", "XmList", "-"},
    {"", "XmPushButton", "-"},
    {"notify", "XmPushButton", "-"},
    {"\"Notify\"", "XmPushButton", "-"},
};

const EventRow kNoted[] = {
    {"AnyEvent", "XmPushButton", "-"},
    {"Enter", "XmDrawingArea", "-"},
    {"Exit", "XmText", "-"},
    {"Adjust", "XmList", "-"},
    {"Menu", "XmPopupMenu", "-"},
    {"Resize", "XmPushButton", "-"},
    {"Select", "XmList", "-"},
    {"KeyPress", "XmList", "-"},
    {"DoubleClick", "XmPushButton", "-"},
    {"DoubleClick", "XmDrawingArea", "-"},
};

TEST_F(Events, EventsWithACallback) {
  for (const EventRow& row : kCallbacks) {
    const Mapping mapping = Map(row.class_name, row.when);
    EXPECT_EQ(mapping.callback, row.callback) << row.when << " on " << row.class_name;
    EXPECT_EQ(mapping.note, "");
  }
}

TEST_F(Events, EventsThatAreDroppedSilently) {
  for (const EventRow& row : kSilent) {
    const Mapping mapping = Map(row.class_name, row.when);
    EXPECT_EQ(mapping.callback, "-") << row.when << " on " << row.class_name;
    EXPECT_EQ(mapping.note, "");
  }
}

TEST_F(Events, EventsWithoutAMappingAreNoted) {
  NewWidg("XmLabel", "item");
  int number = 0;
  for (const EventRow& row : kNoted) {
    const Mapping mapping = Map(row.class_name, row.when);
    EXPECT_EQ(mapping.callback, "-");
    EXPECT_EQ(mapping.note, std::string("Ignoring ") + row.when + " action on widget item" +
                                std::to_string(++number) + ". No direct callback mapping.\n");
  }
}

TEST_F(Events, NotifyOfAToggleIsNoted) {
  const Mapping mapping = Map("XmToggleButton", "Notify");
  EXPECT_EQ(mapping.callback, "-");
  EXPECT_EQ(mapping.note,
            "No direct callback mapping for Notify action for toggle button item. Try using a "
            "valueChangedCallback\n");
}

TEST_F(Events, NotifyOfAMenuIsNoted) {
  EXPECT_EQ(Map("XmPulldownMenu", "Notify").note,
            "Ignoring Notify action on menu item. Try activateCallback's on PushButton children "
            "instead\n");
  EXPECT_EQ(Map("XmPopupMenu", "Notify").note,
            "Ignoring Notify action on menu item1. Try activateCallback's on PushButton children "
            "instead\n");
}

TEST_F(Events, NotesNeedNoteTaking) {
  verbose = 0;
  for (const EventRow& row : kNoted) EXPECT_EQ(Map(row.class_name, row.when).note, "");
  EXPECT_EQ(Map("XmToggleButton", "Notify").note, "");
  EXPECT_EQ(Map("XmPopupMenu", "Notify").note, "");
}

const char* ListCallback(const char* resource, const char* policy) {
  return MapActionToCallback(With(NewWidg("XmList", "list"), {{resource, policy}}), "Notify");
}

TEST_F(Events, SelectionPolicyOfAListDoesNotCount) {
  EXPECT_STREQ(ListCallback("XmNselectionPolicy", "XmBROWSE_SELECT"), "XmNsingleSelectionCallback");
  EXPECT_STREQ(ListCallback("XmNselectionPolicy", "XmMULTIPLE_SELECT"),
               "XmNsingleSelectionCallback");
}

TEST_F(Events, PolicyIsReadUnderItsOtherName) {
  EXPECT_STREQ(ListCallback("XmNselectionionPolicy", "XmBROWSE_SELECT"),
               "XmNmultipleSelectionCallback");
  EXPECT_STREQ(ListCallback("XmNselectionionPolicy", "XmMULTIPLE_SELECT"),
               "XmNmultipleSelectionCallback");
  EXPECT_STREQ(ListCallback("XmNselectionionPolicy", "XmSINGLE_SELECT"),
               "XmNsingleSelectionCallback");
}

}  // namespace
