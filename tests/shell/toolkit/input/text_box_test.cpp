// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>

#include "shell/toolkit/control_form.h"

namespace toolkit::testing {

class TextBoxTest : public ::testing::Test {
 protected:
  TextBoxTest() {
    form.box.SetFocus();
    form.box.KeyDown = [this](int& code, int shift) { raised.insert(raised.end(), {code, shift}); };
    form.box.KeyPress = [this](int& code) {
      raised.push_back(code);
      if (drop) code = 0;
    };
  }

  ControlForm form;
  QLineEdit* const field = form.Widget<QLineEdit>("box");
  std::vector<int> raised;  ///< Codes of the key, Shift states, codes of the character.
  bool drop = false;
};

TEST_F(TextBoxTest, KeysAndCharactersAreDifferentNumbers) {
  const std::tuple<Qt::Key, const char*, Qt::KeyboardModifier, std::vector<int>> rows[] = {
      {Qt::Key_Period, ".", Qt::NoModifier, {0xBE, 0, '.'}},
      {Qt::Key_Percent, "%", Qt::ShiftModifier, {0x10, 1, '5', 1, '%'}},
      {Qt::Key_A, "\x01", Qt::ControlModifier, {0x11, 2, 'A', 2, 1}},
      {Qt::Key_Q, "q", Qt::AltModifier, {0x12, 4, 'Q', 4}},
      {Qt::Key(u'З'), "з", Qt::ControlModifier, {0x11, 2, 0xFF, 2}},
      {Qt::Key_QuoteLeft, "`", Qt::ControlModifier, {0x11, 2, 0xC0, 2}},
      {Qt::Key_Delete, "\x7F", Qt::NoModifier, {0x2E, 0}},
      {Qt::Key_Enter, "\r", Qt::NoModifier, {0x0D, 0, 0x0D}},
      {Qt::Key_Hyper_L, "", Qt::NoModifier, {0xFF, 0}}};
  for (const auto& [key, text, modifiers, expected] : rows) {
    raised.clear();
    QTest::sendKeyEvent(QTest::Click, field, key, QString::fromUtf8(text), modifiers);
    EXPECT_EQ(raised, expected);
  }
}

TEST_F(TextBoxTest, ShowsAndTakesCharactersInTheCodeOfItsFont) {
  const std::tuple<const char*, int, std::string, const char*, const char*> rows[] = {
      {"Arial", 238, "\xC6\xF0\x8A?", "ĆđŠ?", "ĆđŠж"},
      {"Arial", 204, "\xE6\x80\x8A?", "жЂЉ?", "жЂЉć"},
      {"Kalvon", 0, "Re~\\a?", "RečĐa?", "RečĐaж"},
      {"Arial", 0, "Reč", "Reč", "Reč"}};
  for (const auto& [font, charset, codes, shown, typed] : rows) {
    form.box.FontName(font);
    form.box.Charset(charset);
    form.box.Text(codes);
    EXPECT_EQ(field->text().toStdString(), shown);
    form.box.Text("");
    QInputMethodEvent composed;
    composed.setCommitString(QString::fromUtf8(typed));
    QApplication::sendEvent(field, &composed);
    EXPECT_EQ(form.box.Text(), codes);
    drop = true;
    QApplication::sendEvent(field, &composed);
    QTest::keyClick(field, Qt::Key_Backspace);
    EXPECT_EQ(form.box.Text(), codes) << "dropped";
    drop = false;
  }
  form.box.Text("Re\xE8i");
  EXPECT_EQ(field->text().toStdString(), "Reèi") << "no UTF-8";
  form.box.FontName("Kalvon");
  form.box.Text("X= 15 Qx");
  EXPECT_EQ(field->text().toStdString(), "X= 15 Ljdž");
  form.box.FontSize(18);
  EXPECT_EQ(field->font().pixelSize(), 22);
}

}  // namespace toolkit::testing
