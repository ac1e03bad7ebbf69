// SPDX-License-Identifier: MIT
#include "view_session.h"

#include <Mrm/MrmAppl.h>
#include <Xm/CascadeB.h>
#include <Xm/PushB.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <set>

#include "check.h"
#include "failure.h"
#include "gil_names.h"
#include "held_errors.h"
#include "label_text.h"
#include "listing.h"
#include "load_warnings.h"
#include "missing_parts.h"
#include "picture.h"
#include "places.h"
#include "popup_menus.h"
#include "program_name.h"
#include "screenshots.h"
#include "stubs.h"
#include "uid_names.h"
#include "view_resources.h"
#include "view_windows.h"
#include "widget_tree.h"
#include "zo.h"

namespace view {
namespace {

void ReportWrongArgument(Widget, const char* message) {
  std::cerr << kProgram << ": " << message << "\n";
}

// Lets the module call the procedure of this name; those of the run time are known already.
void Provide(const std::string& name) {
  static std::set<std::string> kept;  // the resource manager keeps pointers to the names
  if (ZoProcedure(name.c_str())) return;
  XtCallbackProc procedure = StubFor(name);
  if (!procedure) {
    std::cerr << kProgram << ": too many procedures; " << name << " will not be announced\n";
    return;
  }
  const std::string& text = *kept.insert(name).first;
  MRMRegisterArg row{const_cast<char*>(text.c_str()), reinterpret_cast<XtPointer>(procedure)};
  MrmRegisterNames(&row, 1);
}

// The windows to make. The procedures that the module calls can be called from here on.
std::vector<Shell> Plans(const Interface& interface, MrmHierarchy hierarchy,
                         const Toolkit& toolkit) {
  if (!interface.has_module) {
    return ShellsOfUid(hierarchy, toolkit, ReadUidNames(interface.uid), Provide);
  }
  for (const uilfix::Item& item : interface.module.items) {
    if (const auto* declaration = std::get_if<uilfix::Declaration>(&item)) {
      Provide(declaration->name);
    }
  }
  return ReadShells(interface.module, interface.left_out);
}

// The dialogs of the popups whose pins are in.
std::vector<std::string> PinnedDialogs(const Interface& interface,
                                       const std::vector<Shell>& plans) {
  std::vector<std::string> dialogs;
  for (const Shell& plan : plans) {
    const std::string object = GuessGilName(interface.gil_names, plan.name);
    const auto& pinned = interface.pinned_popups;
    const bool in = std::find(pinned.begin(), pinned.end(), object) != pinned.end();
    if (plan.dialog && !object.empty() && in) dialogs.push_back(plan.name);
  }
  return dialogs;
}

// What the session and the toolkit's handlers share. There is one session per process.
struct Session {
  Windows windows;
  MrmHierarchy hierarchy = nullptr;  // open to the end
  std::string file;                  // as the user named it
  bool compiled = false;             // the file is a compiled module, which may be damaged
  HeldErrors* held = nullptr;
  std::filesystem::path places;
};
Session session;

// The toolkit calls this when it cannot go on.
__attribute__((noreturn)) void GiveUp(String message) {
  if (session.held && session.compiled) session.held->Discard();
  std::cerr << kProgram << ": " << session.file
            << (session.compiled ? ": damaged: " : ": the toolkit gives up: ") << message
            << std::endl;
  std::exit(kFailure);
}

XtSignalId list_signal = 0;
XtSignalId save_signal = 0;

extern "C" void NoticeListSignal(int) { XtNoticeSignal(list_signal); }
extern "C" void NoticeSaveSignal(int) { XtNoticeSignal(save_signal); }

void ListNow(XtPointer, XtSignalId*) {
  ListShownWidgets(session.windows, std::cout);
  std::cout << std::flush;
}

void SaveAndEnd(XtPointer, XtSignalId*) {
  SavePlaces(session.windows, session.places);
  XtAppSetExitFlag(session.windows.toolkit.app);
}

// Shows what the module shows at the start, or all windows if it shows none, so that the user has
// something to look at and to close.
void ShowAtStart(const Windows& windows, bool all) {
  const auto begin = windows.windows.begin();
  const bool none = std::none_of(begin, windows.windows.end(), IsShownAtStart);
  if (none && !all) {
    std::cerr << kProgram << ": every window starts hidden; all are shown" << std::endl;
  }
  for (const Window& window : windows.windows) {
    if (all || none || IsShownAtStart(window)) ShowWindow(window);
  }
}

void RunInterface(const Options& options) {
  Windows& windows = session.windows;
  EndWithLastWindow(windows);
  list_signal = XtAppAddSignal(windows.toolkit.app, ListNow, nullptr);
  save_signal = XtAppAddSignal(windows.toolkit.app, SaveAndEnd, nullptr);
  std::signal(SIGUSR1, NoticeListSignal);
  std::signal(SIGUSR2, NoticeSaveSignal);
  if (!RestorePlaces(windows, session.places)) ShowAtStart(windows, options.all);
  XtAppMainLoop(windows.toolkit.app);
}

// Does to each window in turn what the options ask for. Returns whether all is well.
bool RunBatch(const Options& options, const Interface& interface, std::vector<Finding> findings) {
  bool well = true;
  bool first = true;
  std::size_t wrong = 0;
  std::error_code error;
  if (!options.picture_folder.empty()) {
    std::filesystem::create_directories(options.picture_folder, error);
  }
  ForEachShownWindow(session.windows, [&](const Window& window) {
    if (options.list) ListWindow(window, std::cout);
    if (options.list || options.check != Options::Check::kNo) {
      const auto more = CheckWindow(window, interface.gil_names);
      findings.insert(findings.end(), more.begin(), more.end());
      wrong += more.size();
    }
    if (options.TakesPictures()) {
      well &= TakePicture(
          window, PictureFile(options.picture, options.picture_folder, window.plan.name, first));
    }
    first = false;
  });
  const bool tabs = options.check == Options::Check::kTabs;
  std::ostream& out = options.check == Options::Check::kNo ? std::cerr : std::cout;
  for (const Finding& finding : findings) {
    // Of missing icons and colours everybody has been told already.
    const bool told = finding.kind == Finding::Kind::kIcon || finding.kind == Finding::Kind::kColor;
    if (tabs || (wrong > 0 && !told)) out << (tabs ? TabLine(finding) : Sentence(finding)) << "\n";
  }
  if (first) Fail(options.file + ": no window to look at");
  return well && !first && wrong == 0;
}

// -geometry is about the first window.
void ApplyGeometry(const Windows& windows) {
  static std::string geometry;  // the toolkit keeps the pointer
  geometry = ProgramResource(windows.toolkit, "geometry");
  if (geometry.empty() || windows.windows.empty()) return;
  XtVaSetValues(windows.windows.front().shell, XmNgeometry, geometry.data(), nullptr);
}

// The first widget of the name in any window; null when there is none.
Widget FindWidget(const std::string& name) {
  if (session.windows.windows.empty()) return nullptr;
  return ZoFind(session.windows.windows.front().shell, name.c_str());
}

// The buttons that should show an icon and whose label is its name. Resources of the user may have
// given a button its icon.
std::vector<MissingPart> FindGlyphButtons(const Interface& interface) {
  std::vector<MissingPart> missing;
  const auto look = [&](Widget widget) {
    if (!XmIsPushButton(widget) && !XmIsCascadeButton(widget)) return;
    unsigned char type = XmSTRING;
    XtVaGetValues(widget, XmNlabelType, &type, nullptr);
    const std::string object = GuessGilName(interface.gil_names, XtName(widget));
    for (const GlyphButton& button : interface.glyph_buttons) {
      if (type != XmSTRING || button.name != object || LabelString(widget) != button.icon) continue;
      missing.push_back({MissingPart::Kind::kIcon, XtName(widget), button.icon});
      return;
    }
  };
  for (const Window& window : session.windows.windows) WalkWidgets(window.shell, look);
  return missing;
}

// Reports what is missing and draws boxes for icons. Returns the same as findings.
std::vector<Finding> TellMissingParts(const std::vector<MissingPart>& parts,
                                      const Interface& interface) {
  std::vector<Finding> findings;
  for (const MissingPart& part : parts) {
    Finding finding;
    const bool icon = part.kind == MissingPart::Kind::kIcon;
    finding.kind = icon ? Finding::Kind::kIcon : Finding::Kind::kColor;
    finding.widget = part.widget;
    finding.object = GuessGilName(interface.gil_names, part.widget);
    finding.other = part.name;
    std::cerr << kProgram << ": " << Sentence(finding) << "\n";
    if (Widget widget = icon ? FindWidget(part.widget) : nullptr) {
      DrawIconName(widget, std::filesystem::path(part.name).stem().string());
    }
    findings.push_back(std::move(finding));
  }
  return findings;
}

// The text with "?" for the bytes of a damaged file that a terminal might take for commands.
std::string Printable(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](unsigned char byte) { return byte < ' ' || byte > '~'; }, '?');
  return text;
}

