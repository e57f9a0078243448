// SPDX-License-Identifier: MIT
#include "shell/toolkit/input/text_box.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <algorithm>
#include <functional>
#include <utility>

#include "shell/toolkit/controls/captions_p.h"
#include "shell/toolkit/controls/replace.h"
#include "shell/toolkit/desktop/browser_host.h"
#include "shell/toolkit/drawing/face_p.h"
#include "shell/toolkit/events/key_codes_p.h"

namespace toolkit {

/// What the host's fields of one line and of many do each in its own way.
class TextField {
 public:
  TextField() = default;
  TextField(const TextField&) = delete;
  TextField& operator=(const TextField&) = delete;
  virtual ~TextField() = default;

  virtual void WhenTyped(std::function<void()> action) = 0;
  /// The text is another: typed, set by code, or written by assistive technology.
  virtual void WhenChanged(const std::function<void()>& /*action*/) {}
  [[nodiscard]] virtual QString Shown() const = 0;
  /// Shows a text that is set by code, however long; 0 typed characters at most set no limit.
  virtual void Show(const QString& text, int typed_at_most) = 0;
  virtual void Lock() = 0;
  virtual void Flat() = 0;
  virtual void Align(Qt::Alignment alignment) = 0;
  [[nodiscard]] virtual TextBox& box() const = 0;
};

/// The host's field, with its keys and clicks going through the box's events first.
template <typename Field>
class TypedField : public Field, public TextField {
 public:
  explicit TypedField(TextBox& box) : box_(box) {
    this->setContextMenuPolicy(Qt::NoContextMenu);
    this->setAcceptDrops(false);
  }

  [[nodiscard]] TextBox& box() const override { return box_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (box_.KeyTaken(*event))
      event->accept();
    else
      Field::keyPressEvent(event);
  }

  // Letters that a dead key or an input method composes come here. Shift may have been held for
  // another of their keys, so that it only tells that a capital was meant.
  void inputMethodEvent(QInputMethodEvent* event) override {
    const QString& composed = event->commitString();
    const bool shift = QGuiApplication::queryKeyboardModifiers().testFlag(Qt::ShiftModifier) &&
                       composed == composed.toUpper();
    if (composed.isEmpty() || !box_.CharactersTaken(composed, shift)) {
      Field::inputMethodEvent(event);
      return;
    }
    // What was on show while it was composed goes.
    QInputMethodEvent without_letters(event->preeditString(), event->attributes());
    Field::inputMethodEvent(&without_letters);
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

  TextBox& box_;
};

namespace {

class SingleLine : public TypedField<QLineEdit> {
 public:
  using TypedField::TypedField;

  void WhenTyped(std::function<void()> action) override {
    connect(this, &QLineEdit::textEdited, this, std::move(action));
  }

  void WhenChanged(const std::function<void()>& action) override {
    connect(this, &QLineEdit::textChanged, this, action);
  }

  [[nodiscard]] QString Shown() const override { return text(); }

  void Show(const QString& text, int typed_at_most) override {
    constexpr int unlimited = 32767;
    const int limit = typed_at_most > 0 ? typed_at_most : unlimited;
    setMaxLength(std::max(limit, static_cast<int>(text.size())));
    setText(text);
  }

  void Lock() override { setReadOnly(true); }

  void Flat() override {
    setFrame(false);
    flat_ = true;
  }

  void Align(Qt::Alignment alignment) override { setAlignment(alignment | Qt::AlignVCenter); }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QLineEdit::paintEvent(event);
    if (!flat_) return;
    QPainter painter(this);
    const int line = std::max(1, Zoomed(1));
    painter.setClipRegion(QRegion(rect()) - rect().adjusted(line, line, -line, -line));
    painter.fillRect(rect(), painter.pen().color());
  }

