// A list as a table in a window of its own beside the one that holds the list. A row that is chosen here is picked in
// the list, and the other way round.
#pragma once

#include <functional>
#include <string>

#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QVariantMap>
#include <QWidget>

#include "shell/desktop/table_model.h"
#include "shell/desktop/user_events.h"

class QMenu;
class QSettings;

namespace zol {

class TableWindow : public QWidget {
  Q_OBJECT

 public:
  /// @param owner  the window that holds the list; it goes with that one
  /// @param settings  where columns, order, widths and size are kept between runs; nullptr: nowhere
  /// @param crystal  its name, Latin-1, for the title and for files; empty where there is none
  TableWindow(ListBox& list, QWidget& owner, Services& services, UserEvents& events, QSettings* settings,
              std::function<std::string()> crystal);

  /// Comes to the front.
  void open();
  /// To be called after each event: the table follows the list.
  void update_rows();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void lay_out();
  void show_title();
  void tie();
  void add_command(const QString& text, const QKeySequence& keys, const std::function<void()>& run);
  void fill_columns_menu();
  void read();
  void take_kept();
  [[nodiscard]] QString key(const char* what) const;
  [[nodiscard]] QVariant kept(const char* what) const;
  void keep(const char* what, const QVariant& value);
  void keep_width(int column, int width);
  void fit_columns();
  void show_all_columns();
  void show_after_change();
  void show_line();
  void pick(int row);
  void sort_by_current();
  void copy();
  void save();
  [[nodiscard]] std::vector<int> chosen_rows() const;
  [[nodiscard]] std::vector<int> all_rows() const;

  ListBox& list_;
  Services& services_;
  UserEvents& events_;
  QSettings* settings_;
  std::function<std::string()> crystal_;
  std::string titled_crystal_;
  TableModel model_;
  QTableView view_;
  QLineEdit filter_;
  QLabel count_;
  QMenu* columns_ = nullptr;
  TableChoices chosen_;
  QVariantMap widths_;  ///< of columns that were drawn to another one, by their English names
  int read_revision_ = -1;
  int shown_line_ = -1;
  bool showing_ = false;
};

}  // namespace zol
