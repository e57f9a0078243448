// SPDX-License-Identifier: MIT
#include "shell/toolkit/windows/application.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QWheelEvent>
#include <csignal>
#include <cstdlib>

#include "shell/toolkit/desktop/browser_host.h"
#include "shell/toolkit/drawing/face_p.h"
#include "shell/toolkit/drawing/scale.h"
#include "shell/toolkit/events/program_end.h"
#include "shell/toolkit/media/window_handles_p.h"
#include "shell/toolkit/windows/end_requests_p.h"
#include "shell/toolkit/windows/form.h"
#include "shell/toolkit/windows/zoomed_style_p.h"

namespace toolkit {

namespace {

ProgramFolders program_folders;

bool in_event_loop = false;

/// The host ends the program where it stands when the screen is gone. Then the forms, which would
/// be taken down without an application, stay.
void EndAtOnce() {
  if (in_event_loop) std::_Exit(EXIT_FAILURE);
}

QPalette PeriodPalette() {
  const QColor face(0xC0, 0xC0, 0xC0);
  QPalette palette(face, face);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::WindowText, Qt::black);
  palette.setColor(QPalette::ButtonText, Qt::black);
  palette.setColor(QPalette::Highlight, QColor(0, 0, 0x80));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::Disabled, QPalette::Base, Qt::white);
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(0x80, 0x80, 0x80));
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x80, 0x80, 0x80));
  return palette;
}

/// Edges are black all around, where the period's are shaded.
QPalette ContrastPalette() {
  QPalette palette(Qt::white, Qt::white);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::Light,
        QPalette::Midlight, QPalette::Mid, QPalette::Dark, QPalette::Shadow, QPalette::Highlight})
    palette.setColor(role, Qt::black);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::HighlightedText, Qt::yellow);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0x60, 0x60, 0x60));
  return palette;
}

// A release is no input of its own: a bar that is held while its form is disabled must see it.
bool IsUserInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
      return true;
    default:
      return false;
  }
}

/// Whether files are dragged, which belong to the window and to none of its controls.
bool CarriesFiles(const QEvent& event) {
  const bool drags = event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove ||
                     event.type() == QEvent::Drop;
  return drags && static_cast<const QDropEvent&>(event).mimeData()->hasUrls();
}

/// Keeps the user's input from disabled forms, before it can even move the focus, and gives a form
/// the keys of its shortcuts before a control sees them.
class GatedApplication : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    auto* const widget = qobject_cast<QWidget*>(receiver);
    if (widget != nullptr && CarriesFiles(*event))
      return Form::TakesInput(widget->window()) && QApplication::notify(widget->window(), event);
    if (widget != nullptr && IsUserInput(event->type())) {
      if (!Form::TakesInput(widget->window())) return true;
      if (event->type() == QEvent::Wheel &&
          Form::TakesWheel(widget->window(), static_cast<const QWheelEvent&>(*event)))
        return true;
      if (event->type() == QEvent::KeyPress &&
          Form::TakesKeys(widget->window(), static_cast<const QKeyEvent&>(*event)))
        return true;
    }
    return QApplication::notify(receiver, event);
  }
};

/// A word of a command line, as desktop entries write it.
std::string Quoted(const std::string& word) {
  std::string quoted = "\"";
  for (const char c : word) {
    if (std::string_view("\"\\$`").find(c) != std::string_view::npos) quoted += '\\';
    if (c == '%') quoted += '%';
    quoted += c;
  }
  return quoted + '"';
}

}  // namespace

Application::Application(int& argc, char** argv) {
  RememberEnvironment();
  // A write beyond the limit of a file's size is a failed write, and not the end of the program.
  static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
  // Nothing here is drawn by a graphics card, and looking for one takes time.
  if (!qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION")) qputenv("QT_XCB_GL_INTEGRATION", "none");
  QApplication::setDesktopSettingsAware(false);
  QApplication::setStyle(new ZoomedStyle);
  application_ = std::make_unique<GatedApplication>(argc, argv);
  QApplication::setApplicationName(QStringLiteral("kalvon"));
  QApplication::setPalette(PeriodPalette());
  Zoom(1);
  QApplication::setQuitOnLastWindowClosed(false);
  static_cast<void>(std::atexit(EndAtOnce));
}

Application::~Application() { Face::ForgetAll(); }

int Application::Run() {
  if (Ended()) return 0;
  const EndRequests end_requests;
  const QScopedValueRollback in_loop(in_event_loop, true);
  return QApplication::exec();
}

void HighContrast(bool high) {
  QApplication::setPalette(high ? ContrastPalette() : PeriodPalette());
}

void MsgBox(const std::string& text) {
  QMessageBox box(QMessageBox::NoIcon, QApplication::applicationName(),
                  QString::fromStdString(text), QMessageBox::Ok);
  box.exec();
  if (Ended()) throw ProgramEnd{};
}

void Shell(const std::string& command_line) { CurrentBrowserHost().Start(command_line); }

void StartBeside(const std::string& program, const std::string& file) {
  Shell(Quoted(QApplication::applicationDirPath().toStdString() + '/' + program) + ' ' +
        Quoted(file));
}

int GetFocus() { return HandleOf(QApplication::focusWidget()); }

const ProgramFolders& App::Folders() {
  if (program_folders.own.empty())
    program_folders = FindProgramFolders(QApplication::applicationDirPath().toStdString());
  return program_folders;
}

void App::Folders(const ProgramFolders& folders) { program_folders = folders; }

}  // namespace toolkit
