// Groups that fold, and rows that become columns: how a window of many controls gets narrow.
//
// A layout file says it: `folds` on a QGroupBox, "narrow" for one that folds by itself in a narrow window, until the
// user says otherwise, which is kept for the next start; `breakpoint` on the widget that holds a window's contents, the
// width in pixels below which it is narrow; there the box layouts marked `whenNarrow` ("column" or "row") turn, and the
// groups marked `narrowInto` move to the end of the layout of that name.
#pragma once

#include <optional>
#include <vector>

#include <QBoxLayout>
#include <QObject>
#include <QPointer>
#include <QString>

class QGroupBox;
class QMainWindow;
class QWidget;

namespace zol {

class Fold : public QObject {
 public:
  /// @param key  under which the user's choice is kept
  Fold(QGroupBox& group, QString key);

  [[nodiscard]] bool folded() const { return folded_; }
  /// What the boxes and result labels inside hold, for the title.
  [[nodiscard]] QString summary() const;
  /// What holds where the user has not chosen.
  void fold_by_itself(bool folded);
  /// Opens it for the focus; it folds again when the focus has gone.
  void reveal();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void toggle();
  void show(bool folded);

  QGroupBox& group_;
  QWidget* body_;
  QString key_;
  std::optional<bool> chosen_;
  int stretch_ = 0;  ///< of the open group in its layout
  bool by_itself_ = false;
  bool folded_ = false;
  bool revealed_ = false;
};

[[nodiscard]] Fold* fold_of(const QWidget* group);  ///< nullptr: it does not fold
[[nodiscard]] bool is_fold_body(const QWidget* widget);
/// Opens the folded groups around a widget that is to get the focus.
void reveal(QWidget& widget);

/// Turns the marked layouts of a window as its width asks, and lets it get as narrow as its columns are.
class Breakpoint : public QObject {
 public:
  Breakpoint(QWidget& host, int width);

  [[nodiscard]] bool narrow() const { return narrow_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void measure();
  void turn(bool narrow);
  void move_groups(bool narrow);
  void take_minimum();

  struct Mover {
    QGroupBox* group;
    QBoxLayout* wide;
    int index;
    QBoxLayout* narrow;
  };

  QWidget& host_;
  std::vector<Mover> movers_;
  int asked_;             ///< of the layout file, pixels
  int width_ = 0;         ///< below it the window is narrow: at least what the wide form needs
  int narrow_width_ = 0;  ///< the least of the narrow form
  bool narrow_ = false;
  bool turning_ = false;
};

/// Gives a window the groups and rows that its layout declares.
void offer_folding(QMainWindow& window);

}  // namespace zol
