// Windows on small screens.
#pragma once

class QMainWindow;
class QWidget;

namespace zol {

/// Keeps a window within the screen: it begins no larger, and where its widgets need more room than there is, they
/// scroll.
void fit_to_screen(QMainWindow& window);

/// Moves a window to where it covers the least of another one, and then of the others.
void place_beside(QWidget& window, const QWidget& other);

}  // namespace zol
