// SPDX-License-Identifier: MIT
// Pictures and measurements of the converted windows, by pandrel-view.
#ifndef PANDREL_PORT_PICTURES_H
#define PANDREL_PORT_PICTURES_H

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "port/layout_faults.h"
#include "port/model.h"

namespace port {

struct Pictures {
  std::map<int, std::filesystem::path> files;  // PNG, by the object of the model
  std::string missing;                         // why there are none; empty when there are
  std::vector<LayoutFault> faults;
  bool checked = false;
  std::vector<std::string> missing_colors;
};

// Shows the program's module, which is in `folder` with its bitmaps and resources, and writes the
// pictures to `pictures`. `display` may be empty: the viewer then has a server of its own.
Pictures TakePictures(const Model& model, const std::filesystem::path& folder,
                      const std::filesystem::path& pictures, const std::string& display);

// The program of that name: beside this one, where it was built, or on PATH; empty for none.
std::filesystem::path FindProgram(const std::string& name);

// An X server for a whole run, without a screen; ends with this.
class Server {
 public:
  Server() = default;
  ~Server();
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;

  // Starts it. Returns its display, ":42"; empty when there is no Xvfb or it does not start.
  std::string Start();

 private:
  int pid_ = -1;
};

}  // namespace port

#endif
