// SPDX-License-Identifier: MIT
#include "support/program_test.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPushButton>
#include <algorithm>

#include "shell/events.h"
#include "shell/language.h"
#include "shell/toolkit/drawing/surface_p.h"
#include "shell/toolkit/events/program_end.h"
#include "shell/toolkit/windows/application.h"

namespace kalvon {
namespace {

int language_under_test = 0;

}  // namespace

int ProgramLanguage() { return language_under_test; }

namespace testing {

void ProgramTest::Start() {
  language_under_test = language_;
  glavni = CrosswordState{};
  qputenv("XDG_STATE_HOME", state_.Host().c_str());
  qputenv("XDG_CONFIG_HOME", state_.Host("config").c_str());
  toolkit::App::Folders({.own = scratch_.Logic(), .shipped = scratch_.Logic()});
  toolkit::UseBrowserHost(std::make_unique<ScriptedBrowser>(browser_));
  BindEvents();
  frm_glavni->Show();
  QApplication::setActiveWindow(Widget("frm_glavni"));
  QApplication::processEvents();
}

void ProgramTest::Stop() {
  UnloadForms();
  toolkit::UseBrowserHost(nullptr);
  toolkit::Restart();
}

void ProgramTest::CopySample(const std::string& name) const {
  std::filesystem::copy_file(std::filesystem::path(SAMPLES_FOLDER) / name, folder() / name,
                             std::filesystem::copy_options::overwrite_existing);
}

void ProgramTest::Choose(const std::string& name) {
  const auto sample = std::filesystem::path(SAMPLES_FOLDER) / name;
  if (exists(sample) && !exists(folder() / name)) CopySample(name);
  auto& files = frm_ucit_snimi->File1;
  // The dialog shows what it showed when its folder was last set.
  files.Path(frm_ucit_snimi->Dir1.Path());
  ClickButton("cmd_glavni(0)");
  int row = 0;
  while (row < files.ListCount() && files.List(row) != name) ++row;
  ASSERT_LT(row, files.ListCount()) << "The dialog does not list " << name;
  auto* list = Widget<QAbstractItemView>("File1");
  const QModelIndex index = list->model()->index(row, 0);
  list->scrollTo(index);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
}

void ProgramTest::Load(const std::string& name) {
  Choose(name);
  ClickButton("cmd_ucit(0)");
  QApplication::setActiveWindow(Widget("frm_glavni"));
}

void ProgramTest::ClickCell(int x, int y) {
  constexpr int pitch = 28;
  ClickPicture("pic_ukr", (x - glavni.pogled_x) * pitch + pitch / 2,
               (y - glavni.pogled_y) * pitch + pitch / 2);
}

void ProgramTest::ClickPicture(const std::string& control, int x, int y, int button) {
  QTest::mouseClick(Widget(control), button == 2 ? Qt::RightButton : Qt::LeftButton, {}, {x, y});
}

void ProgramTest::ClickButton(const std::string& control) {
  auto* button = Widget<QPushButton>(control);
  ASSERT_NE(button, nullptr) << control;
  QTest::mouseClick(button, Qt::LeftButton);
}

void ProgramTest::Type(const std::string& letters) {
  for (const QChar letter : QString::fromStdString(letters)) {
    QWidget* focused = QApplication::focusWidget();
    ASSERT_NE(focused, nullptr);
    const auto key = static_cast<Qt::Key>(letter.toUpper().unicode());
    const auto shift = letter.isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
    QTest::sendKeyEvent(QTest::Click, focused, key, QString(letter), shift);
  }
}

void ProgramTest::PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

unsigned ProgramTest::PixelOf(const std::string& control, int x, int y) const {
  return Widget<toolkit::Surface>(control)->Shown().pixel(x, y) & 0xFFFFFFU;
}

std::string ProgramTest::FocusedControl() const {
  const QWidget* focused = QApplication::focusWidget();
  return focused == nullptr ? "" : focused->objectName().toStdString();
}

QWidget* ProgramTest::Find(const std::string& control) {
  const QWidgetList all = QApplication::allWidgets();
  const auto found = std::ranges::find(all, QString::fromStdString(control), &QWidget::objectName);
  return found == all.end() ? nullptr : *found;
}

}  // namespace testing
}  // namespace kalvon
