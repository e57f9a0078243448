// SPDX-License-Identifier: MIT
#include "shell/toolkit/windows/form.h"

#include <QAccessibleWidget>
#include <QCloseEvent>
#include <QDropEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMimeData>
#include <QResizeEvent>
#include <QScreen>
#include <QUrl>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <cstdlib>

#include "shell/toolkit/controls/replace.h"
#include "shell/toolkit/drawing/scale.h"
#include "shell/toolkit/drawing/text_code_p.h"
#include "shell/toolkit/windows/form_widget_p.h"
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
  return Qt::Window | titled | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
         Qt::WindowCloseButtonHint;
}

/// On a keyboard that has no Latin letters at all, Serbian ones stand for them. Y is the Ж or the Ž
/// that a Serbian keyboard has twice, or Ѕ.
int LatinKey(int key) {
  if (key == u'Ж' || key == u'Ž' || key == u'Ѕ') return Qt::Key_Y;
  const bool cyrillic = QChar::script(static_cast<char32_t>(key)) == QChar::Script_Cyrillic;
  return cyrillic ? EncodeTyped(static_cast<char32_t>(key), TextCode::national_cyrillic) : key;
}

std::string SpelledAlike(const QKeySequence& keys) {
  return keys.toString(QKeySequence::PortableText).toStdString();
}

}  // namespace

FormWidget::FormWidget(Form& form, Border border)
    : QWidget(nullptr, WindowFlags(border)), form_(form) {
  QAccessible::installFactory(Accessible);
  setAcceptDrops(true);
}

void FormWidget::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void FormWidget::dropEvent(QDropEvent* event) {
  std::vector<std::string> paths;
  for (const QUrl& url : event->mimeData()->urls())
    if (url.isLocalFile()) paths.push_back(url.toLocalFile().toStdString());
  event->acceptProposedAction();
  if (!paths.empty()) form_.FilesDropped.Raise(paths);
}

QAccessibleInterface* FormWidget::Accessible(const QString& /*class_name*/, QObject* object) {
  auto* window = dynamic_cast<FormWidget*>(object);
  if (window == nullptr) return nullptr;
  const bool is_dialog = window->form_.border_ == Border::fixed_dialog;
  return new QAccessibleWidget(window, is_dialog ? QAccessible::Dialog : QAccessible::Window);
}

void FormWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  form_.FitToWindow();
}

bool FormWidget::event(QEvent* event) {
  const bool taken = QWidget::event(event);
  if (event->type() == QEvent::WindowActivate) form_.Activate.Raise();
  if (event->type() == QEvent::WindowDeactivate) form_.Deactivate.Raise();
  return taken;
}

void FormWidget::closeEvent(QCloseEvent* event) {
  bool keep_open = true;
  if (form_.border_ == Border::sizeable && form_.Enabled()) {
    keep_open = false;
    form_.Unload.Raise(keep_open);
  }
  event->setAccepted(!keep_open);
}

namespace {

/// The first form that is made: dialogs stay above it.
FormWidget* start_window = nullptr;

}  // namespace

std::vector<Form*>& AllForms() {
  static std::vector<Form*> forms;
  return forms;
}

Form::Form(const FormSheet& sheet)
    : widget_(std::make_unique<FormWidget>(*this, sheet.border)),
      border_(sheet.border),
      scale_(sheet.scale) {
  AllForms().push_back(this);
  widget_->setObjectName(QString::fromStdString(sheet.name));
  if (start_window == nullptr) start_window = widget_.get();
  TakeSize(sheet.inner_width / twips_per_pixel, sheet.inner_height / twips_per_pixel);
  Caption(sheet.caption);
}

Form::~Form() {
  std::erase(AllForms(), this);
  if (start_window == widget_.get()) start_window = nullptr;
}

void Form::Left(int twips) {
  left_ = twips;
  Place();
}

void Form::Top(int twips) {
  top_ = twips;
  Place();
}

int Form::Width() const { return (width_ + NominalFrame(border_).width) * twips_per_pixel; }

void Form::Width(int twips) {
  TakeSize(twips / twips_per_pixel - NominalFrame(border_).width, height_);
}

int Form::Height() const { return (height_ + NominalFrame(border_).height) * twips_per_pixel; }

void Form::Height(int twips) {
  TakeSize(width_, twips / twips_per_pixel - NominalFrame(border_).height);
}

void Form::TakeSize(int width, int height) {
  const bool wider = Replace(width_, width);
  const bool higher = Replace(height_, height);
  if (!wider && !higher) return;
  TakeWindowSize();
  Resize.Raise();
}

Strip& Form::AddStrip() {
  strip_ = std::make_unique<Strip>(*this);
  TakeWindowSize();
  return *strip_;
}

/// Stands where it is said on an empty screen, or so beside the start form, wherever that has gone.
void Form::Place() {
  const auto zoomed = [](int twips) {
    return Zoomed(static_cast<double>(twips) / twips_per_pixel);
  };
  QPoint at(zoomed(left_), zoomed(top_));
  if (border_ == Border::fixed_dialog && start_window->isVisible()) {
    const Form& start = start_window->form();
    at += start_window->pos() - QPoint(zoomed(start.left_), zoomed(start.top_));
    const QRect free = start_window->screen()->availableGeometry();
    const auto held = [](int place, int size, int first, int room) {
      return std::max(std::min(place, first + room - size), first);
    };
    at = {held(at.x(), zoomed(Width()), free.left(), free.width()),
          held(at.y(), zoomed(Height()), free.top(), free.height())};
  }
  widget_->move(at);
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

Event<bool&>& Form::Shortcut(const std::string& keys) {
  return shortcuts_[SpelledAlike(
      QKeySequence(QString::fromStdString(keys), QKeySequence::PortableText))];
}

void Form::Show() {
  if (!widget_->isVisible()) {
    ChainTabStops();
    Place();
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

QWidget* Form::InnerWidget() const { return &widget_->area; }

void Form::EndStartForm() {
  if (start_window != nullptr) start_window->form().HostEnds.Raise();
}

bool Form::TakesInput(const QWidget* window) {
  const auto* form_widget = dynamic_cast<const FormWidget*>(window);
  return form_widget == nullptr || form_widget->form().Enabled();
}

bool Form::TakesWheel(const QWidget* window, const QWheelEvent& turn) {
  const auto* form_widget = dynamic_cast<const FormWidget*>(window);
  if (form_widget == nullptr || !turn.modifiers().testFlag(Qt::ControlModifier)) return false;
  Form& form = form_widget->form();
  constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
  form.turned_ += turn.angleDelta().y();
  for (; std::abs(form.turned_) >= notch; form.turned_ %= notch)
    form.ZoomWheel.Raise(form.turned_ > 0);
  return true;
}

bool Form::TakesKeys(const QWidget* window, const QKeyEvent& keys) {
  const auto* form_widget = dynamic_cast<const FormWidget*>(window);
  if (form_widget == nullptr) return false;
  const auto& shortcuts = form_widget->form().shortcuts_;
  const auto modifiers = keys.modifiers() & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier);
  const QKeyCombination combination(modifiers, static_cast<Qt::Key>(LatinKey(keys.key())));
  const auto found = shortcuts.find(SpelledAlike(combination));
  if (found == shortcuts.end() || !found->second.Handled()) return false;
  bool taken = true;
  found->second.Raise(taken);
  return taken;
}

}  // namespace toolkit
