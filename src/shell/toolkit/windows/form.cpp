// SPDX-License-Identifier: MIT
#include "shell/toolkit/windows/form.h"

#include <QCloseEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QKeySequence>
#include <QResizeEvent>
#include <QWidget>
#include <QWindow>

#include "shell/toolkit/controls/replace.h"
#include "shell/toolkit/drawing/text_code_p.h"
#include "shell/toolkit/windows/strip.h"

namespace toolkit {

namespace {

/// Pixels that the nominal window frame adds to the inner area.
struct FrameSize {
  int width;
  int height;
};

FrameSize NominalFrame(Border border) {
  constexpr int caption_height = 19;
  const int line = border == Border::sizeable ? 4 : 3;
  return {2 * line, 2 * line + caption_height};
}

Qt::WindowFlags WindowFlags(Border border) {
  constexpr Qt::WindowFlags titled = Qt::CustomizeWindowHint | Qt::WindowTitleHint;
  if (border == Border::fixed_dialog) return Qt::Dialog | titled;
  return Qt::Window | titled | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
         Qt::WindowCloseButtonHint;
}

/// On a keyboard that has no Latin letters at all, Serbian ones stand for them. Y is their Ж, which
/// that keyboard has twice, or their Ѕ.
int LatinKey(int key) {
  if (key == u'Ж' || key == u'Ѕ') return Qt::Key_Y;
  const bool cyrillic = QChar::script(static_cast<char32_t>(key)) == QChar::Script_Cyrillic;
  return cyrillic ? EncodeTyped(static_cast<char32_t>(key), TextCode::national_cyrillic) : key;
}

std::string SpelledAlike(const QKeySequence& keys) {
  return keys.toString(QKeySequence::PortableText).toStdString();
}

}  // namespace

class FormWidget : public QWidget {
 public:
  FormWidget(Form& form, Border border) : QWidget(nullptr, WindowFlags(border)), form_(form) {}

  [[nodiscard]] Form& form() const { return form_; }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    if (form_.strip_) form_.strip_->Place();
    if (Replace(form_size_, QSize(width(), form_.InnerHeight()))) form_.Resize.Raise();
  }

  void closeEvent(QCloseEvent* event) override {
    bool keep_open = true;
    if (form_.border_ == Border::sizeable && form_.Enabled()) {
      keep_open = false;
      form_.Unload.Raise(keep_open);
    }
    event->setAccepted(!keep_open);
  }

 private:
  Form& form_;
  QSize form_size_;  ///< As at the last Resize.
};

namespace {

/// The first form that is made: dialogs stay above it.
FormWidget* start_window = nullptr;

}  // namespace

Form::Form(const FormSheet& sheet)
    : widget_(std::make_unique<FormWidget>(*this, sheet.border)),
      border_(sheet.border),
      scale_(sheet.scale) {
  widget_->setObjectName(QString::fromStdString(sheet.name));
  const int width = sheet.inner_width / twips_per_pixel;
  const int height = sheet.inner_height / twips_per_pixel;
  if (border_ == Border::fixed_dialog)
    widget_->setFixedSize(width, height);
  else
    widget_->resize(width, height);
  if (start_window == nullptr) start_window = widget_.get();
  Caption(sheet.caption);
}

Form::~Form() {
  if (start_window == widget_.get()) start_window = nullptr;
}

void Form::Left(int twips) {
  left_ = twips;
  widget_->move(left_ / twips_per_pixel, top_ / twips_per_pixel);
}

void Form::Top(int twips) {
  top_ = twips;
  widget_->move(left_ / twips_per_pixel, top_ / twips_per_pixel);
}

int Form::Width() const {
  return (widget_->width() + NominalFrame(border_).width) * twips_per_pixel;
}

void Form::Width(int twips) {
  TakeSize(twips / twips_per_pixel - NominalFrame(border_).width, InnerHeight());
}

int Form::Height() const {
  return (InnerHeight() + NominalFrame(border_).height) * twips_per_pixel;
}

void Form::Height(int twips) {
  TakeSize(widget_->width(), twips / twips_per_pixel - NominalFrame(border_).height);
}

int Form::InnerHeight() const { return widget_->height() - (strip_ ? Strip::height : 0); }

void Form::TakeSize(int width, int height) {
  const QSize window(width, height + (strip_ ? Strip::height : 0));
  if (border_ == Border::fixed_dialog) widget_->setFixedSize(window);
  widget_->resize(window);
}

Strip& Form::AddStrip() {
  const int height = widget_->height();
  strip_ = std::make_unique<Strip>(*this);
  TakeSize(widget_->width(), height);
  return *strip_;
}

void Form::Caption(const std::string& caption) {
  caption_ = caption;
  // The host puts the program's name in the place of an empty title, and its mark of unsaved work
  // in that of a single "[*]".
  QString title = caption.empty() ? QStringLiteral(" ") : Decode(caption, TextCode::host);
  title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
  widget_->setWindowTitle(title + QStringLiteral("[*]"));
}

void Form::Modified(bool modified) {
  if (widget_->isWindowModified() != modified) widget_->setWindowModified(modified);
}

void Form::Icon(const std::string& picture_name) {
  widget_->setWindowIcon(
      QIcon(QStringLiteral(":/pictures/") + QString::fromStdString(picture_name)));
}

Event<>& Form::Shortcut(const std::string& keys) {
  return shortcuts_[SpelledAlike(
      QKeySequence(QString::fromStdString(keys), QKeySequence::PortableText))];
}

void Form::Show() {
  if (!widget_->isVisible()) {
    ChainTabStops();
    if (border_ == Border::fixed_dialog && start_window != widget_.get()) {
      widget_->winId();  // The window must exist to stay above another.
      widget_->windowHandle()->setTransientParent(start_window->windowHandle());
    }
  }
  widget_->show();
  widget_->raise();
  widget_->activateWindow();
}

void Form::Hide() { widget_->hide(); }

QWidget* Form::InnerWidget() const { return widget_.get(); }

void Form::EndStartForm() {
  if (start_window != nullptr) start_window->form().HostEnds.Raise();
}

bool Form::TakesInput(const QWidget* window) {
  const auto* form_widget = dynamic_cast<const FormWidget*>(window);
  return form_widget == nullptr || form_widget->form().Enabled();
}

bool Form::TakesKeys(const QWidget* window, const QKeyEvent& keys) {
  const auto* form_widget = dynamic_cast<const FormWidget*>(window);
  if (form_widget == nullptr) return false;
  const auto& shortcuts = form_widget->form().shortcuts_;
  const auto modifiers = keys.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
  const QKeyCombination combination(modifiers, static_cast<Qt::Key>(LatinKey(keys.key())));
  const auto found = shortcuts.find(SpelledAlike(combination));
  if (found == shortcuts.end() || !found->second.Handled()) return false;
  found->second.Raise();
  return true;
}

}  // namespace toolkit
