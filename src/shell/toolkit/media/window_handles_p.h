// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace toolkit {

/// The number by which the logic names a widget, 0 for none. The widgets of controls are no windows
/// of the host, so they get numbers of our own, small enough for 16 bits.
int HandleOf(QWidget* widget);

/// The widget of a handle; null if it names none, or one that is gone.
QWidget* WidgetOf(int handle);

}  // namespace toolkit
