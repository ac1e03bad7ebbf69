// SPDX-License-Identifier: MIT
// An X server of this program's own, without a screen, for pictures and measurements: it has no
// windows of other programs, and its size and fonts do not depend on the user's display.
#ifndef PANDREL_VIEW_PRIVATE_SERVER_H
#define PANDREL_VIEW_PRIVATE_SERVER_H

#include <sys/types.h>

#include <filesystem>
#include <string>

namespace view {

class PrivateServer {
 public:
  PrivateServer() = default;
  ~PrivateServer();
  PrivateServer(const PrivateServer&) = delete;
  PrivateServer& operator=(const PrivateServer&) = delete;

  // Starts an Xvfb that accepts only clients with the secret in a file of the folder `scratch`.
  // Returns an error message, or the empty text.
  std::string Start(const std::filesystem::path& scratch);

  // For the environment of its clients: DISPLAY and XAUTHORITY.
  const std::string& Display() const { return display_; }
  const std::string& Authority() const { return authority_; }

 private:
  pid_t process_ = -1;
  std::string display_;
  std::string authority_;
};

}  // namespace view

#endif
