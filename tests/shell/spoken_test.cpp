// SPDX-License-Identifier: MIT
#include <QAccessible>
#include <set>
#include <vector>

#include "support/puzzle_test.h"

namespace kalvon::testing {

/// Uses the program as assistive technology does.
class Spoken : public PuzzleTest {
 protected:
  [[nodiscard]] QAccessibleInterface* Of(const std::string& control) const {
    return QAccessible::queryAccessibleInterface(Widget(control));
  }
  [[nodiscard]] QAccessibleInterface* Cell(int x, int y) const {
    return Of("pic_ukr")->tableInterface()->cellAt(y - 1, x - 1);
  }
  static void Press(QAccessibleInterface* what) {
    what->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  }
  void Write(int box, const QString& letter) const {
    Of("txt_rec(" + std::to_string(box) + ")")->editableTextInterface()->replaceText(0, 1, letter);
  }
  static std::string Name(QAccessibleInterface* of) {
    return of->text(QAccessible::Name).toStdString();
  }
  static std::string Description(QAccessibleInterface* of) {
    return of->text(QAccessible::Description).toStdString();
  }
};

const CrosswordText zoo = {
    .rows = {"MIR", "A#A", "KIT"},
    .clues = {{"A1", "Suprotno od rata"}, {"D1", "Poqski ^vor"}, {"A3", "/pesma.mid/"}}};

/// The names of what a form shows for use.
static std::multiset<std::string> NamesIn(QAccessibleInterface* form) {
  static const std::set<QAccessible::Role> named = {
      QAccessible::PushButton, QAccessible::EditableText, QAccessible::ScrollBar,
      QAccessible::ComboBox,   QAccessible::List,         QAccessible::Table,
      QAccessible::Graphic,    QAccessible::StatusBar};
  // Inside a text or a box that drops down everything goes by the name of the whole.
  static const std::set<QAccessible::Role> closed = {QAccessible::EditableText,
                                                     QAccessible::ComboBox};
  std::multiset<std::string> names;
  std::vector<QAccessibleInterface*> found = {form};
  for (std::size_t at = 0; at < found.size(); ++at) {
    QAccessibleInterface* const one = found[at];
    if (one->state().invisible) continue;
    if (named.contains(one->role())) names.insert(one->text(QAccessible::Name).toStdString());
    for (int i = 0; i < (closed.contains(one->role()) ? 0 : one->childCount()); ++i)
      found.push_back(one->child(i));
  }
  return names;
}

TEST_F(Spoken, EverythingThatCanBeUsedHasANameOfItsOwn) {
  Solve(zoo);
  for (const int language : {0, 1}) {
    Choose(language, 0);
    for (const char* opens : {"", "cmd_glavni(0)", "cmd_glavni(5)"}) {
      if (*opens != '\0') ClickButton(opens);
      std::multiset<std::string> names;
      for (const char* form : {"frm_glavni", "frm_ucit_snimi", "frm_opcije"})
        names.merge(NamesIn(Of(form)));
      EXPECT_FALSE(names.contains(""));
      EXPECT_FALSE(names.contains("✔"));
      for (const std::string& name : names) EXPECT_EQ(names.count(name), 1) << name;
      EXPECT_EQ(names.contains("Мрежа"), language == 0);
      if (std::string(opens) == "cmd_glavni(0)") ClickButton("cmd_ucit(1)");
      if (std::string(opens) == "cmd_glavni(5)") ClickButton("cmd_opcije(0)");
    }
  }
}

TEST_F(Spoken, CellsAndCluesSayWhatIsSeenOfThem) {
  Solve(zoo);
  auto* grid = Of("pic_ukr")->tableInterface();
  EXPECT_EQ(grid->rowCount() * 10 + grid->columnCount(), 33);
  EXPECT_EQ(grid->selectedCellCount(), 3);
  EXPECT_EQ(Name(Cell(2, 2)), "blokirano");
  EXPECT_EQ(Name(Cell(1, 1)), "prazno");
  EXPECT_EQ(Description(Cell(1, 1)), "1 vodoravno: SUPROTNO OD RATA; 1 uspravno: POLjSKI ČVOR");
  EXPECT_EQ(Description(Cell(1, 2)), "1 uspravno: POLjSKI ČVOR");
  EXPECT_EQ(Name(Of("pic_tekst(1)")->child(0)), "1: POLjSKI ČVOR");
  EXPECT_EQ(Description(Of("pic_tekst(0)")->child(1)), "muzika");
  EXPECT_EQ(Description(Of("pic_tekst(0)")->child(0)), "");
  EXPECT_TRUE(Of("pic_tekst(0)")->child(0)->state().selected);
  EXPECT_FALSE(Of("pic_tekst(1)")->child(0)->state().selected);
  EXPECT_EQ(Cell(3, 2)->rect().center(),
            Widget("pic_ukr")->mapToGlobal(QPoint(2 * 28 + 13, 28 + 13)));
  QAccessibleInterface* const last = Of("pic_tekst(0)")->child(1);
  frm_glavni->scr_tekst(0).Value(2);
  EXPECT_FALSE(last->isValid()) << "the page has one row";
  EXPECT_EQ(Name(last), "");
  Choose(0, 0);
  EXPECT_EQ(Description(Cell(1, 2)), "1 усправно: ПОЉСКИ ЧВОР");
}

TEST_F(Spoken, APuzzleIsSolvedByPressesAndWritingAlone) {
  Solve(zoo);
  const std::pair<const char*, QString> words[] = {{"pic_tekst(0)", "mir"},
                                                   {"pic_tekst(0)", "kit"},
                                                   {"pic_tekst(1)", "mak"},
                                                   {"pic_tekst(1)", "rat"}};
  int clue = 0;
  for (const auto& [list, letters] : words) {
    Press(Of(list)->child(clue++ % 2));
    for (int box = 0; box < 3; ++box) Write(box, letters.mid(box, 1));
    Press(Of("pic_ukr"));
  }
  EXPECT_EQ(Letters(), (std::vector<std::string>{"MIR", "A A", "KIT"}));
  ExpectScreenOfState();
}

TEST_F(Spoken, APressIsAClick) {
  Solve(zoo);
  Press(Cell(3, 3));
  EXPECT_EQ(Selection(), (Word{1, 1, 3, 3, 3}));
  ClickButton("cmd_glavni(0)");
  Press(Cell(1, 1));
  Press(Of("pic_tekst(0)")->child(0));
  Write(0, "x");
  EXPECT_EQ(Selection(), (Word{1, 1, 3, 3, 3})) << "the dialog is open";
  EXPECT_EQ(glavni.rec_tekst, "___");
}

TEST_F(Spoken, ACellOutOfSightIsPressedAllTheSame) {
  Solve(Qvm(std::vector<std::string>(20, std::string(20, 'A'))));
  EXPECT_TRUE(Cell(20, 20)->state().offscreen);
  Press(Cell(20, 20));
  EXPECT_FALSE(Cell(20, 20)->state().offscreen);
  EXPECT_TRUE(Cell(20, 20)->state().selected);
  ExpectScreenOfState();
}

}  // namespace kalvon::testing
