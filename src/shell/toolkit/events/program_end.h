// SPDX-License-Identifier: MIT
#pragma once

namespace toolkit {

/// Thrown by End. Only the layer catches it.
struct ProgramEnd {};

/// Ends the program at once: no further event is raised, and the call does not return.
[[noreturn]] void End();

/// Whether End has been called.
bool Ended();

/// Lets a program start anew in the same process.
void Restart();

/// Lets pending events of the program run, then returns. Ends the procedure that called it if one
/// of them ended the program.
void DoEvents();

}  // namespace toolkit