// Reports the toolkit's warnings from reading the module. For a compiled module without its source,
// nothing else is known about icons and colours. Returns whether the module is undamaged.
bool TellWarnings(const LoadWarnings& warnings, const Interface& interface) {
  if (session.compiled && !warnings.damage.empty()) {
    std::cerr << kProgram << ": " << session.file << ": damaged; what can be read of it is shown ("
              << Printable(warnings.damage.front()) << ")\n";
    return false;
  }
  if (!interface.has_module) {
    for (const std::string& icon : warnings.icons) {
      std::cerr << kProgram << ": icon \"" << Printable(icon) << "\" cannot be shown\n";
    }
    for (const std::string& color : warnings.colors) {
      std::cerr << kProgram << ": colour \"" << Printable(color) << "\" is not known\n";
    }
  }
  for (const std::string& warning : warnings.damage) std::cerr << "Warning: " << warning << "\n";
  for (const std::string& warning : warnings.others) std::cerr << "Warning: " << warning << "\n";
  return true;
}

bool OpenToolkit(const Options& options, const SessionLinks& links, Toolkit& toolkit) {
  toolkit = StartToolkit(options.toolkit_options);
  if (!toolkit.display) {
    Fail("cannot open display \"" + toolkit.display_name + "\"");
    return false;
  }
  toolkit.alone = links.private_server;
  XtAppSetErrorHandler(toolkit.app, GiveUp);
  if (options.compact) AddCompactResources(toolkit);
  for (const std::string& file : options.resource_files) {
    if (AddResourceFile(toolkit, file)) continue;
    Fail(file + ": cannot be read");
    return false;
  }
  if (options.TakesPictures()) KeepPicturesApart(toolkit.display);
  return true;
}

}  // namespace

