// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace toolkit {

/// Where the things of the program lie. Folders are paths of the logic, with no final "\" unless it
/// is a drive's root.
struct ProgramFolders {
  std::string own = {};      ///< Its settings, and the media of the moment.
  std::string shipped = {};  ///< Its manual and, if it is installed, its samples.
  /// Of the user, or the samples if he has no folder; empty if the program is not installed.
  std::string crosswords = {};
  int error = 0;  ///< The run-time error for which nothing in `own` is kept, or 0.
};

/// The folders of a program that lies in this folder of the host; those of the user are made if
/// they are missing. One that lies in "bin" beside "share/kalvon" is installed: its settings go to
/// the user's folder for data, as do those of any other whose folder cannot be written. Where the
/// user has no such folder, or its disk is full, one that ends with the program takes its place.
ProgramFolders FindProgramFolders(const std::string& program);

/// The user's folder for crosswords, made if it is missing; a path of the logic. Empty if he has
/// none.
std::string CrosswordFolder();

}  // namespace toolkit
