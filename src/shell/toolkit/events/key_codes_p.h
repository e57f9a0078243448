// SPDX-License-Identifier: MIT
#pragma once

#include <QKeyEvent>

namespace toolkit {

/// Code of the key: the virtual key numbers of Windows, 255 for a key without one.
int KeyCodeOf(const QKeyEvent& event);

/// State of the keys Shift (1), Ctrl (2) and Alt (4).
int ShiftState(Qt::KeyboardModifiers modifiers);

/// The characters that the key gives, none for a key that only edits or that calls a mnemonic. With
/// Ctrl it gives control characters alone.
QString CharactersOf(const QKeyEvent& event);

}  // namespace toolkit
