// SPDX-License-Identifier: MIT
#include "convert/windows.h"

#include <gtest/gtest.h>

#include <initializer_list>

#include "flags/flags.h"
#include "unit/support/check_widg_tree.h"
#include "unit/support/gil_objects.h"
#include "unit/support/session_fixture.h"
#include "unit/support/widgets.h"
#include "widget/tree.h"

namespace {

class Windows : public SessionFixture {
 protected:
  Windows() { reposition = 0; }
};

Obj* Area(const char* name) { return Object(CONTROL_AREA, name); }

Widg* Window(std::initializer_list<Attr*> attrs, std::initializer_list<Obj*> children) {
  return Convert(Owning(Object(BASE_WINDOW, "window", attrs), children));
}

Widg* Popup(std::initializer_list<Attr*> attrs, std::initializer_list<Obj*> children) {
  return Convert(Owning(Object(POPUP_WINDOW, "Popup", attrs), children));
}

Widg* Canvas(std::initializer_list<Attr*> attrs) {
  return Convert(Object(CANVAS_PANE, "canvas", attrs));
}

TEST_F(Windows, WindowOfOneChildNeedsNoBoard) {
  EXPECT_EQ(InstanceTree(Window({}, {Area("a")})), "window(a)");
}

TEST_F(Windows, EmptyWindowGetsABoard) {
  EXPECT_EQ(InstanceTree(Window({}, {})), "window(bboard)");
}

TEST_F(Windows, BoardAdoptsTheChildrenAndTheSizeOfTheWindow) {
  const Widg* window = Window({Int(WIDTH, 30), Int(HEIGHT, 40)}, {Area("a"), Area("b")});
  EXPECT_EQ(InstanceTree(window), "window(bboard(a b))");
  EXPECT_EQ(Resources(window->child),
            "XmNwidth=30 XmNheight=40 XmNmarginWidth=0 XmNmarginHeight=0 "
            "XmNresizePolicy=XmRESIZE_GROW");
  EXPECT_EQ(CheckWidgTree(window), "");
}

TEST_F(Windows, HelpOfAWindowMovesToItsWorkArea) {
  zo25 = 0;
  const Widg* window = Window({Str(HELP, "text")}, {});
  EXPECT_EQ(Callbacks(window), "");
  EXPECT_EQ(Callbacks(window->child), "XmNhelpCallback ZoHelpCB(\"text\")");
}

TEST_F(Windows, HelpMovesToTheOnlyChildToo) {
  zo25 = 0;
  const Widg* window = Window({Str(HELP, "text")}, {Area("a")});
  EXPECT_EQ(Callbacks(window->child), "XmNhelpCallback ZoHelpCB(\"text\")");
}

TEST_F(Windows, PopupWindowNamesItsBoardAfterItself) {
  const Widg* popup = Popup({Int(WIDTH, 30)}, {});
  EXPECT_EQ(NameTree(popup), "Popup(Popup_bboard)");
  EXPECT_EQ(InstanceTree(popup), "popup(popup_bboard)");
  EXPECT_EQ(Resources(popup->child),
            "XmNwidth=30 XmNmarginWidth=0 XmNmarginHeight=0 XmNresizePolicy=XmRESIZE_GROW");
}

TEST_F(Windows, PopupWindowOfOneChildNeedsNoBoard) {
  EXPECT_EQ(InstanceTree(Popup({}, {Area("a")})), "popup(a)");
}

TEST_F(Windows, InvisiblePopupWindowIsUnmanaged) {
  const Widg* popup = Popup({Tok(INITIAL_STATE, INVISIBLE)}, {Area("a")});
  EXPECT_EQ(Resources(popup), "");
  EXPECT_EQ(popup->child->managed, 0);
  EXPECT_EQ(popup->managed, 1);
}

TEST_F(Windows, InvisiblePopupWindowIsManagedWhenAllIsMapped) {
  map_all = 1;
  const Widg* popup = Popup({Tok(INITIAL_STATE, INVISIBLE)}, {Area("a")});
  EXPECT_EQ(Resources(popup), "");
  EXPECT_EQ(popup->child->managed, 1);
}

TEST_F(Windows, VisiblePopupWindowIsManaged) {
  EXPECT_EQ(Popup({Tok(INITIAL_STATE, VISIBLE)}, {})->child->managed, 1);
}

TEST_F(Windows, HelpOfAPopupWindowMovesToItsWorkArea) {
  zo25 = 0;
  const Widg* popup = Popup({Str(HELP, "text")}, {});
  EXPECT_EQ(Callbacks(popup), "");
  EXPECT_EQ(Callbacks(popup->child), "XmNhelpCallback ZoHelpCB(\"text\")");
}

TEST_F(Windows, CanvasHasABorder) { EXPECT_EQ(Resources(Canvas({})), "XmNborderWidth=1"); }

TEST_F(Windows, CanvasOfTwoScrollBarsIsScrolled) {
  const Widg* sw = Canvas({Int(X, 1), Int(Y, 2), Int(WIDTH, 30), Int(HEIGHT, 40),
                           Tok(HORIZONTAL_SCROLLBAR, T), Tok(VERTICAL_SCROLLBAR, T)});
  EXPECT_EQ(ClassTree(sw), "XmScrolledWindow(XmDrawingArea)");
  EXPECT_EQ(InstanceTree(sw), "canvas_sw(canvas)");
  EXPECT_EQ(Resources(sw),
            "XmNwidth=30 XmNheight=40 XmNx=1 XmNy=2 XmNscrollingPolicy=XmAUTOMATIC "
            "XmNscrollBarDisplayPolicy=XmSTATIC");
  EXPECT_EQ(Resources(sw->child), "XmNwidth=30 XmNheight=40 XmNborderWidth=1");
  EXPECT_EQ(sw->child->wrapped, 1);
  EXPECT_EQ(sw->x, 1);
  EXPECT_EQ(sw->y, 2);
  EXPECT_EQ(sw->width, 30);
  EXPECT_EQ(sw->height, 40);
}

TEST_F(Windows, OneScrollBarIsEnoughWhenTheOtherIsDenied) {
  EXPECT_EQ(ClassTree(Canvas({Tok(HORIZONTAL_SCROLLBAR, T), Tok(VERTICAL_SCROLLBAR, NIL)})),
            "XmScrolledWindow(XmDrawingArea)");
}

TEST_F(Windows, VerticalScrollBarIsEnoughWhenTheOtherIsDenied) {
  EXPECT_EQ(ClassTree(Canvas({Tok(HORIZONTAL_SCROLLBAR, NIL), Tok(VERTICAL_SCROLLBAR, T)})),
            "XmScrolledWindow(XmDrawingArea)");
}

TEST_F(Windows, ScrollBarOfWhichTheOtherIsNotMentionedDoesNotCount) {
  EXPECT_EQ(ClassTree(Canvas({Tok(VERTICAL_SCROLLBAR, T)})), "XmDrawingArea");
}

TEST_F(Windows, HorizontalScrollBarAloneDoesNotCountEither) {
  EXPECT_EQ(ClassTree(Canvas({Tok(HORIZONTAL_SCROLLBAR, T)})), "XmDrawingArea");
}

TEST_F(Windows, DeniedScrollBarsAreNone) {
  EXPECT_EQ(ClassTree(Canvas({Tok(HORIZONTAL_SCROLLBAR, NIL), Tok(VERTICAL_SCROLLBAR, NIL)})),
            "XmDrawingArea");
}

}  // namespace
