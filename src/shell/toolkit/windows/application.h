// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "shell/toolkit/desktop/program_folders.h"

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

/// Shows all windows in black and white instead of grays.
void HighContrast(bool high);

/// A plain message box with an OK button; returns when it is closed.
void MsgBox(const std::string& text);

/// Starts a program from a command line, without waiting and without a shell in between. Error 53
/// if it cannot be started.
void Shell(const std::string& command_line);

/// Starts a program that lies beside this one with a file, by its path of the host. Errors as for
/// Shell.
void StartBeside(const std::string& program, const std::string& file);

/// The handle of the control that has the keyboard focus, 0 if none has.
int GetFocus();

struct App {
  /// Folder of the program, with no final "\" unless it is a drive's root; the user's data folder
  /// if the program is installed, or its own folder cannot be written.
  static std::string Path() { return Folders().own; }
  static const ProgramFolders& Folders();
  /// Lets other folders stand for them.
  static void Folders(const ProgramFolders& folders);
};

}  // namespace toolkit
