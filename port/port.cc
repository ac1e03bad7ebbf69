// SPDX-License-Identifier: MIT
#include "port/port.h"

#include <algorithm>
#include <stdexcept>

#include "port/conversion.h"
#include "port/escape.h"
#include "port/folder.h"
#include "port/generate.h"
#include "port/pictures.h"
#include "port/templates.h"
#include "uilfix/module_files.h"

namespace port {
namespace {

namespace fs = std::filesystem;

// Files that every program takes along as they are.
constexpr const char* kPlainFiles[] = {"zo.c", "zo.h", "letters.c", "letters.h"};

PortResult Failure(PortStatus status, const std::string& error) {
  PortResult result;
  result.status = status;
  result.error = error;
  return result;
}

// callbacks.c and its header, which knows the functions of earlier runs as well.
void AddCallbacks(const Model& model, const Templates& templates, Folder& folder,
                  std::vector<std::string>& notes) {
  const bool had_file = !folder.Existing("callbacks.c").empty();
  std::vector<std::string> added;
  folder.AddUsers("callbacks.c",
                  CallbacksFile(model, folder.Existing("callbacks.c"), templates, &added));
  std::set<std::string> functions = folder.Former().functions;
  std::vector<std::string> former;
  for (const std::string& name : functions) {
    const bool used =
        std::any_of(model.functions.begin(), model.functions.end(),
                    [&](const PortFunction& function) { return function.name == name; });
    if (used) continue;
    former.push_back(name);
    notes.push_back("callbacks.c: nothing calls " + name + " any more");
  }
  for (const PortFunction& function : model.functions) functions.insert(function.name);
  if (had_file) {
    for (const std::string& name : added) notes.push_back("callbacks.c: added " + name);
  }
  folder.Add("callbacks.h", CallbacksHeader(model, former, templates));
  folder.SetFunctions(std::move(functions));
}

// A copy of what the viewer needs, in a folder of the run's own.
void LayOut(const Model& model, const Templates& templates, const fs::path& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  const auto write = [&](const std::string& path, const std::string& bytes) {
    fs::create_directories((folder / path).parent_path(), error);
    if (std::FILE* file = std::fopen((folder / path).c_str(), "w")) {
      std::fwrite(bytes.data(), 1, bytes.size(), file);
      std::fclose(file);
    }
  };
  write(model.name + ".uil", model.module);
  write(ClassName(model) + ".ad", ResourceFile(model, templates));
  for (const PortBitmap& bitmap : model.bitmaps) write(bitmap.path, bitmap.bytes);
}

void AddReport(const Job& job, const Model& model, const Templates& templates, Folder& folder,
               PortResult& result) {
  ReportInput report;
  report.model = &model;
  report.sketches =
      DrawSketches(model, {folder.Scratch() / "files", folder.Scratch() / "files" / "bitmaps"});
  report.version = PANDREL_VERSION;
  report.page_template = templates.Plain("report.html.mustache");
  if (job.pictures) {
    LayOut(model, templates, folder.Scratch() / "show");
    Pictures pictures =
        TakePictures(model, folder.Scratch() / "show", folder.Scratch() / "pictures", job.display);
    report.pictures = std::move(pictures.files);
    report.no_pictures = pictures.missing;
    report.faults = std::move(pictures.faults);
    report.checked = pictures.checked;
    report.missing_colors = std::move(pictures.missing_colors);
    if (!pictures.missing.empty()) {
      result.notes.push_back("report.html has no pictures: " + pictures.missing);
    }
  } else {
    report.no_pictures = "they were not asked for";
  }
  folder.Add("report.html", MakeReport(report));
  result.table = ReportText(report);
  result.totals = CountAll(report);
  if (!report.sketches.empty()) result.sketch = report.sketches[0].svg;
  for (const PortWindow& window : model.windows) {
    const auto picture = report.pictures.find(window.object);
    if (picture == report.pictures.end()) continue;
    result.picture = uilfix::ReadFile(picture->second.string()).value_or("");
    break;
  }
}

void AddAll(const Job& job, const Model& model, const Templates& templates, Folder& folder,
            PortResult& result) {
  folder.Add(model.name + ".uil", model.module);
  for (const PortBitmap& bitmap : model.bitmaps) folder.Add(bitmap.path, bitmap.bytes);
  folder.Add("main.c", MainFile(model, templates));
  folder.Add("connections.c", ConnectionsFile(model, templates));
  folder.Add("connections.h", templates.Fill("connections.h", Data(), CText));
  folder.Add(ClassName(model) + ".ad", ResourceFile(model, templates));
  folder.Add("Makefile", MakefileText(model, templates));
  folder.Add("README", ReadmeText(model, templates));
  for (const char* file : kPlainFiles) folder.Add(file, templates.Plain(file));
  AddCallbacks(model, templates, folder, result.notes);
  AddReport(job, model, templates, folder, result);
}

std::string MessagesOf(const Model& model) {
  std::string text;
  for (const std::string& message : model.messages) text += "\n  " + OneLine(message);
  return text;
}

}  // namespace

PortResult PortInterface(const Job& job) {
  std::error_code error;
  if (!fs::is_regular_file(job.input, error)) {
    const char* reason =
        fs::is_directory(job.input, error) ? ": a folder needs -r" : ": no such file";
    return Failure(PortStatus::kFailed, job.input.string() + reason);
  }
  if (!job.templates.empty() && !fs::is_directory(job.templates, error)) {
    return Failure(PortStatus::kUsage, job.templates.string() + ": no such folder of templates");
  }
  Folder folder(job.output);
  if (!folder.Error().empty()) return Failure(PortStatus::kUsage, folder.Error());
  const Model model = ConvertInterface({job.input, job.options, folder.Scratch()});
  if (!model.error.empty()) {
    return Failure(PortStatus::kFailed, job.input.string() + " " + model.error + MessagesOf(model));
  }
  PortResult result;
  try {
    AddAll(job, model, Templates(job.templates), folder, result);
  } catch (const TemplateError& failure) {
    return Failure(PortStatus::kFailed, failure.text);
  } catch (const std::runtime_error& failure) {
    return Failure(PortStatus::kFailed, failure.what());
  }
  for (const std::string& note : folder.Finish()) result.notes.push_back(note);
  if (!folder.Error().empty()) return Failure(PortStatus::kFailed, folder.Error());
  for (const GilFile& file : model.files) {
    if (file.read) continue;
    result.status = PortStatus::kFailed;
    result.notes.push_back(file.name + " could not be read");
  }
  return result;
}

}  // namespace port
