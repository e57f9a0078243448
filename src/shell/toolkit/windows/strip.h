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
  std::string text;       ///< An "&" marks the letter that picks the row in the open menu.
  std::string keys = {};  ///< As in Form::Shortcut, divided by ";"; the menu shows the first.
  /// Asked when the menu opens and before the action runs. A row without it can always run.
  std::function<bool()> enabled = {};
  std::function<void()> action = {};
  /// A row that has it shows a mark while it is true.
  std::function<bool()> checked = {};
};

/// One line under the area of a form, in its window: a button with a menu, what happened, and at
/// the right end a short status. It is no control: the Tab key never stops there, and no size of
/// the form counts it. Its texts are in the host's own encoding.
class Strip {
 public:
  static constexpr int height = 22;  ///< Pixels.

  explicit Strip(Form& form);
  Strip(const Strip&) = delete;
  Strip& operator=(const Strip&) = delete;
  ~Strip();

  /// Gives the button, which F10 presses as well, its caption and its menu, in the place of the one
  /// before. The keys of the rows run them wherever in the form the focus is.
  void Menu(const std::string& caption, std::vector<MenuRow> rows);
  /// Shown as far as there is room, and wholly in its tool tip.
  void Text(const std::string& text);
  void Status(const std::string& text);

  /// Stands at the bottom of the form's window.
  void Place();

 private:
  void OpenMenu();
  void Run(const MenuRow& row) const;

  Form& form_;
  std::unique_ptr<StripWidget> widget_;
  std::vector<MenuRow> rows_;
  std::string text_;
  std::string status_;
};

}  // namespace toolkit
