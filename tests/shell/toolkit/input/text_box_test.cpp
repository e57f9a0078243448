// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QTest>
#include <vector>

#include "shell/toolkit/control_form.h"

namespace toolkit::testing {
namespace {

class TextBoxTest : public ::testing::Test {
 protected:
  void SetUp() override {
    form.Show();
    QApplication::setActiveWindow(form.InnerWidget());
    form.box.SetFocus();
    form.box.KeyDown = [this](int& code, int) {
      keys.push_back(code);
      if (drop_keys) code = 0;
    };
    form.box.KeyPress = [this](int& code) {
      characters.push_back(code);
      if (drop_characters) code = 0;
    };
  }

  QWidget* field() { return form.Widget("box"); }
  void Type(const char* utf8, Qt::Key key) {
    QTest::sendKeyEvent(QTest::Click, field(), key, QString::fromUtf8(utf8), Qt::NoModifier);
  }

  ControlForm form;
  std::vector<int> keys;
  std::vector<int> characters;
  bool drop_keys = false;
  bool drop_characters = false;
};

TEST_F(TextBoxTest, KeysAndCharactersAreDifferentNumbers) {
  Type(".", Qt::Key_Period);
  Type("%", Qt::Key_Percent);
  Type("'", Qt::Key_Apostrophe);
  Type("(", Qt::Key_ParenLeft);
  EXPECT_EQ(characters, (std::vector<int>{0x2E, 0x25, 0x27, 0x28}));
  for (const int key : keys) EXPECT_TRUE(key < 0x23 || (key > 0x28 && key != 0x2E)) << key;
  keys.clear();
  characters.clear();
  QTest::keyClick(field(), Qt::Key_Delete);
  QTest::keyClick(field(), Qt::Key_Left);
  QTest::keyClick(field(), Qt::Key_Return);
  QTest::keyClick(field(), Qt::Key_Backspace);
  EXPECT_EQ(keys, (std::vector<int>{0x2E, 0x25, 0x0D, 0x08}));
  EXPECT_EQ(characters, (std::vector<int>{0x0D, 0x08}));
}

TEST_F(TextBoxTest, ADroppedCharacterChangesNothing) {
  Type("a", Qt::Key_A);
  EXPECT_EQ(form.box.Text(), "a");
  drop_characters = true;
  Type("b", Qt::Key_B);
  EXPECT_EQ(form.box.Text(), "a");
  drop_characters = false;
  drop_keys = true;
  QTest::keyClick(field(), Qt::Key_Backspace);
  EXPECT_EQ(form.box.Text(), "a") << "the key was dropped";
}

TEST_F(TextBoxTest, TheMouseAndTheClipboardChangeNothing) {
  QApplication::clipboard()->setText("tekst");
  drop_keys = drop_characters = true;
  QTest::keyClick(field(), Qt::Key_V, Qt::ControlModifier);
  QTest::mouseClick(field(), Qt::MiddleButton);
  EXPECT_EQ(form.box.Text(), "");
  EXPECT_FALSE(field()->acceptDrops());
}

struct TypedCharacter {
  const char* name;
  const char* font;
  int charset;
  const char* typed;
  int code;
};

class TypedCharacterTest : public TextBoxTest,
                           public ::testing::WithParamInterface<TypedCharacter> {};

TEST_P(TypedCharacterTest, ArrivesInTheCodeOfTheControl) {
  form.box.FontName(GetParam().font);
  form.box.Charset(GetParam().charset);
  Type(GetParam().typed, Qt::Key_unknown);
  EXPECT_EQ(characters, std::vector<int>{GetParam().code});
}

INSTANTIATE_TEST_SUITE_P(
    Characters, TypedCharacterTest,
    ::testing::Values(TypedCharacter{"LatinC", "Arial", 238, "ć", 0xE6},
                      TypedCharacter{"LatinDj", "Arial", 238, "Đ", 0xD0},
                      TypedCharacter{"CyrillicZhe", "Arial", 204, "ж", 0xE6},
                      TypedCharacter{"CyrillicInLatinPage", "Arial", 238, "ж", '?'},
                      TypedCharacter{"LatinInCyrillicPage", "Arial", 204, "ć", '?'},
                      TypedCharacter{"NationalLatin", "Kalvon", 0, "š", '{'},
                      TypedCharacter{"NationalCyrillic", "C_Kalvon", 0, "ш", '{'},
                      TypedCharacter{"NationalDigraph", "C_Kalvon", 0, "љ", 'q'},
                      TypedCharacter{"NationalForeign", "Kalvon", 0, "ж", '?'},
                      TypedCharacter{"Ascii", "C_Kalvon", 0, "a", 'a'}),
    [](const auto& row) { return row.param.name; });

TEST_F(TextBoxTest, AComposedLetterIsACharacterToo) {
  form.box.FontName("Arial");
  form.box.Charset(238);
  drop_characters = true;
  QInputMethodEvent composed;
  composed.setCommitString(QString::fromUtf8("č"));
  QApplication::sendEvent(field(), &composed);
  EXPECT_EQ(characters, std::vector<int>{0xE8});
  EXPECT_EQ(form.box.Text(), "");
}

TEST_F(TextBoxTest, ShowsItsTextByFontAndCharset) {
  auto* line = form.Widget<QLineEdit>("box");
  form.box.Text("\xC6");
  form.box.FontName("Arial");
  form.box.Charset(238);
  EXPECT_EQ(line->text(), QString::fromUtf8("Ć"));
  form.box.Charset(204);
  EXPECT_EQ(line->text(), QString::fromUtf8("Ж"));
  form.box.FontName("Kalvon");
  form.box.Text("Re~ X= 15 Q");
  EXPECT_EQ(line->text(), QString::fromUtf8("Reč X= 15 Lj"));
  EXPECT_EQ(form.box.Text(), "Re~ X= 15 Q");
}

TEST_F(TextBoxTest, AFailingKeyDownStillLetsTheCharacterCome) {
  form.box.KeyDown = [](int& code, int) {
    code = 0;
    throw files::RuntimeError(files::error::invalid_call);
  };
  Type("a", Qt::Key_A);
  EXPECT_EQ(characters, std::vector<int>{'a'});
}

}  // namespace
}  // namespace toolkit::testing
