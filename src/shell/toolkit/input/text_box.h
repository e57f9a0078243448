// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "shell/toolkit/controls/control.h"

class QKeyEvent;
class QString;

namespace toolkit {

class TextField;

enum class Lines { single, multiple };

/// A text box. Its text changes only by its keys and by code: there is no context menu, no
/// dropping and no pasting with the mouse.
class TextBox : public Control {
 public:
  /// `lines` tells whether it has one line, or many with a vertical scroll bar.
  TextBox(Container& parent, const ControlSheet& sheet, Lines lines = Lines::single);

  [[nodiscard]] const std::string& Text() const { return text_; }
  /// Raises Change, also with the text that the box has.
  void Text(const std::string& text);

  /// The most characters that can be typed into a single line; 0 sets no limit. A text that is set
  /// by code may be longer.
  void MaxLength(int characters);
  /// The keys move the cursor, select and copy, but change nothing.
  void Lock();
  /// A one-pixel border instead of the sunken one.
  void Flat();
  void Align(Alignment alignment);

  Event<> Change;
  Event<> Click;
  Event<> DblClick;
  /// A character as the keyboard gives it, by reference, and whether Shift is held. The one that
  /// stands there in the end becomes a code.
  Event<char32_t&, bool> Typed;
  /// Code of the character, by reference; set to 0 it drops the character.
  Event<int&> KeyPress;
  /// Code of the key, by reference, and the state of Shift (1), Ctrl (2) and Alt (4); a code set to
  /// 0 lets the box take no further action on the key. A KeyPress still follows.
  Event<int&, int> KeyDown;

  // Link to another application: topic "SERVICE|topic", mode 2 for one that is asked. Setting the
  // mode raises error 282 if no application answers.
  void LinkTopic(const std::string& topic) { link_topic_ = topic; }
  void LinkItem(const std::string& item) { link_item_ = item; }
  void LinkMode(int mode);
  void LinkRequest();

 protected:
  void FontChanged() override;

 private:
  template <typename Field>
  friend class TypedField;
  /// Raises the events of a key; whether the box takes no further action on it.
  bool KeyTaken(const QKeyEvent& event);
  /// The same of characters. If one moves the focus to another box, the next ones are typed there.
  bool CharactersTaken(const QString& characters, bool shift);
  bool CharacterTaken(char32_t character, bool shift);
  [[nodiscard]] TextField& field() const;
  void ShowText();
  void TakeTypedText();
  void TakeWrittenText();

  std::string text_;
  std::string link_topic_;
  std::string link_item_;
  int max_length_ = 0;
  bool showing_ = false;
};

}  // namespace toolkit
