// The look of all windows: light, dark, as the desktop has it, or plain (no style of ours, for people with settings of
// their own). It is chosen in the menu "View" of every window, holds at once and is kept.
#pragma once

#include <QSettings>
#include <QString>

#include "shell/desktop/look/colours.h"

class QMainWindow;
class QMenu;

namespace zol {

enum class Look { AsDesktop, Light, Dark, Plain };

/// Where the choice and what is folded are kept, apart from the work.
[[nodiscard]] QSettings& look_settings();

[[nodiscard]] Look kept_look();
/// Shows all windows so. Nothing of it goes into pictures, files or exports.
void use_look(Look look);
[[nodiscard]] Look look_in_use();
/// From now on "as the desktop" changes with the desktop, where that says what it is.
void follow_desktop();
/// The shade that a look has now. The desktop's is what its settings portal says, otherwise that of the palette that
/// the program was given at its start.
[[nodiscard]] Shade shade_of(Look look);

/// The style sheet of what the style does not draw, with the colours put in.
[[nodiscard]] QString style_sheet(Shade shade);

/// The menu "View" of a window, made when there is none.
[[nodiscard]] QMenu& view_menu(QMainWindow& window);
/// The choice of the look and, where there is a picture, F9 for only the picture.
void offer_view(QMainWindow& window);

/// What the layout declares by properties and a designer does not know: widths by digits (`digits`), icons (`ink`),
/// names for who does not see them.
void dress(QMainWindow& window);

}  // namespace zol
