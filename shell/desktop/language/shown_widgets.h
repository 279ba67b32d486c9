// Texts of widgets in the language in use. Widgets and the code that sets their texts know English alone: what is set
// is translated when the widget comes up, is laid out anew or its menu changes, and its English text is kept beside it.
#pragma once

#include <QString>

class QObject;
class QWidget;

namespace zol {

/// The texts of a window, of its menus and of all in it. Mnemonics are shared out anew, each letter once in the window
/// and once in a menu. The window is told by QEvent::LanguageChange when any has changed.
void show_widget_texts(QWidget& top);
/// Those of all windows.
void show_all_widgets();
/// Whether widgets that come up or change are followed: in English nothing has to be done.
void follow_widgets(bool follow);

/// The English text of a property.
[[nodiscard]] QString source_text(const QObject& object, const char* property);

/// While a window is made its texts stay English: the code that makes it reads them.
class TextsHeld {
 public:
  TextsHeld();
  TextsHeld(const TextsHeld&) = delete;
  TextsHeld& operator=(const TextsHeld&) = delete;
  ~TextsHeld();
};

}  // namespace zol
