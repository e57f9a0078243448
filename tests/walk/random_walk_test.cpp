// SPDX-License-Identifier: MIT
#include <QAbstractItemView>
#include <QApplication>
#include <QScrollBar>
#include <QWheelEvent>
#include <functional>
#include <random>
#include <vector>

#include "shell/toolkit/windows/application.h"
#include "support/program_test.h"
#include "walk/invariants.h"

namespace kalvon::testing {
namespace {

/// A user who does anything, in an order that a seed decides.
class RandomWalk : public ProgramTest, public ::testing::WithParamInterface<unsigned> {
 protected:
  static constexpr int events = 1000;

  void SetUp() override {
    ProgramTest::SetUp();
    for (const char* name : {"proba.qvm", "velika.qvm", "zima1001.qvm", "zima1002.qvm",
                             "zima1003.qvm", "leto1001.qvm", "leto1003.qvm"})
      CopySample(name);
    WriteFile("losa.qvm", "\r\nNaziv: Ima samo dva reda\r\n");
    Load("velika.qvm");
    invariants_.TakeCrossword();
    random_.seed(GetParam());
  }

  int Below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

  void Step() {
    const std::vector<Action>& actions = DialogOpen()    ? in_dialog_
                                         : OptionsOpen() ? in_options_
                                                         : on_main_form_;
    const Action& action =
        actions.at(static_cast<std::size_t>(Below(static_cast<int>(actions.size()))));
    SCOPED_TRACE(action.name);
    const std::string before = glavni.rec_tekst;
    action.act();
    // What was typed lasts until something fills the editor anew.
    if (!action.types && glavni.rec_tekst != before) typing_ = false;
    QApplication::processEvents();
    invariants_.Expect(typing_, OptionsOpen());
  }

 private:
  struct Action {
    const char* name;
    std::function<void()> act;
    bool types = false;
  };

  static bool DialogOpen() { return frm_ucit_snimi->Visible(); }
  static bool OptionsOpen() { return frm_opcije->Visible(); }

  void ClickGrid() { ClickPicture("pic_ukr", Below(420), Below(420), 1 + Below(2)); }

  void ClickList() {
    ClickPicture(Below(2) == 0 ? "pic_tekst(0)" : "pic_tekst(1)", Below(161), Below(210),
                 1 + Below(2));
  }

  void Scroll() {
    const char* const bars[] = {"scr_hor", "scr_ver", "scr_tekst(0)", "scr_tekst(1)"};
    constexpr QAbstractSlider::SliderAction actions[] = {
        QAbstractSlider::SliderSingleStepAdd, QAbstractSlider::SliderSingleStepSub,
        QAbstractSlider::SliderPageStepAdd,   QAbstractSlider::SliderPageStepSub,
        QAbstractSlider::SliderToMaximum,     QAbstractSlider::SliderToMinimum};
    Widget<QScrollBar>(bars[Below(4)])->triggerAction(actions[Below(6)]);
  }

