// What is typed and pasted where only Latin-1 has a place.
#pragma once

class QLineEdit;
class QWidget;

namespace zol {

/// Shows under a widget that a character was not taken.
void say_refused(QWidget& widget);

/// Lets a box take characters of Latin-1 only: another one is not taken, nor a paste that has one, and the box says so.
void take_latin1_only(QLineEdit& edit);

}  // namespace zol
