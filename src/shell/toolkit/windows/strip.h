// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace toolkit {

class Form;
class StripWidget;

/// A row of the strip's menu; one without a text is a dividing line.
struct MenuRow {
  std::string text;  ///< An "&" marks the letter that picks the row in the open menu.
  /// As in Form::Shortcut, divided by ";"; the menu shows the first. A key that is pressed with no
  /// other goes to the control with the focus while the row cannot run.
  std::string keys = {};
  /// Asked when the menu opens and before the action runs. A row without it can always run.
  std::function<bool()> enabled = {};
  std::function<void()> action = {};
  /// A row that has it shows a mark while it is true.
  std::function<bool()> checked = {};
  std::string submenu = {};  ///< All rows of one name stand in a menu that opens from the menu.
};

/// One line under the area of a form, in its window: a button with a menu, what happened, and at
/// the right end a short status and the zoom. It is no control: the Tab key never stops there, and
/// no size of the form counts it. Its texts are in the host's own encoding.
class Strip {
 public:
  static constexpr int height = 22;  ///< Pixels of the design.

  explicit Strip(Form& form);
  Strip(const Strip&) = delete;
  Strip& operator=(const Strip&) = delete;
  ~Strip();

  /// Gives the button, which F10 presses as well, its caption and its menu, in the place of the one
  /// before. The keys of the rows run them wherever in the form the focus is.
  void Menu(const std::string& caption, const std::vector<MenuRow>& rows);
  /// The same for a button at the right end, which is not there without this.
  void ZoomMenu(const std::string& caption, const std::vector<MenuRow>& rows);
  /// Shown as far as there is room, and wholly in its tool tip.
  void Text(const std::string& text);
  void Status(const std::string& text);

  /// Stands at the bottom of the form's window, so many pixels of the host high.
  void Place(int pixels);

 private:
  std::unique_ptr<StripWidget> widget_;
  std::string text_;
  std::string status_;
};

}  // namespace toolkit
