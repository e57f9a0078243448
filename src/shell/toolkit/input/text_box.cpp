// SPDX-License-Identifier: MIT
#include "shell/toolkit/input/text_box.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScopedValueRollback>
#include <algorithm>

#include "files/run_time_error.h"
#include "shell/toolkit/desktop/browser_host.h"
#include "shell/toolkit/drawing/face_p.h"
#include "shell/toolkit/events/key_codes_p.h"

namespace toolkit {

/// The host's text field `Field`, with its keys and clicks going through the box's events first.
template <typename Field>
class TypedField : public Field {
 public:
  explicit TypedField(TextBox& box) : box_(box) {
    this->setContextMenuPolicy(Qt::NoContextMenu);
    this->setAcceptDrops(false);
  }

  void Flat() { flat_ = true; }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (box_.KeyTaken(*event))
      event->accept();
    else
      Field::keyPressEvent(event);
  }

  // Letters that a dead key or an input method composes come here.
  void inputMethodEvent(QInputMethodEvent* event) override {
    if (event->commitString().isEmpty() || !box_.CharactersTaken(event->commitString()))
      Field::inputMethodEvent(event);
    else
      event->accept();
  }

  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() != Qt::MiddleButton) Field::mousePressEvent(event);
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    if (event->button() == Qt::MiddleButton) return;
    Field::mouseReleaseEvent(event);
    if (this->rect().contains(event->position().toPoint())) box_.Click.Raise();
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    Field::mouseDoubleClickEvent(event);
    box_.DblClick.Raise();
  }

  void paintEvent(QPaintEvent* event) override {
    Field::paintEvent(event);
    if (!flat_) return;
    QPainter border(this);
    border.drawRect(this->rect().adjusted(0, 0, -1, -1));
  }

 private:
  TextBox& box_;
  bool flat_ = false;
};

namespace {

using SingleLine = TypedField<QLineEdit>;
using ManyLines = TypedField<QPlainTextEdit>;

QLineEdit* AsSingleLine(QWidget* widget) { return qobject_cast<QLineEdit*>(widget); }
QPlainTextEdit* AsManyLines(QWidget* widget) { return qobject_cast<QPlainTextEdit*>(widget); }

std::unique_ptr<QWidget> MakeField(TextBox& box, Lines lines) {
  if (lines == Lines::single) return std::make_unique<SingleLine>(box);
  auto field = std::make_unique<ManyLines>(box);
  field->setTabChangesFocus(true);
  field->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  field->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  return field;
}

}  // namespace

TextBox::TextBox(Container& parent, const ControlSheet& sheet, Lines lines)
    : Control(parent, sheet, MakeField(*this, lines)) {
  if (auto* field = AsSingleLine(widget()))
    QObject::connect(field, &QLineEdit::textEdited, field, [this] { TakeTypedText(); });
  else
    QObject::connect(AsManyLines(widget()), &QPlainTextEdit::textChanged, widget(),
                     [this] { TakeTypedText(); });
  StopTabHere();
}

void TextBox::Text(const std::string& text) {
  if (text != text_) {
    text_ = text;
    ShowText();
  }
  Change.Raise();
}

void TextBox::MaxLength(int characters) {
  max_length_ = characters;
  ShowText();
}

void TextBox::Lock() {
  if (auto* field = AsSingleLine(widget()))
    field->setReadOnly(true);
  else
    AsManyLines(widget())->setTextInteractionFlags(Qt::TextSelectableByMouse |
                                                   Qt::TextSelectableByKeyboard);
}

void TextBox::Flat() {
  if (auto* field = AsSingleLine(widget())) {
    field->setFrame(false);
    static_cast<SingleLine*>(field)->Flat();
  } else {
    AsManyLines(widget())->setFrameStyle(QFrame::Box | QFrame::Plain);
  }
}

void TextBox::Align(Alignment alignment) {
  auto* field = AsSingleLine(widget());
  if (field == nullptr) return;
  field->setAlignment(alignment == Alignment::center  ? Qt::AlignCenter
                      : alignment == Alignment::right ? Qt::AlignRight | Qt::AlignVCenter
                                                      : Qt::AlignLeft | Qt::AlignVCenter);
}

void TextBox::LinkMode(int mode) {
  if (mode != 0) CurrentBrowserHost().Connect(link_topic_);
}

void TextBox::LinkRequest() { CurrentBrowserHost().Request(link_item_); }

void TextBox::FontChanged() {
  Control::FontChanged();
  ShowText();
}

void TextBox::ShowText() {
  const QScopedValueRollback showing(showing_, true);
  const QString shown = FaceInUse().Shown(text_);
  if (auto* field = AsSingleLine(widget())) {
    constexpr int unlimited = 32767;
    const int limit = max_length_ > 0 ? max_length_ : unlimited;
    field->setMaxLength(std::max(limit, static_cast<int>(shown.size())));
    field->setText(shown);
  } else {
    AsManyLines(widget())->setPlainText(shown);
  }
}

void TextBox::TakeTypedText() {
  if (showing_) return;
  auto* field = AsSingleLine(widget());
  const QString shown = field != nullptr ? field->text() : AsManyLines(widget())->toPlainText();
  text_ = Encode(shown, FaceInUse().code());
  Change.Raise();
}

bool TextBox::KeyTaken(const QKeyEvent& event) {
  int key_code = KeyCodeOf(event);
  KeyDown.Raise(key_code, ShiftState(event.modifiers()));
  const bool characters_taken = CharactersTaken(CharactersOf(event));
  return key_code == 0 || characters_taken;
}

bool TextBox::CharactersTaken(const QString& characters) {
  bool taken = false;
  for (const char32_t character : characters.toUcs4()) {
    int code = EncodeTyped(character, FaceInUse().code());
    KeyPress.Raise(code);
    taken = taken || code == 0;
  }
  return taken;
}

}  // namespace toolkit
