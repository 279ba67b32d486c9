// What is typed and pasted where only Latin-1 has a place.
#pragma once

class QKeyEvent;
class QLineEdit;
class QString;
class QWidget;

namespace zol {

/// Key code of a key event as handlers know it: 13 Enter, 8 backspace, a Latin-1 character; 0 for any other key.
[[nodiscard]] int key_code(const QKeyEvent& event);

/// Shows a line under a widget for a while.
void say_beside(QWidget& widget, const QString& text);

/// Shows under a widget that a character was not taken.
void say_refused(QWidget& widget);

/// Lets a box take characters of Latin-1 only: another one is not taken, nor a paste that has one, and the box says so.
void take_latin1_only(QLineEdit& edit);

}  // namespace zol
