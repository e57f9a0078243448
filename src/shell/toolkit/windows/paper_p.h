// SPDX-License-Identifier: MIT
#pragma once

#include "shell/toolkit/windows/paper.h"

class QWidget;

// What the library for printing offers the program.

/// Shows the preview above a window, and prints.
extern "C" void KalvonPrint(QWidget* parent, const std::string& title,
                            const toolkit::PagesFor& pages);
