// SPDX-License-Identifier: MIT
#include "shell/toolkit/controls/button.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QShortcutEvent>

#include "shell/toolkit/controls/captions_p.h"
#include "shell/toolkit/drawing/text_code_p.h"

namespace toolkit {

namespace {

/// The host's button, which Enter presses as well as Space, and a second Alt key letter as well as
/// the one that it shows.
class PushButton : public QPushButton {
 public:
  void AlsoBy(const QKeySequence& keys) {
    if (second_keys_ != 0) releaseShortcut(second_keys_);
    second_keys_ = keys.isEmpty() ? 0 : grabShortcut(keys);
  }

 protected:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::Shortcut) return QPushButton::event(event);
    const auto& keys = static_cast<const QShortcutEvent&>(*event);
    if (keys.shortcutId() != second_keys_) return QPushButton::event(event);
    if (keys.isAmbiguous())
      setFocus(Qt::ShortcutFocusReason);
    else
      animateClick();
    return true;
  }

  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
      click();
    else
      QPushButton::keyPressEvent(event);
  }

 private:
  int second_keys_ = 0;
};

/// Alt with the letter that a Cyrillic keyboard has on the key of the caption's Alt key letter.
/// Where it is the only keyboard, the host knows no other.
QKeySequence CyrillicKeys(const std::string& caption) {
  const std::size_t mark = caption.find('&');
  if (mark == std::string::npos) return {};
  const QString letter = Decode(caption.substr(mark + 1, 1), TextCode::national_cyrillic);
  return {QStringLiteral("Alt+") + letter.toUpper()};
}

}  // namespace

Button::Button(Container& parent, const ControlSheet& sheet)
    : CaptionedControl(parent, sheet, std::make_unique<PushButton>()) {
  auto* button = static_cast<QPushButton*>(widget());
  button->setAutoDefault(false);
  // A press by its Alt key letter lasts a moment, in which another command may have disabled or
  // hidden the form.
  QObject::connect(button, &QPushButton::clicked, button, [this] {
    const Window& form = this->parent().OwningWindow();
    if (form.Enabled() && form.Visible()) Click.Raise();
  });
  StopTabHere();
  Caption(sheet.caption);
}

void Button::Default() {
  auto* button = static_cast<QPushButton*>(widget());
  for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* shortcut = new QShortcut(key, parent().OwningWindow().InnerWidget());
    QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
  }
}

void Button::ShowCaption() {
  auto* button = static_cast<PushButton*>(widget());
  button->setText(CaptionWithMnemonic(Caption(), FaceInUse()));
  button->AlsoBy(CyrillicKeys(Caption()));
}

OptionButton::OptionButton(Container& parent, const ControlSheet& sheet)
    : CaptionedControl(parent, sheet, std::make_unique<QRadioButton>()) {
  StopTabHere();
  Caption(sheet.caption);
}

bool OptionButton::Value() const { return static_cast<QRadioButton*>(widget())->isChecked(); }

void OptionButton::Value(bool selected) {
  auto* button = static_cast<QRadioButton*>(widget());
  // An exclusive button refuses to be cleared by itself.
  button->setAutoExclusive(selected);
  button->setChecked(selected);
  button->setAutoExclusive(true);
}

void OptionButton::ShowCaption() {
  static_cast<QRadioButton*>(widget())->setText(CaptionWithMnemonic(Caption(), FaceInUse()));
}

}  // namespace toolkit
