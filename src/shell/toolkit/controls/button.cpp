// SPDX-License-Identifier: MIT
#include "shell/toolkit/controls/button.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>

#include "shell/toolkit/controls/captions_p.h"

namespace toolkit {

namespace {

/// The host's button, which Enter presses as well as Space.
class PushButton : public QPushButton {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
      click();
    else
      QPushButton::keyPressEvent(event);
  }
};

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
  static_cast<QPushButton*>(widget())->setText(CaptionWithMnemonic(Caption(), FaceInUse()));
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
