// SPDX-License-Identifier: MIT
// What one run knows of an interface: every object of every GIL file and what became of it, every
// connection and its fate, every window. All output (C, module, resources, report) is made from
// this and from nothing else.
//
// The model owns its texts. It has indices instead of pointers: the place of an object, a file or a
// connection in the model's lists, -1 for none.
#ifndef PANDREL_PORT_MODEL_H
#define PANDREL_PORT_MODEL_H

#include <cstdint>
#include <string>
#include <vector>

namespace port {

// One value of an attribute or action. `text` is what the file means: a string without its quotes
// and with its escapes resolved, a keyword's word ("string", "t", "nil"), a number in digits.
struct GilValue {
  enum class Kind : uint8_t { kToken, kString, kInteger };
  Kind kind = Kind::kToken;
  int32_t number = 0;  // the token (gil/tokens.h) or the integer
  std::string text;
};

// The values stand in the file's order.
struct GilAttribute {
  int32_t name = 0;  // a token (gil/tokens.h)
  std::vector<GilValue> values;
};

// A widget of the converted module.
struct PortWidget {
  std::string name;        // in the module as mended
  std::string class_name;  // "XmPushButton"; shells too, which the module holds as comments
  std::string label;       // its text, or the file of its glyph; empty for none
};

enum class ObjectFate : uint8_t {
  kShown,     // a widget of the module stands for it
  kReplaced,  // other widgets do; `reason` says how
  kLost,      // nothing does; `reason` says why
};

struct PortObject {
  int file = -1;
  int32_t type = 0;                      // a token; TypeName() gives its word
  std::string name;                      // as in the GIL file
  std::string owner;                     // GIL name; empty for none
  int parent = -1;                       // the object that `owner` names
  std::vector<int> children;             // in file order
  std::vector<GilAttribute> attributes;  // in file order

  ObjectFate fate = ObjectFate::kLost;
  std::string reason;               // empty for kShown
  std::vector<PortWidget> widgets;  // first the one that stands for it, then its companions and
                                    // copies: items, label, scrolled window ...

  const GilAttribute* Find(int32_t attribute) const;     // null when it has none
  std::string Text(int32_t attribute) const;             // its first value's text, or ""
  int Number(int32_t attribute, int missing = 0) const;  // its first value, when an integer
  bool Is(int32_t attribute, int32_t token) const;       // whether its first value is the token
};

enum class ConnectionFate : uint8_t {
  kModule,       // the module calls a run-time procedure
  kConnections,  // connections.c does it
  kFunction,     // calls a function of callbacks.c, from the module or from connections.c
  kLost,
};

// A place in the interface that connections.c adds a callback or an event handler to.
struct Source {
  std::string widget;     // by name, in the module as mended
  std::string event;      // a callback ("XmNactivateCallback") or an event of GIL ("Done", "Enter")
  std::string condition;  // "set" or "unset": only when a toggle is so; else empty
};

// One action of a file. The model has each action exactly once.
struct Connection {
  int file = -1;         // whose text holds it; of a project file, the project
  int object = -1;       // whose action it is; -1 for the project's own
  int from_object = -1;  // what the "from" path names, -1 when nothing has that name
  int to_object = -1;
  std::string from_item;  // label of the item that "from" ends with, or ""
  std::string to_item;
  std::vector<std::string> from;  // paths, as in the file
  std::vector<std::string> to;
  std::vector<std::string> when;       // mostly one
  std::string function_type;           // "CallFunction", "user_defined", "ExecuteCode" ...
  std::vector<std::string> arg_types;  // "string", "integer", "void"
  std::string action;                  // name of the function, predefined action, or the code
  std::vector<std::string> arguments;  // further elements of the action

  ConnectionFate fate = ConnectionFate::kLost;
  bool in_module = false;  // whether the module makes the call (kModule, and kFunction mostly)
  std::string function;    // kFunction: name in callbacks.c
  std::string call;        // what is called, as in C: ZoManageCB("(WL)[x]"), quit(); empty if lost
  std::string procedure;   // when no function of the user's is called: what is instead,
  std::string procedure_widget;  // for SetLabel and SetValue the widget that is set,
  std::string argument;          // and the argument or the new text
  std::vector<Source> sources;   // the widgets and events that call it
  std::string reason;            // kLost: why; else a remark, mostly empty

  // Those of a project come behind those of its files.
  bool IsBefore(const Connection& other) const;
  int number = 0;  // its place in the model's list
};

struct GilFile {
  std::string name;  // as given on the command line or in the project
  bool project = false;
  bool read = false;         // false: it could not be opened or parsed
  std::vector<int> objects;  // every object of the file, in file order
};

// A window or dialog: a shell of the program.
struct PortWindow {
  int object = -1;
  bool dialog = false;
  std::string shell;                // name of the shell widget
  std::string owner;                // shell of the window that owns a dialog; empty for none
  std::vector<std::string> work;    // what is fetched into it, in order
  std::vector<bool> work_managed;   // beside `work`: whether it is to be managed after the fetch
  std::vector<std::string> popups;  // popup menus that belong to the window as a whole
  std::string title;
  bool hidden = false;  // not shown at start
  bool iconic = false;
  bool insensitive = false;
  std::vector<std::pair<std::string, std::string>> resources;  // {"width", "300"}, as Xt reads them
};

// A function of callbacks.c.
struct PortFunction {
  std::string name;              // in C
  std::string gil_name;          // as in the file; empty for a piece of code
  std::string code;              // of ExecuteCode; else empty
  std::vector<int> connections;  // that call it
};

// A procedure that the module declares, and the function of the user that it is.
struct PortProcedure {
  std::string module_name;  // in the module as mended
  std::string function;     // in C
};

// A bitmap that the module or the resources name.
struct PortBitmap {
  std::string path;   // relative to the program's folder, no way out of it
  std::string bytes;  // of the file
};

// A button that shows a glyph, which the module does not say.
struct ButtonGlyph {
  std::string widget;
  std::string path;  // of a bitmap of the model
};

struct Model {
  std::string error;           // why there is no interface; empty if all is well
  std::string name;            // of the program: the input's base name made a C word
  std::vector<GilFile> files;  // the input first
  std::vector<PortObject> objects;
  std::vector<Connection> connections;
  std::vector<PortWindow> windows;
  std::vector<PortFunction> functions;
  std::vector<PortProcedure> procedures;
  std::vector<std::string> messages;  // of the converter, line by line
  std::vector<std::string> mends;     // what was mended in the module, line by line
  std::vector<PortBitmap> bitmaps;
  std::vector<ButtonGlyph> button_glyphs;
  std::vector<std::string> missing_bitmaps;  // files that the module names and nobody has
  std::string converted;                     // text of the module as written, and
  std::string module;                        // as mended
};

// "base-window" for BASE_WINDOW; "?" for a number that is no type.
std::string TypeName(int32_t type);

// "in the module", "connections.c", "your function", "lost".
std::string FateName(ConnectionFate fate);
// "shown", "replaced", "lost".
std::string FateName(ObjectFate fate);

// The text of a GIL string as the file means it: without its quotes, escapes resolved. Text that is
// not quoted comes back as it is.
std::string GilText(const char* text);

// The path as one line: main.G / fileMenu / "Load...".
std::string PathText(const std::vector<std::string>& path);

}  // namespace port

#endif
