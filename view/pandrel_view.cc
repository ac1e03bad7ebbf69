// SPDX-License-Identifier: MIT
// pandrel-view: an interface in real windows.
//
//   input.h        the user's file converted, mended and compiled
//   shells.h       which windows the module describes
//   windows.h      the windows made and filled
//   zo.h, stubs.h  the procedures that the module calls
//   screenshots.h, listing.h   what can be had instead of a running interface
#include <Mrm/MrmAppl.h>

#include <csignal>
#include <filesystem>
#include <iostream>
#include <set>

#include "input.h"
#include "listing.h"
#include "view_options.h"
#include "popup_menus.h"
#include "screenshots.h"
#include "stubs.h"
#include "uid_names.h"
#include "view_windows.h"
#include "zo.h"

namespace {

using view::Options;

constexpr char kProgram[] = "pandrel-view";
constexpr int kFailure = 1;
constexpr int kUsage = 2;

int Fail(const std::string& message) {
  std::cerr << kProgram << ": " << message;
  return kFailure;
}

void ReportWrongArgument(Widget, const char* message) {
  std::cerr << kProgram << ": " << message << "\n";
}

// Lets the module call the procedure of this name; those of the run time are known already.
void Provide(const std::string& name) {
  static std::set<std::string> kept;  // the resource manager keeps pointers to the names
  if (ZoProcedure(name.c_str())) return;
  XtCallbackProc procedure = view::StubFor(name);
  if (!procedure) {
    std::cerr << kProgram << ": too many procedures; " << name << " will not be announced\n";
    return;
  }
  const std::string& text = *kept.insert(name).first;
  MRMRegisterArg row{const_cast<char*>(text.c_str()), reinterpret_cast<XtPointer>(procedure)};
  MrmRegisterNames(&row, 1);
}

// The windows to make. The procedures that the module calls can be called from here on.
std::vector<view::Shell> Plans(const view::Interface& interface, MrmHierarchy hierarchy,
                               const view::Toolkit& toolkit) {
  if (!interface.has_module) {
    return view::ShellsOfUid(hierarchy, toolkit, view::ReadUidNames(interface.uid), Provide);
  }
  for (const uilfix::Item& item : interface.module.items) {
    if (const auto* declaration = std::get_if<uilfix::Declaration>(&item)) {
      Provide(declaration->name);
    }
  }
  return view::ReadShells(interface.module);
}

XtSignalId list_signal = 0;

extern "C" void NoticeListSignal(int) { XtNoticeSignal(list_signal); }

void ListNow(XtPointer closure, XtSignalId*) {
  view::ListShownWidgets(*static_cast<view::Windows*>(closure), std::cout);
  std::cout << std::flush;
}

// Runs the interface until its last window is closed. SIGUSR1 prints the widgets on the screen.
void RunInterface(view::Windows& windows) {
  view::ShowInitialWindows(windows);
  list_signal = XtAppAddSignal(windows.toolkit.app, ListNow, &windows);
  std::signal(SIGUSR1, NoticeListSignal);
  XtAppMainLoop(windows.toolkit.app);
}

// -geometry is about the first window.
void ApplyGeometry(const view::Toolkit& toolkit, const view::Windows& windows) {
  std::string geometry = view::ProgramResource(toolkit, "geometry");
  if (geometry.empty() || windows.windows.empty()) return;
  XtVaSetValues(windows.windows.front().shell, XmNgeometry, geometry.data(), nullptr);
}

int ShowInterface(const Options& options, const view::Interface& interface) {
  MrmInitialize();
  ZoRegister();
  ZoSetReport(ReportWrongArgument);
  const view::Toolkit toolkit = view::StartToolkit(options.toolkit_options);
  if (!toolkit.display) return Fail("cannot open display \"" + toolkit.display_name + "\"\n");

  std::string uid = interface.uid.string();
  char* files[] = {uid.data()};
  MrmHierarchy hierarchy = nullptr;
  if (MrmOpenHierarchyPerDisplay(toolkit.display, 1, files, nullptr, &hierarchy) != MrmSUCCESS) {
    return Fail(options.file + ": not a compiled UIL module\n");
  }

  static view::Windows windows;
  windows.toolkit = toolkit;
  const auto plans = Plans(interface, hierarchy, toolkit);
  if (plans.empty()) return Fail(options.file + ": no window to show\n");
  bool ok = view::MakeWindows(windows, hierarchy, plans);
  view::PostPopupMenus(windows);
  ApplyGeometry(toolkit, windows);

  if (options.action == Options::Action::kList) {
    view::ListWidgets(windows, std::cout);
  } else if (options.action == Options::Action::kScreenshots) {
    ok &= view::WriteScreenshots(windows, options.picture, options.picture_folder);
  } else {
    RunInterface(windows);
  }
  std::cout << std::flush;
  return ok && view::XErrorCount() == 0 && std::cout ? 0 : kFailure;
}

}  // namespace

int main(int argc, char** argv) {
  Options options = view::ParseOptions({argv + 1, argv + argc});
  switch (options.action) {
    case Options::Action::kHelp:
      std::cout << view::HelpText() << std::flush;
      return std::cout ? 0 : kFailure;
    case Options::Action::kVersion:
      std::cout << kProgram << " " PANDREL_VERSION "\n" << std::flush;
      return std::cout ? 0 : kFailure;
    case Options::Action::kUsageError:
      std::cerr << kProgram << ": " << options.error << "\n"
                << "Try \"" << kProgram << " --help\".\n";
      return kUsage;
    default:
      break;
  }
  const view::ScratchFolder scratch;
  const view::Interface interface = view::PrepareInterface(options, scratch);
  if (!interface.error.empty()) return Fail(interface.error);

  // Bitmaps are named relative to the folder of the interface; pictures relative to the user's.
  std::error_code error;
  if (!options.picture.empty()) options.picture = std::filesystem::absolute(options.picture);
  if (!options.picture_folder.empty()) {
    options.picture_folder = std::filesystem::absolute(options.picture_folder);
  }
  std::filesystem::current_path(interface.folder, error);
  return ShowInterface(options, interface);
}
