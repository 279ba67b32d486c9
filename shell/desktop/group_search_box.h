// A search above a list of space groups: what is typed leaves the rows that it means, Enter takes the first of them.
// The list and its events stay as they are.
#pragma once

#include <QLineEdit>

class QLabel;
class QListView;
class QMainWindow;

namespace zol {

class GroupSearchBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit GroupSearchBox(QListView& list);
  /// Frames the row of the group whose number a box holds, now and whenever it changes.
  void follow(const QLineEdit& number);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void filter();
  void pick();
  void light(const QString& number);
  [[nodiscard]] int first_shown() const;  ///< -1 where there is none

  QListView& list_;
  QLabel* nothing_;  ///< shown in the list where no row is found; its child
};

/// Gives one to each list whose layout says `searches` "groups"; `follows` there names the box with the number.
void offer_group_search(QMainWindow& window);

}  // namespace zol
