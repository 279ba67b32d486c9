// Letters after Alt for menus that are added to those of a layout.
#pragma once

#include <QString>

class QMainWindow;

namespace zol {

/// The title with "&" before its first letter that no menu, button or label of the window uses; without one where all
/// are used.
[[nodiscard]] QString with_free_mnemonic(const QMainWindow& window, const QString& title);

}  // namespace zol
