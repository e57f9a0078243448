// SPDX-License-Identifier: MIT
#include "bench_program.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QTemporaryDir>
#include <QWidget>
#include <fstream>
#include <stdexcept>

#include "document/crossword_state.h"
#include "files/host_paths.h"
#include "shell/events.h"
#include "shell/forms/frm_glavni.h"
#include "shell/forms/frm_ucit_snimi.h"
#include "shell/language.h"
#include "shell/load_dialog.h"
#include "shell/toolkit/windows/application.h"

namespace kalvon {

int ProgramLanguage() { return 0; }

}  // namespace kalvon

namespace kalvon::bench {

namespace {

std::string ThreeDigits(int number) {
  const std::string digits = std::to_string(number);
  return std::string(3 - digits.size(), ' ') + digits;
}

}  // namespace

std::string CrosswordFile(const FileShape& shape) {
  std::string text = "\r\nNaziv: Merenje\r\nDimenzije:X=" + ThreeDigits(shape.columns) +
                     " Y=" + ThreeDigits(shape.rows) +
                     "\r\nOpis: Merenje\r\nBroj: 1\r\nH: " + (shape.side_by_side ? "1" : "0") +
                     "\r\nV: 0\r\nH: 0\r\nV: 0\r\n";
  const std::string letters = "ABVGD\\E@ZIJKLQMNWOPRST]UFHC^X[";
  for (int cell = 0; cell < shape.columns * shape.rows; ++cell) {
    const char letter = letters[static_cast<std::size_t>(cell) % letters.size()];
    text += {letter, letter};
    text += cell % 2 == 0 ? "$0$1$1$11\r\n" : "$0$0$0$00\r\n";
    text +=
        cell % 3 == 0 ? "011$$$$Pitanje koje ima vi{e od jednog reda$Drugo pitanje$\r\n" : "\r\n";
  }
  return text;
}

ScratchFolder::ScratchFolder() {
  QTemporaryDir made(QDir::tempPath() + "/kalvon-bench-XXXXXX");
  made.setAutoRemove(false);
  path_ = made.path().toStdString();
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string ScratchFolder::Path(const std::string& name) const { return (path_ / name).string(); }

void ScratchFolder::Write(const std::string& name, const std::string& bytes) const {
  std::ofstream(path_ / name, std::ios::binary) << bytes;
}

std::vector<std::string> WriteInstallments(const ScratchFolder& folder, int count) {
  const std::string installment = CrosswordFile({.columns = 4, .rows = 4, .side_by_side = true});
  std::vector<std::string> paths;
  for (int i = 1; i <= count; ++i) {
    const std::string name = "zima1" + std::to_string(1000 + i).substr(1) + ".qvm";
    folder.Write(name, installment);
    paths.push_back(folder.Path(name));
  }
  return paths;
}

BenchProgram::BenchProgram() {
  glavni = CrosswordState{};
  const std::string folder = files::LogicPath(folder_.Path());
  toolkit::App::Folders({.own = folder, .shipped = folder});
  setenv("XDG_STATE_HOME", (folder_.Path() + "/state").c_str(), 1);
  setenv("XDG_CONFIG_HOME", (folder_.Path() + "/config").c_str(), 1);
  BindEvents();
  frm_glavni->Show();
}

BenchProgram::~BenchProgram() { UnloadForms(); }

void BenchProgram::Choose(const std::string& name) const {
  auto& list = frm_ucit_snimi->File1;
  if (list.ListCount() == 0) list.Path(files::LogicPath(folder_.Path()));
  otvori_dijalog(0);
  for (int row = 0; row < list.ListCount(); ++row) {
    if (list.List(row) != name) continue;
    list.ListIndex(row);
    return;
  }
  throw std::runtime_error("no such crossword: " + name);
}

void BenchProgram::Load() {
  dijalog_komanda(0);
  if (glavni.broj_pitanja == 0) throw std::runtime_error("the crossword did not load");
}

void BenchProgram::Zoom(double factor) {
  QWidget* window = frm_glavni->InnerWidget()->window();
  window->resize(QSize(640, 505) * factor);
  Paint();
}

void BenchProgram::Paint() { QApplication::processEvents(); }

void BenchProgram::Press(int key, bool with_control) {
  for (QWidget* box : QApplication::allWidgets()) {
    if (box->objectName() != QStringLiteral("txt_rec(0)")) continue;
    QKeyEvent press(QEvent::KeyPress, key, with_control ? Qt::ControlModifier : Qt::NoModifier);
    QApplication::sendEvent(box, &press);
    Paint();
    return;
  }
  throw std::runtime_error("no letter box");
}

}  // namespace kalvon::bench