  void Wheel() {
    const char* const pictures[] = {"pic_ukr", "pic_tekst(0)", "pic_tekst(1)"};
    QWidget* picture = Widget(pictures[Below(3)]);
    QWheelEvent event({5, 5}, picture->mapToGlobal(QPointF(5, 5)), {},
                      {0, Below(2) == 0 ? 120 : -120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(picture, &event);
  }

  void FocusBox() {
    auto* box = Widget("txt_rec(" + std::to_string(Below(15)) + ")");
    QTest::mouseClick(box, Qt::LeftButton);
  }

  void TypeLetter() {
    const char* const letters[] = {"a", "q", "X", "{", "~", "[", "š", "Đ", "љ", "Ж",
                                   "а", "@", ".", "%", "1", "w", "t", "'", "(", "e"};
    if (!FocusedControl().starts_with("txt_rec")) FocusBox();
    typing_ = true;
    Type(letters[Below(20)]);
  }

  void PressEditingKey() {
    constexpr Qt::Key keys[] = {Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Home,      Qt::Key_End,
                                Qt::Key_Space, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Up};
    if (!FocusedControl().starts_with("txt_rec")) FocusBox();
    typing_ = true;
    PressKey(keys[Below(8)]);
  }

  void Enter() {
    if (!FocusedControl().starts_with("txt_rec")) FocusBox();
    PressKey(Qt::Key_Return);
    typing_ = false;
  }

  void OpenDialog() {
    ClickButton("cmd_glavni(0)");
    QApplication::setActiveWindow(Widget("frm_ucit_snimi"));
  }

  void ChooseAnyFile() {
    auto* list = Widget<QAbstractItemView>("File1");
    const QModelIndex row = list->model()->index(Below(list->model()->rowCount()), 0);
    list->scrollTo(row);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(row).center());
  }

  void FinishLoad() {
    ClickButton("cmd_ucit(0)");
    QApplication::setActiveWindow(Widget("frm_glavni"));
    invariants_.TakeCrossword();
    typing_ = false;
  }

  void CancelDialog() {
    ClickButton("cmd_ucit(1)");
    QApplication::setActiveWindow(Widget("frm_glavni"));
  }

  void ChooseOption() {
    const char* const options[] = {"opt_opcije(0)", "opt_opcije(1)", "opt_opcije1(0)",
                                   "opt_opcije1(1)"};
    QTest::mouseClick(Widget(options[Below(4)]), Qt::LeftButton, {}, {8, 8});
  }

  void PressOptionsButton() {
    const int button = 2 + Below(4);
    ClickButton("cmd_opcije(" + std::to_string(button) + ")");
    if (button != 4) typing_ = false;
  }

  void CloseOptions() {
    ClickButton("cmd_opcije(0)");
    QApplication::setActiveWindow(Widget("frm_glavni"));
    typing_ = false;
  }

  std::mt19937 random_;
  Invariants invariants_;
  bool typing_ = false;

  const std::vector<Action> on_main_form_ = {
      {"click in the grid", [this] { ClickGrid(); }},
      {"click in the grid", [this] { ClickGrid(); }},
      {"click in the grid", [this] { ClickGrid(); }},
      {"click in a list", [this] { ClickList(); }},
      {"click in a list", [this] { ClickList(); }},
      {"scroll", [this] { Scroll(); }},
      {"wheel", [this] { Wheel(); }},
      {"letter", [this] { TypeLetter(); }, true},
      {"letter", [this] { TypeLetter(); }, true},
      {"letter", [this] { TypeLetter(); }, true},
      {"key", [this] { PressEditingKey(); }, true},
      {"enter", [this] { Enter(); }},
      {"solve the word", [this] { ClickButton("cmd_glavni(3)"); }},
      {"erase the word", [this] { ClickButton("cmd_glavni(4)"); }},
      {"save", [this] { ClickButton("cmd_glavni(1)"); }},
      {"options", [this] { ClickButton("cmd_glavni(5)"); }},
      {"dialog", [this] { OpenDialog(); }},
  };
  const std::vector<Action> in_dialog_ = {
      {"choose a file", [this] { ChooseAnyFile(); }},
      {"load", [this] { FinishLoad(); }},
      {"look at the folder again", [] { frm_ucit_snimi->Dir1.Change.Raise(); }},
      {"cancel", [this] { CancelDialog(); }},
      {"click behind the dialog", [this] { ClickGrid(); }},
      {"type behind the dialog", [this] { QTest::keyClick(Widget("txt_rec(0)"), Qt::Key_A); }},
  };
  const std::vector<Action> in_options_ = {
      {"choose an option", [this] { ChooseOption(); }},
      {"choose an option", [this] { ChooseOption(); }},
      {"command on the puzzle", [this] { PressOptionsButton(); }},
      {"close the options", [this] { CloseOptions(); }},
      {"click behind the options", [this] { ClickList(); }},
  };
};

TEST_P(RandomWalk, KeepsEverythingInForm) {
  for (int event = 0; event < events && !HasFailure(); ++event) {
    SCOPED_TRACE("event " + std::to_string(event));
    Step();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalk, ::testing::Values(1U, 2U, 3U),
                         ::testing::PrintToStringParamName());

}  // namespace
}  // namespace kalvon::testing
