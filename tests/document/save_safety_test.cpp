// SPDX-License-Identifier: MIT
#include <random>

#include "support/program_test.h"

namespace kalvon::testing {
namespace {

/// Files that a save must leave as they are.
class SaveSafetyTest : public ProgramTest {
 protected:
  void ExpectSaveLeaves(const std::string& name) {
    const std::string before = ReadFile(name);
    CopySample("proba.qvm");
    Load("proba.qvm");
    Load(name);
    ClickButton("cmd_glavni(1)");
    EXPECT_EQ(ReadFile(name), before) << name;
  }
};

TEST_F(SaveSafetyTest, WhatIsNoCrosswordStaysWhole) {
  std::string binary(100000, '\0');
  std::mt19937 random(7);
  for (char& byte : binary) byte = static_cast<char>(random());
  for (std::size_t i = 500; i < binary.size(); i += 500) binary.replace(i, 2, "\r\n");
  WriteFile("binarna.qvm", binary);
  WriteFile("bezmere.qvm",
            "\r\nNaziv: Bez mere\r\nDimenzije\r\n1\r\n1\r\n0\r\n0\r\n0\r\n0\r\n"
            "M$0$1$1$00\r\n011$$$$Prvi$Drugi$\r\n");
  WriteFile("bezpojma.qvm",
            "\r\n\r\nD:X=  1 Y=  1\r\n\r\n\r\n\r\n\r\n\r\n\r\n"
            "Obican red\r\nJos jedan\r\nI tre}i\r\n");
  for (const char* name : {"binarna.qvm", "bezmere.qvm", "bezpojma.qvm"}) ExpectSaveLeaves(name);
}

TEST_F(SaveSafetyTest, AFileThatBecameAnotherCrosswordStays) {
  CopySample("proba.qvm");
  Load("proba.qvm");
  ClickButton("cmd_glavni(3)");
  std::string other = ReadFile("proba.qvm");
  other.replace(other.find("M$0"), 1, "D");
  WriteFile("proba.qvm", other);
  ClickButton("cmd_glavni(1)");
  EXPECT_EQ(ReadFile("proba.qvm"), other);
}

TEST_F(SaveSafetyTest, NamesThatDifferOnlyInCapitalsAreDifferentFiles) {
  CopySample("velika.qvm");
  std::filesystem::create_directory(folder() / "igre");
  std::filesystem::create_directory(folder() / "Igre");
  for (const char* name : {"igre/Proba.qvm", "igre/proba.qvm", "Igre/proba.qvm"})
    std::filesystem::copy_file(std::filesystem::path(SAMPLES_FOLDER) / "proba.qvm",
                               folder() / name);
  const std::string before = ReadFile("Igre/proba.qvm");
  frm_ucit_snimi->Dir1.Path(frm_ucit_snimi->Dir1.Path() + "\\Igre");
  Load("proba.qvm");
  ClickButton("cmd_glavni(3)");
  ClickButton("cmd_glavni(1)");
  EXPECT_NE(ReadFile("Igre/proba.qvm"), before);
  EXPECT_EQ(ReadFile("igre/proba.qvm"), before);

  frm_ucit_snimi->Dir1.Path(frm_ucit_snimi->Dir1.Path() + "\\..\\igre");
  Load("Proba.qvm");
  ClickButton("cmd_glavni(3)");
  ClickButton("cmd_glavni(1)");
  EXPECT_NE(ReadFile("igre/Proba.qvm"), before);
  EXPECT_EQ(ReadFile("igre/proba.qvm"), before);
}

}  // namespace
}  // namespace kalvon::testing
