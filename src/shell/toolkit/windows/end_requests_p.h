// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>
#include <memory>

namespace toolkit {

/// While it lives, a request of the desktop or the host to end the program (the end of the session,
/// SIGTERM, SIGINT, SIGHUP) closes the start form, as its close box does.
class EndRequests {
 public:
  EndRequests();
  ~EndRequests();
  EndRequests(const EndRequests&) = delete;
  EndRequests& operator=(const EndRequests&) = delete;

 private:
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace toolkit
