// SPDX-License-Identifier: MIT
#include "shell/toolkit/windows/form.h"

#include <QCloseEvent>
#include <QIcon>
#include <QResizeEvent>
#include <QShortcut>
#include <QWidget>
#include <QWindow>

#include "shell/toolkit/drawing/text_code_p.h"

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

}  // namespace

class FormWidget : public QWidget {
 public:
  FormWidget(Form& form, Border border) : QWidget(nullptr, WindowFlags(border)), form_(form) {}

  [[nodiscard]] Form& form() const { return form_; }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    if (event->size() != event->oldSize()) form_.Resize.Raise();
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
  TakeSize(twips / twips_per_pixel - NominalFrame(border_).width, widget_->height());
}

int Form::Height() const {
  return (widget_->height() + NominalFrame(border_).height) * twips_per_pixel;
}

void Form::Height(int twips) {
  TakeSize(widget_->width(), twips / twips_per_pixel - NominalFrame(border_).height);
}

void Form::TakeSize(int width, int height) {
  if (border_ == Border::fixed_dialog) widget_->setFixedSize(width, height);
  widget_->resize(width, height);
}

void Form::Caption(const std::string& caption) {
  caption_ = caption;
  // The host puts the program's name in the place of an empty title.
  widget_->setWindowTitle(caption.empty() ? QStringLiteral(" ") : Decode(caption, TextCode::host));
}

void Form::Icon(const std::string& picture_name) {
  widget_->setWindowIcon(
      QIcon(QStringLiteral(":/pictures/") + QString::fromStdString(picture_name)));
}

Event<>& Form::Shortcut(const std::string& keys) {
  const auto [place, made] = shortcuts_.try_emplace(keys);
  Event<>& event = place->second;
  if (made) {
    auto* shortcut = new QShortcut(
        QKeySequence(QString::fromStdString(keys), QKeySequence::PortableText), widget_.get());
    QObject::connect(shortcut, &QShortcut::activated, shortcut, [&event] { event.Raise(); });
  }
  return event;
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

void Form::CloseStartForm() {
  bool keep_open = false;
  if (start_window != nullptr) start_window->form().Unload.Raise(keep_open);
}

bool Form::TakesInput(const QWidget* window) {
  const auto* form_widget = dynamic_cast<const FormWidget*>(window);
  return form_widget == nullptr || form_widget->form().Enabled();
}

}  // namespace toolkit