 private:
  bool flat_ = false;
};

/// Whether some word is so long that it is none, but bytes of another kind of file.
bool HasEndlessWord(const QString& text) {
  constexpr int longest_word = 1000;  // Characters.
  int length = 0;
  return std::ranges::any_of(text, [&length](QChar character) {
    const bool ends_word = QLatin1String(" \t\r\n").contains(character);
    length = ends_word ? 0 : length + 1;
    return length > longest_word;
  });
}

class ManyLines : public TypedField<QPlainTextEdit> {
 public:
  explicit ManyLines(TextBox& box) : TypedField(box) {
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  }

  void WhenTyped(std::function<void()> action) override {
    connect(this, &QPlainTextEdit::textChanged, this, std::move(action));
  }

  [[nodiscard]] QString Shown() const override { return toPlainText(); }
  void Show(const QString& text, int /*typed_at_most*/) override {
    clear();  // The mode of this text would lay the text before it out once more.
    // At each line the host looks for the end of the word.
    setWordWrapMode(HasEndlessWord(text) ? QTextOption::WrapAnywhere
                                         : QTextOption::WrapAtWordBoundaryOrAnywhere);
    setPlainText(text);
  }
  void Lock() override {
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
  void Flat() override { setFrameStyle(QFrame::Box | QFrame::Plain); }
  void Align(Qt::Alignment /*alignment*/) override {}
};

std::unique_ptr<QWidget> MakeField(TextBox& box, Lines lines) {
  if (lines == Lines::single) return std::make_unique<SingleLine>(box);
  return std::make_unique<ManyLines>(box);
}

}  // namespace

TextBox::TextBox(Container& parent, const ControlSheet& sheet, Lines lines)
    : Control(parent, sheet, MakeField(*this, lines)) {
  field().WhenTyped([this] { TakeTypedText(); });
  field().WhenChanged([this] { TakeWrittenText(); });
  StopTabHere();
}

TextField& TextBox::field() const { return dynamic_cast<TextField&>(*widget()); }

void TextBox::Text(const std::string& text) {
  if (Replace(text_, text)) ShowText();
  Change.Raise();
}

void TextBox::MaxLength(int characters) {
  max_length_ = characters;
  ShowText();
}

void TextBox::Lock() { field().Lock(); }

void TextBox::Flat() { field().Flat(); }

void TextBox::Align(Alignment alignment) { field().Align(HostAlignment(alignment)); }

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
  field().Show(FaceInUse().Shown(text_), max_length_);
}

void TextBox::TakeTypedText() {
  if (showing_) return;
  text_ = Encode(field().Shown(), FaceInUse().code());
  Change.Raise();
}

/// What assistive technology writes goes the way of typed characters.
void TextBox::TakeWrittenText() {
  const QString written = field().Shown();
  if (showing_ || Encode(written, FaceInUse().code()) == text_) return;
  ShowText();
  if (!Enabled() || !parent().OwningWindow().Enabled()) return;
  if (KeyPress.Handled())
    CharactersTaken(written, false);
  else
    Text(Encode(written, FaceInUse().code()));
}

bool TextBox::KeyTaken(const QKeyEvent& event) {
  int key_code = KeyCodeOf(event);
  KeyDown.Raise(key_code, ShiftState(event.modifiers()));
  const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
  const bool characters_taken = CharactersTaken(CharactersOf(event), shift);
  return key_code == 0 || characters_taken;
}

bool TextBox::CharactersTaken(const QString& characters, bool shift) {
  bool taken = false;
  TextBox* box = this;
  for (const char32_t character : characters.toUcs4()) {
    taken = box->CharacterTaken(character, shift) || taken;
    const auto* focused = dynamic_cast<TextField*>(QApplication::focusWidget());
    if (focused != nullptr) box = &focused->box();
  }
  return taken;
}

bool TextBox::CharacterTaken(char32_t character, bool shift) {
  Typed.Raise(character, shift);
  int code = EncodeTyped(character, FaceInUse().code());
  KeyPress.Raise(code);
  return code == 0;
}

}  // namespace toolkit
