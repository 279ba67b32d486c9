// Letters after Alt for menus that are added to those of a layout, and for texts in other languages.
#pragma once

#include <vector>

#include <QHash>
#include <QString>

class QMainWindow;
class QObject;

namespace zol {

/// The title with "&" before its first letter that no menu, button or label of the window uses; without one where all
/// are used.
[[nodiscard]] QString with_free_mnemonic(const QMainWindow& window, const QString& title);

/// The letters of windows, each shared by its menu bar, buttons, groups and labels of boxes, and those of menus.
class MnemonicsInUse {
 public:
  /// @param changed  those that get a text anew; what they have now counts for nothing
  explicit MnemonicsInUse(std::vector<const QObject*> changed) : changed_(std::move(changed)) {}

  /// The text with "&" before the letter that is wanted, else before one that begins a word, else before any that is
  /// free in the window or menu of the widget or action; without one where all are used.
  [[nodiscard]] QString add(const QObject& owner, const QString& text, QChar wanted);
  /// A text that has its mnemonic already.
  void take(const QObject& owner, const QString& text);

 private:
  [[nodiscard]] QString& used_beside(const QObject& owner);

  std::vector<const QObject*> changed_;
  QHash<const QObject*, QString> used_;  ///< by window or menu
};

}  // namespace zol
