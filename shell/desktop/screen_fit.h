// Windows on small screens.
#pragma once

#include <QSize>

class QMainWindow;
class QWidget;

namespace zol {

/// Keeps a window within the screen: it begins no larger, and where its widgets need more room than there is, they
/// scroll.
void fit_to_screen(QMainWindow& window);

/// What the frame adds to a window; that of a usual window while it is not on the screen.
[[nodiscard]] QSize frame_of(const QWidget& window);

/// Whether its layout says `givesWay`: it opens others, and is of least use beside them.
[[nodiscard]] bool gives_way(const QWidget& window);

/// Moves a window to where it covers the least of another one, and then of the others. Where it would cover that one,
/// both become narrower as far as they can, unless the user has changed one of them.
void place_beside(QWidget& window, QWidget& other);

/// Moves a window that has grown beyond its screen back, once its layout has settled.
void return_to_screen(QWidget& window);

/// It stands where the user wants it, and stays there.
void keep_place(QWidget& window);

}  // namespace zol
