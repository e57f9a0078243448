// SPDX-License-Identifier: MIT
#include "shell/toolkit/windows/strip.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTest>

#include "files/run_time_error.h"
#include "shell/toolkit/control_form.h"

namespace toolkit::testing {

class StripTest : public ::testing::Test {
 protected:
  StripTest() {
    SetMenu();
    form.box.SetFocus();
    form.box.KeyDown = [this](int& code, int) { seen_by_box += static_cast<char>(code); };
    AfterEvents([this] { ++after_events; });
  }
  ~StripTest() override { AfterEvents(nullptr); }

  void SetMenu() {
    const auto undo = [this] {
      did += 'u';
      form.button.Click.Raise();
      SetMenu();
    };
    const auto can = [this] { return can_undo; };
    const auto page = [this] { did += 'p'; };
    strip.Menu(
        "Meni",
        {{"Undo", "Ctrl+Z;Ctrl+Left;Ctrl+Y", can, undo},
         {},
         {"Time", "", {}, [this] { did += 't'; }, [] { return true; }},
         {.text = "Page", .keys = "PgDown", .enabled = can, .action = page, .submenu = "Rows"},
         {"More", "", {}, [this] { did += 'm'; }}});
  }
  static QMenu* Opened() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }

  ControlForm form;
  Strip& strip = form.AddStrip();
  QLineEdit* const field = form.Widget<QLineEdit>("box");
  QPushButton* const button = form.Widget<QPushButton>("strip_menu");
  std::string did;
  std::string seen_by_box;
  bool can_undo = true;
  int after_events = 0;
};

TEST_F(StripTest, ItsKeysRunTheRowsThatCanRunAndNoControlSeesThem) {
  QTest::keyClick(field, Qt::Key_A);
  seen_by_box.clear();
  for (const auto key : {Qt::Key_Left, Qt::Key_Z, Qt::Key(u'З'), Qt::Key(u'Ж')}) {
    did.clear();
    QTest::sendKeyEvent(QTest::Click, field, key, QString(), Qt::ControlModifier);
    EXPECT_EQ(did, "u") << key;
  }
  QTest::keyClick(field, Qt::Key_PageDown);
  EXPECT_EQ(did, "up") << "a row of a row";
  can_undo = false;
  QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(did, "up") << "a row that cannot run keeps its keys";
  EXPECT_EQ(form.box.Text(), "a");
  EXPECT_EQ(seen_by_box, "\x11\x11\x11\x11\x11") << "the key Ctrl alone";
  QTest::keyClick(field, Qt::Key_PageDown);
  EXPECT_EQ(seen_by_box.back(), '\x22') << "but not a key alone";
  seen_by_box.clear();
  strip.Menu("Meni", {});
  QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(seen_by_box, "\x11Z") << "a key that the menu has no more";
  EXPECT_EQ(form.box.Text(), "");
}

TEST_F(StripTest, TheMenuOpensByF10AndByClickTellsWhatCanRunAndLeavesTheFocus) {
  QTest::keyClick(field, Qt::Key_F10);
  ASSERT_NE(Opened(), nullptr);
  EXPECT_EQ(Opened()->actions()[0]->text().toStdString(), "Undo\tCtrl+Z");
  EXPECT_TRUE(Opened()->actions()[2]->isChecked());
  QTest::keyClick(Opened(), Qt::Key_Escape);
  can_undo = false;
  for (const auto& [key, expected] : {std::pair(Qt::Key_Up, "m"), {Qt::Key_Down, "mu"}}) {
    QTest::mouseClick(button, Qt::LeftButton);
    ASSERT_NE(Opened(), nullptr);
    EXPECT_EQ(Opened()->actions()[0]->isEnabled(), can_undo);
    QTest::keyClick(Opened(), key);
    QTest::keyClick(Opened(), Qt::Key_Return);
    EXPECT_EQ(did, expected);
    EXPECT_EQ(QApplication::focusWidget(), field);
    can_undo = true;
  }
  form.Enabled(false);
  QTest::mouseClick(button, Qt::LeftButton);
  QTest::keyClick(field, Qt::Key_F10);
  QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Opened(), nullptr);
  EXPECT_EQ(did, "mu") << "the form is disabled";
}

TEST_F(StripTest, StandsUnderTheFormWhoseSizesAndTabsDoNotCountIt) {
  ControlForm other;
  other.Resize = [this] { did += 'r'; };
  const int height = other.Height();
  other.AddStrip();
  EXPECT_EQ(other.Height(), height);
  EXPECT_EQ(did, "");
  other.Height(height + 1500);
  EXPECT_EQ(other.Height(), height + 1500);
  EXPECT_EQ(did, "r");
  EXPECT_EQ(other.Widget("strip")->geometry(), QRect(0, 400, 400, 22));
  other.Caption("a[*].qvm");
  other.Modified(true);
  EXPECT_EQ(other.Host()->windowHandle()->title(), QStringLiteral("a[*].qvm*"));
  for (int i = 0; i < 8; ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->parentWidget(), other.InnerWidget());
  }
}

TEST_F(StripTest, ATextThatIsTooLongEndsInDotsAndIsWholeInItsTip) {
  strip.Status("34/120");
  const std::string many(90, 'm');
  for (const bool cut : {false, true}) {
    const std::string text = (cut ? many : "Reč") + "m<b>";
    strip.Text(text);
    QApplication::processEvents();
    const auto* label = form.Widget<QLabel>("strip_text");
    EXPECT_EQ(label->text().endsWith(u'…'), cut);
    EXPECT_EQ(label->toolTip().contains(QStringLiteral("m&lt;b&gt;")), cut);
    EXPECT_EQ(label->accessibleName().toStdString(), text);
    EXPECT_EQ(form.Widget<QLabel>("strip_status")->text(), QStringLiteral("34/120"));
  }
}

TEST_F(StripTest, TheActionAfterEventsRunsOnceForAHandlerAndThoseThatItCalls) {
  form.button.Click = [] { throw files::RuntimeError(files::error::invalid_call); };
  QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(did, "u") << "went on after the failure of a handler that it called";
  EXPECT_EQ(after_events, 2) << "the key Ctrl alone, and the row";
}

}  // namespace toolkit::testing
