// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iterator>

#include "shell/toolkit/events/key_codes_p.h"

namespace toolkit {

namespace {

struct KeyCode {
  int key;
  int code;
};

constexpr KeyCode key_codes[] = {
    {Qt::Key_Backspace, 0x08},  {Qt::Key_Return, 0x0D},      {Qt::Key_Enter, 0x0D},
    {Qt::Key_Shift, 0x10},      {Qt::Key_Control, 0x11},     {Qt::Key_Alt, 0x12},
    {Qt::Key_Pause, 0x13},      {Qt::Key_CapsLock, 0x14},    {Qt::Key_Escape, 0x1B},
    {Qt::Key_Space, 0x20},      {Qt::Key_PageUp, 0x21},      {Qt::Key_PageDown, 0x22},
    {Qt::Key_End, 0x23},        {Qt::Key_Home, 0x24},        {Qt::Key_Left, 0x25},
    {Qt::Key_Up, 0x26},         {Qt::Key_Right, 0x27},       {Qt::Key_Down, 0x28},
    {Qt::Key_Insert, 0x2D},     {Qt::Key_Delete, 0x2E},      {Qt::Key_Semicolon, 0xBA},
    {Qt::Key_Colon, 0xBA},      {Qt::Key_Equal, 0xBB},       {Qt::Key_Plus, 0xBB},
    {Qt::Key_Comma, 0xBC},      {Qt::Key_Less, 0xBC},        {Qt::Key_Minus, 0xBD},
    {Qt::Key_Underscore, 0xBD}, {Qt::Key_Period, 0xBE},      {Qt::Key_Greater, 0xBE},
    {Qt::Key_Slash, 0xBF},      {Qt::Key_Question, 0xBF},    {Qt::Key_QuoteLeft, 0xC0},
    {Qt::Key_AsciiTilde, 0xC0}, {Qt::Key_BracketLeft, 0xDB}, {Qt::Key_BraceLeft, 0xDB},
    {Qt::Key_Backslash, 0xDC},  {Qt::Key_Bar, 0xDC},         {Qt::Key_BracketRight, 0xDD},
    {Qt::Key_BraceRight, 0xDD}, {Qt::Key_Apostrophe, 0xDE},  {Qt::Key_QuoteDbl, 0xDE},
};

// The shifted digits of the common layout, in the order of the digits.
constexpr Qt::Key shifted_digits[] = {Qt::Key_ParenRight,  Qt::Key_Exclam,    Qt::Key_At,
                                      Qt::Key_NumberSign,  Qt::Key_Dollar,    Qt::Key_Percent,
                                      Qt::Key_AsciiCircum, Qt::Key_Ampersand, Qt::Key_Asterisk,
                                      Qt::Key_ParenLeft};

constexpr int no_code = 0xFF;

}  // namespace

int KeyCodeOf(const QKeyEvent& event) {
  const int key = event.key();
  if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9)) return key;
  if (key >= Qt::Key_F1 && key <= Qt::Key_F16) return 0x70 + (key - Qt::Key_F1);
  for (const KeyCode& entry : key_codes)
    if (entry.key == key) return entry.code;
  const auto* digit = std::find(std::begin(shifted_digits), std::end(shifted_digits), key);
  if (digit != std::end(shifted_digits))
    return Qt::Key_0 + static_cast<int>(digit - std::begin(shifted_digits));
  return no_code;
}

int ShiftState(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

QString CharactersOf(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  const bool ctrl = modifiers.testFlag(Qt::ControlModifier);
  const bool alt_alone = modifiers.testFlag(Qt::AltModifier) && !ctrl;
  if (alt_alone || event.key() == Qt::Key_Delete) return {};
  // For some letters the host gives with Ctrl what it gives without.
  const bool types = !event.text().isEmpty() && event.text().front() >= u' ';
  return ctrl && types ? QString() : event.text();
}

}  // namespace toolkit
