// Windows on small screens.
#pragma once

class QMainWindow;

namespace zol {

/// Draws widgets closer to each other where the screen has few lines, as a scaled one of a portable computer.
void use_fitting_style();

/// Keeps a window within the screen: it begins no larger, and where its widgets need more room than there is, they
/// scroll.
void fit_to_screen(QMainWindow& window);

}  // namespace zol
