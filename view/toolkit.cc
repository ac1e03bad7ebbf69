// SPDX-License-Identifier: MIT
#include "toolkit.h"

#include <X11/Xresource.h>

#include <iostream>
#include <thread>

#include "program_name.h"

namespace view {
namespace {

constexpr char kClass[] = "PandrelView";

// How long a window manager may take to answer.
constexpr std::chrono::milliseconds kQuiet{80};

int x_errors = 0;

int ReportXError(Display* display, XErrorEvent* event) {
  char text[200];
  XGetErrorText(display, event->error_code, text, sizeof text);
  std::cerr << kProgram << ": X error: " << text << " (request " << int{event->request_code}
            << ")\n";
  ++x_errors;
  return 0;
}

// The value that follows `option`, or "".
std::string ValueOf(const std::vector<std::string>& options, const std::string& option) {
  for (std::size_t i = 0; i + 1 < options.size(); ++i) {
    if (options[i] == option) return options[i + 1];
  }
  return "";
}

}  // namespace

Toolkit StartToolkit(const std::vector<std::string>& toolkit_options) {
  Toolkit toolkit;
  XtToolkitInitialize();
  toolkit.app = XtCreateApplicationContext();
  XSetErrorHandler(ReportXError);

  // The toolkit takes options out of the list and keeps pointers into it.
  static std::vector<std::string> texts;
  texts = toolkit_options;
  texts.insert(texts.begin(), kProgram);
  static std::vector<char*> arguments;
  arguments.clear();
  for (std::string& text : texts) arguments.push_back(text.data());
  arguments.push_back(nullptr);
  int count = static_cast<int>(texts.size());

  const std::string name = ValueOf(toolkit_options, "-display");
  toolkit.display_name = XDisplayName(name.empty() ? nullptr : name.c_str());
  toolkit.display = XtOpenDisplay(toolkit.app, name.empty() ? nullptr : name.c_str(), kProgram,
                                  kClass, nullptr, 0, &count, arguments.data());
  return toolkit;
}

int XErrorCount() { return x_errors; }

void Settle(const Toolkit& toolkit) {
  using Clock = std::chrono::steady_clock;
  const auto quiet = toolkit.alone ? std::chrono::milliseconds(0) : kQuiet;
  const auto end = Clock::now() + std::chrono::seconds(2);
  auto last = Clock::now();
  bool any = true;
  // A server without other clients has sent all events when it answers.
  while (Clock::now() < end && (any || Clock::now() - last < quiet)) {
    XSync(toolkit.display, False);
    any = false;
    while (const XtInputMask mask = XtAppPending(toolkit.app)) {
      // A blinking text cursor fires its timer for ever; only events count as something new.
      any = any || (mask & XtIMXEvent) != 0;
      XtAppProcessEvent(toolkit.app, mask);
      if (Clock::now() > end) return;
    }
    if (any) last = Clock::now();
    if (!toolkit.alone) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

std::string ProgramResource(const Toolkit& toolkit, const std::string& name) {
  const std::string full = std::string(kProgram) + "." + name;
  std::string class_name = std::string(kClass) + "." + name;
  class_name[sizeof kClass] = static_cast<char>(class_name[sizeof kClass] - 'a' + 'A');
  char* type = nullptr;
  XrmValue value{};
  if (!XrmGetResource(XtDatabase(toolkit.display), full.c_str(), class_name.c_str(), &type,
                      &value)) {
    return "";
  }
  return value.addr;
}

}  // namespace view
