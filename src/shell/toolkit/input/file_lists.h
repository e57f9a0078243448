// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "shell/toolkit/controls/control.h"

namespace toolkit {

/// A drop-down list of the drives that there are when it drops down.
class DriveList : public Control {
 public:
  DriveList(Container& parent, const ControlSheet& sheet);

  /// The drive shown, as the path of its root, "c:\".
  [[nodiscard]] const std::string& Drive() const { return drive_; }
  /// Takes a string that begins with the drive's letter and ":". Error 68 if there is no such
  /// drive, or its medium is gone.
  void Drive(const std::string& drive);

  /// Also raised when the user chooses the drive that is shown, to get back to it.
  Event<> Change;

 private:
  class View;
  void Fill();
  void Choose(int row);

  std::string drive_ = "c:\\";
  std::vector<char> letters_;  ///< By rows.
};

/// A tree of folders: the ancestors of the folder shown, itself, and the folders in it. A double
/// click or the Enter key opens a row.
class FolderList : public Control {
 public:
  FolderList(Container& parent, const ControlSheet& sheet);

  /// The folder shown, as its name is on the disk, with no final "\" unless it is a drive's root.
  [[nodiscard]] const std::string& Path() const { return path_; }
  /// Error 76 if there is no such folder or it cannot be read; the list stays as it was.
  void Path(const std::string& path);

  /// Also raised when the user opens the folder that is shown, to see what is new in it.
  Event<> Change;

 private:
  class View;
  /// Reads a folder and shows it; whether it is another one than before.
  bool ShowFolder(const std::string& path);
  void AddRow(const std::string& path, const std::string& name, bool open);
  void OpenRow(int row);

  std::string path_;
  std::vector<std::string> row_paths_;
};

/// A list of the files of a folder, without their folder, sorted without regard to case. Showing
/// another folder or other files leaves no row selected.
class FileList : public Control {
 public:
  FileList(Container& parent, const ControlSheet& sheet);

  /// Reads the folder anew. Error 76 if it cannot be read; the list stays as it was.
  void Path(const std::string& path);
  /// A filter like "*.qvm", matched without regard to case: "*" stands for any characters, "?" for
  /// one, and ";" divides several filters. "*.*" lets every file through.
  void Pattern(const std::string& pattern);

  [[nodiscard]] int ListCount() const { return static_cast<int>(names_.size()); }
  /// The selected row, counted from 0, or -1.
  [[nodiscard]] int ListIndex() const;
  /// Selects a row, or none for -1, and raises Click, also if the row is selected already. Error
  /// 380 for a row that does not exist.
  void ListIndex(int row);
  /// The text of a row; empty for a row that does not exist.
  [[nodiscard]] std::string List(int row) const;

  /// Raised for a row that the user selects by mouse or key, also for the one selected already if
  /// he clicks it.
  Event<> Click;
  /// Raised for the second click of two on a row; Click has been raised for the first.
  Event<> DblClick;
  /// Code of the character, by reference; set to 0 it drops the character.
  Event<int&> KeyPress;

 private:
  class View;
  [[nodiscard]] View& view() const;
  void Fill();

  std::string pattern_ = "*.*";
  std::vector<std::string> all_names_;
  std::vector<std::string> names_;
};

}  // namespace toolkit
