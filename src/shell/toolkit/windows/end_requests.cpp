// SPDX-License-Identifier: MIT
#include "shell/toolkit/windows/end_requests_p.h"

#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <cerrno>
#include <csignal>

#include "shell/toolkit/windows/form.h"

namespace toolkit {

namespace {

constexpr int end_signals[] = {SIGTERM, SIGINT, SIGHUP};

// A signal handler may do little more than write into a pipe; the event loop reads it.
int signal_pipe[2] = {-1, -1};

void TellEventLoop(int /*signal*/) {
  const int interrupted = errno;
  const char told = 1;
  [[maybe_unused]] const auto written = write(signal_pipe[1], &told, sizeof told);
  errno = interrupted;
}

void SetHandler(int signal, void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  sigaction(signal, &action, nullptr);
}

void EndStartForm() { Form::EndStartForm(); }

}  // namespace

EndRequests::EndRequests() {
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, qApp, EndStartForm);
  if (pipe2(signal_pipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
  notifier_ = std::make_unique<QSocketNotifier>(signal_pipe[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, qApp, EndStartForm);
  for (const int signal : end_signals) SetHandler(signal, TellEventLoop);
}

EndRequests::~EndRequests() {
  for (const int signal : end_signals) SetHandler(signal, SIG_DFL);
  notifier_.reset();
  for (int& end : signal_pipe) {
    if (end >= 0) close(end);
    end = -1;
  }
}

}  // namespace toolkit
