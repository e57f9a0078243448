// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>

#include "shell/toolkit/control_form.h"

namespace toolkit::testing {
namespace {

class TextBoxTest : public ::testing::Test {
 protected:
  TextBoxTest() {
    form.box.SetFocus();
    form.box.KeyDown = [this](int& code, int shift) {
      raised.insert(raised.end(), {code, shift});
      if (drop) code = 0;
    };
    form.box.KeyPress = [this](int& code) {
      raised.push_back(code);
      if (drop) code = 0;
    };
  }

  void Type(Qt::Key key, const char* text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    raised.clear();
    QTest::sendKeyEvent(QTest::Click, field, key, QString::fromUtf8(text), modifiers);
  }

  ControlForm form;
  QLineEdit* const field = form.Widget<QLineEdit>("box");
  std::vector<int> raised;  ///< Codes of the key, Shift states, codes of the character.
  bool drop = false;
};

TEST_F(TextBoxTest, KeysAndCharactersAreDifferentNumbers) {
  const struct {
    Qt::Key key;
    const char* text;
    Qt::KeyboardModifiers modifiers;
    std::vector<int> raised;
  } rows[] = {{Qt::Key_Period, ".", Qt::NoModifier, {0xBE, 0, '.'}},
              {Qt::Key_Percent, "%", Qt::ShiftModifier, {0x10, 1, '5', 1, '%'}},
              {Qt::Key_A, "\x01", Qt::ControlModifier, {0x11, 2, 'A', 2, 1}},
              {Qt::Key_Q, "q", Qt::AltModifier, {0x12, 4, 'Q', 4}},
              {Qt::Key_F2, "", Qt::NoModifier, {0x71, 0}},
              {Qt::Key_Delete, "\x7F", Qt::NoModifier, {0x2E, 0}},
              {Qt::Key_Enter, "\r", Qt::NoModifier, {0x0D, 0, 0x0D}},
              {Qt::Key_Hyper_L, "", Qt::NoModifier, {0xFF, 0}}};
  for (const auto& row : rows) {
    Type(row.key, row.text, row.modifiers);
    EXPECT_EQ(raised, row.raised);
  }
}

TEST_F(TextBoxTest, ShowsAndTakesCharactersInTheCodeOfItsFont) {
  const struct {
    const char* font;
    int charset;
    std::string codes;
    const char* shown;
    const char* typed = shown;
  } rows[] = {{"Arial", 238, "\xC6\xF0\x8A?", "ĆđŠ?", "ĆđŠж"},
              {"Arial", 204, "\xE6\x80\x8A?", "жЂЉ?", "жЂЉć"},
              {"Kalvon", 0, "Re~\\a?", "RečĐa?", "RečĐaж"},
              {"C_Kalvon", 0, "Re~Qx[?", "РечЉџШ?", "РечЉџШć"},
              {"Arial", 0, "Reč", "Reč"}};
  for (const auto& row : rows) {
    form.box.FontName(row.font);
    form.box.Charset(row.charset);
    form.box.Text(row.codes);
    EXPECT_EQ(field->text().toStdString(), row.shown);
    form.box.Text("");
    QInputMethodEvent composed;
    composed.setCommitString(QString::fromUtf8(row.typed));
    QApplication::sendEvent(field, &composed);
    EXPECT_EQ(form.box.Text(), row.codes);
    drop = true;
    QApplication::sendEvent(field, &composed);
    Type(Qt::Key_Backspace, "\b");
    EXPECT_EQ(form.box.Text(), row.codes) << "dropped";
    drop = false;
  }
  form.box.Text("Re\xE8i");
  EXPECT_EQ(field->text().toStdString(), "Reèi") << "no UTF-8";
  form.box.Charset(238);
  form.box.Text("\x81");
  EXPECT_EQ(field->text().toStdString(), "\uFFFD") << "not assigned";
  form.box.FontName("Kalvon");
  form.box.Text("X= 15 Qx");
  EXPECT_EQ(field->text().toStdString(), "X= 15 Ljdž");
}

}  // namespace
}  // namespace toolkit::testing
