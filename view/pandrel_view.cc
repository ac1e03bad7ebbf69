// SPDX-License-Identifier: MIT
// pandrel-view: an interface in real windows.
//
//   view_options.h  the command line
//   supervisor.h    the process that the user started; cleans up
//   input.h         the user's file converted, mended and compiled
//   session.h       the process with the windows:
//   shells.h          which windows the module describes
//   view_windows.h    the windows made and filled
//   zo.h, stubs.h     the procedures that the module calls
//   picture.h, listing.h, check.h   what can be had instead of a running interface
#include <iostream>

#include "failure.h"
#include "program_name.h"
#include "supervisor.h"
#include "view_options.h"
#include "view_session.h"

int main(int argc, char** argv) {
  using view::kProgram;
  using view::Options;
  const Options options = view::ParseOptions({argv + 1, argv + argc});
  switch (options.action) {
    case Options::Action::kHelp:
      std::cout << view::HelpText() << std::flush;
      return std::cout ? 0 : view::kFailure;
    case Options::Action::kVersion:
      std::cout << kProgram << " " PANDREL_VERSION "\n" << std::flush;
      return std::cout ? 0 : view::kFailure;
    case Options::Action::kUsageError:
      std::cerr << kProgram << ": " << options.error << "\n"
                << "Try \"" << kProgram << " --help\".\n";
      return view::kUsage;
    case Options::Action::kRun:
      break;
  }
  return view::Supervise(options);
}