int RunSession(const Options& options, const Interface& interface, const SessionLinks& links) {
  HeldErrors held;
  session.file = options.file;
  session.held = &held;
  session.compiled = interface.compiled;
  session.places = links.places;
  MrmInitialize();
  ZoRegister();
  ZoSetReport(ReportWrongArgument);
  Toolkit& toolkit = session.windows.toolkit;
  if (!OpenToolkit(options, links, toolkit)) return kFailure;

  std::string uid = interface.uid.string();
  char* files[] = {uid.data()};
  MrmHierarchy& hierarchy = session.hierarchy;
  bool ok = interface.left_out.empty();
  std::vector<MissingPart> missing;
  {
    const WarningCollector collector(toolkit.app);
    if (MrmOpenHierarchyPerDisplay(toolkit.display, 1, files, nullptr, &hierarchy) != MrmSUCCESS) {
      held.Discard();
      return Fail(options.file + ": not a compiled UIL module");
    }
    auto plans = Plans(interface, hierarchy, toolkit);
    if (plans.empty()) return Fail(options.file + ": no window to show");
    if (interface.has_module) missing = FindMissingParts(interface.module, toolkit.display);
    KeepDialogsOpen(toolkit, PinnedDialogs(interface, plans));
    const bool all = MakeWindows(session.windows, hierarchy, std::move(plans));
    const LoadWarnings warnings = SortWarnings(collector.Warnings());
    if (session.compiled && !warnings.damage.empty()) held.Discard();
    ok = TellWarnings(warnings, interface) && all && ok;
  }
  const auto buttons = FindGlyphButtons(interface);
  missing.insert(missing.end(), buttons.begin(), buttons.end());
  const std::vector<Finding> findings = TellMissingParts(missing, interface);
  PostPopupMenus(session.windows);
  ApplyGeometry(session.windows);
  held.Release();
  // The supervisor may be gone; nobody else listens.
  if (links.ready >= 0 && write(links.ready, "r", 1) < 0) return kFailure;

  if (options.IsBatch()) {
    ok &= RunBatch(options, interface, findings);
  } else {
    RunInterface(options);
  }
  std::cout << std::flush;
  return ok && XErrorCount() == 0 && std::cout ? 0 : kFailure;
}

}  // namespace view
