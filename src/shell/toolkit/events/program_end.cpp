// SPDX-License-Identifier: MIT
#include "shell/toolkit/events/program_end.h"

#include <QCoreApplication>
#include <QThread>

namespace toolkit {

namespace {

bool ended = false;

}  // namespace

void End() {
  ended = true;
  // Without a loop to leave, the host would leave the next one at once.
  if (QThread::currentThread()->loopLevel() > 0) QCoreApplication::exit(0);
  throw ProgramEnd{};
}

bool Ended() { return ended; }

void Restart() { ended = false; }

void DoEvents() {
  QCoreApplication::processEvents();
  if (ended) throw ProgramEnd{};
}

}  // namespace toolkit
