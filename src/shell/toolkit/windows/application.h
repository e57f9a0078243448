// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

class QApplication;

namespace toolkit {

/// The host's application, with the look of the period. One lives as long as the program.
class Application {
 public:
  Application(int& argc, char** argv);
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  /// Runs the event loop until the program ends; returns the exit status.
  int Run();

 private:
  std::unique_ptr<QApplication> application_;
};

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

/// A plain message box with an OK button; returns when it is closed.
void MsgBox(const std::string& text);

/// Starts a program from a command line, without waiting and without a shell in between. Error 53
/// if it cannot be started.
void Shell(const std::string& command_line);

/// The handle of the control that has the keyboard focus, 0 if none has.
int GetFocus();

struct App {
  /// Folder of the program, with no final "\" unless it is a drive's root; the user's data folder
  /// if the program's own cannot be written.
  static std::string Path();
  /// Lets another folder stand for it.
  static void Path(const std::string& path);
};

struct Screen {
  // Size in twips.
  static int Width();
  static int Height();
  /// 0 default, 11 hourglass.
  static int MousePointer();
  static void MousePointer(int pointer);
};

}  // namespace toolkit
