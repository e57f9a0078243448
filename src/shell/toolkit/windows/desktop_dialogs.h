// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace toolkit {

// The desktop's own dialogs. Texts are UTF-8, paths are those of the host. Each returns when it is
// closed.

/// A kind of files by the endings of their names: {"Ukrštenice", {"qvm", "puz"}}.
struct FileKind {
  std::string name;
  std::vector<std::string> endings;
};

struct FileChoice {
  std::string title;
  std::string path;  ///< The folder or the file with which the choice begins.
  std::vector<FileKind> kinds;
};

/// A file that exists; empty if none is chosen.
std::string FileToOpen(const FileChoice& choice);

/// A file to be written, with an ending of the chosen kind. The user has been asked if it exists.
/// Empty if none is chosen.
std::string FileToWrite(const FileChoice& choice);

/// Shows lines that are too many for the strip.
void ShowLines(const std::string& title, const std::vector<std::string>& lines);

/// What the user reads while something takes long.
struct Patience {
  std::string text;
  std::string stop;  ///< On the button that stops it.
};

/// Does a work beside the window, which goes on living, and shows a progress after half a second.
/// Whether it came to its end; else the user has stopped it, it goes on for nobody, and what it
/// uses has to live as long as it does. What it throws is thrown here.
bool WorkAside(const Patience& patience, const std::function<void()>& work);

}  // namespace toolkit
