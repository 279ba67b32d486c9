// F9 in a window with a picture: only the picture, and back.
#pragma once

class QMainWindow;

namespace zol {

/// Adds the entry to the menu "View" where the window has a picture; of several the first one.
void offer_picture_alone(QMainWindow& window);

}  // namespace zol
