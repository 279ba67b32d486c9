#include "shell/desktop/table_window.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QVBoxLayout>

#include "core/atomic_file.h"
#include "core/run_failure.h"
#include "shell/desktop/look/ink_icon.h"
#include "shell/desktop/qt_text.h"
#include "shell/desktop/screen_fit.h"

namespace zol {

TableWindow::TableWindow(ListBox& list, QWidget& owner, Services& services, UserEvents& events, QSettings* settings,
                         std::function<std::string()> crystal)
    : QWidget(&owner, Qt::Window),
      list_(list),
      services_(services),
      events_(events),
      settings_(settings),
      crystal_(std::move(crystal)),
      model_(list, this) {
  setObjectName(QString::fromStdString(list.name() + "Table"));
  lay_out();
  take_kept();
  tie();
  owner.installEventFilter(this);
}

void TableWindow::lay_out() {
  const QString title = QString::fromStdString(list_.table->title);
  view_.setObjectName(QStringLiteral("rows"));
  view_.setAccessibleName(title);
  view_.setModel(&model_);
  view_.setSelectionBehavior(QAbstractItemView::SelectRows);
  view_.setSelectionMode(QAbstractItemView::ExtendedSelection);
  view_.setEditTriggers(QAbstractItemView::NoEditTriggers);
  view_.setTabKeyNavigation(false);
  view_.setShowGrid(false);
  view_.setWordWrap(false);
  view_.verticalHeader()->hide();
  view_.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  constexpr int row_height = 24;
  view_.verticalHeader()->setDefaultSectionSize(row_height);
  view_.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  view_.horizontalHeader()->setSortIndicatorClearable(true);
  view_.horizontalHeader()->setHighlightSections(false);
  view_.setSortingEnabled(true);

  filter_.setObjectName(QStringLiteral("filter"));
  filter_.setClearButtonEnabled(true);
  filter_.setPlaceholderText(tr("d>1.5 h=1, or a word"));
  filter_.setToolTip(tr("only rows that match all parts: a column compared by = <> < > <= >=, or any text"));
  auto* label = new QLabel(tr("&Filter:"), this);
  label->setBuddy(&filter_);
  filter_.setAccessibleName(tr("Filter"));
  auto* columns = new QPushButton(tr("C&olumns"), this);
  columns->setToolTip(tr("columns that can be added to those of the list"));
  columns_ = new QMenu(columns);
  columns->setMenu(columns_);
  columns->setVisible(!ListTable::choices(*list_.table).empty());
  auto* copy_button = new QPushButton(ink_icon(QStringLiteral("copy")), tr("Co&py"), this);
  copy_button->setToolTip(tr("the selected rows, or all, with their heads, tabs between the cells"));
  auto* save_button = new QPushButton(ink_icon(QStringLiteral("save")), tr("&Save as CSV..."), this);
  save_button->setToolTip(tr("all rows that are shown, in their order, to a file of comma-separated values"));
  for (auto* button : {copy_button, save_button}) button->setProperty("look", QStringLiteral("quiet"));
  connect(copy_button, &QPushButton::clicked, this, &TableWindow::copy);
  connect(save_button, &QPushButton::clicked, this, &TableWindow::save);
  count_.setProperty("look", QStringLiteral("muted"));

  auto* tools = new QHBoxLayout;
  tools->addWidget(label);
  tools->addWidget(&filter_, 1);
  for (auto* button : {columns, copy_button, save_button}) tools->addWidget(button);
  auto* all = new QVBoxLayout(this);
  all->addLayout(tools);
  all->addWidget(&view_, 1);
  all->addWidget(&count_);
}

void TableWindow::tie() {
  connect(&filter_, &QLineEdit::textChanged, this, [this](const QString& text) {
    model_.set_filter(text);
    show_after_change();
  });
  connect(view_.horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, [this](int column, Qt::SortOrder order) {
    keep("sort", column < 0 ? QString() : model_.name(column));
    keep("descending", order == Qt::DescendingOrder);
    show_after_change();
  });
  connect(view_.horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int column, int /*before*/, int width) { keep_width(column, width); });
  connect(&view_, &QTableView::clicked, this, [this](const QModelIndex& index) { pick(index.row()); });
  connect(view_.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& current, const QModelIndex& /*previous*/) {
            const bool by_keyboard = !showing_ && QApplication::mouseButtons() == Qt::NoButton;
            if (by_keyboard && current.isValid()) pick(current.row());
          });
  connect(&view_, &QTableView::activated, this, [this](const QModelIndex& index) {
    if (QApplication::mouseButtons() == Qt::NoButton) pick(index.row());
  });
  view_.installEventFilter(this);
  connect(columns_, &QMenu::aboutToShow, this, &TableWindow::fill_columns_menu);
  view_.setContextMenuPolicy(Qt::ActionsContextMenu);
  add_command(tr("&Copy"), QKeySequence::Copy, [this] { copy(); });
  add_command(tr("Select &All"), QKeySequence::SelectAll, [this] { view_.selectAll(); });
  add_command(tr("S&ort by this column"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O),
              [this] { sort_by_current(); });
  add_command(tr("&Save as CSV..."), QKeySequence::Save, [this] { save(); });
  add_command(tr("&Filter"), QKeySequence::Find, [this] {
    filter_.setFocus(Qt::ShortcutFocusReason);
    filter_.selectAll();
  });
  if (auto* help = parentWidget()->findChild<QShortcut*>(QStringLiteral("help"))) {
    add_command(tr("User &guide"), QKeySequence::HelpContents, [help] { emit help->activated(); });
  }
  add_command(tr("C&lose"), QKeySequence(Qt::CTRL | Qt::Key_W), [this] { close(); });
  fill_columns_menu();
}

/// In the context menu of the table; in the box of the filter its own keys go first.
void TableWindow::add_command(const QString& text, const QKeySequence& keys, const std::function<void()>& run) {
  auto* action = new QAction(text, &view_);
  action->setShortcut(keys);
  const bool of_rows = keys == QKeySequence::Copy || keys == QKeySequence::SelectAll;
  action->setShortcutContext(of_rows ? Qt::WidgetShortcut : Qt::WindowShortcut);
  connect(action, &QAction::triggered, this, run);
  view_.addAction(action);
}

void TableWindow::fill_columns_menu() {
  columns_->clear();
  for (const auto& caption : ListTable::choices(*list_.table)) {
    auto* action = columns_->addAction(QString::fromStdString(caption));
    action->setCheckable(true);
    action->setChecked(chosen_.contains(caption));
    connect(action, &QAction::toggled, this, [this, caption](bool on) {
      on ? void(chosen_.insert(caption)) : void(chosen_.erase(caption));
      QStringList captions;
      for (const auto& one : chosen_) captions += QString::fromStdString(one);
      keep("columns", captions);
      read();
    });
  }
}

void TableWindow::open() {
  const bool first = read_revision_ < 0;
  if (first) {
    constexpr QSize usual(480, 520);
    const QSize last = kept("size").toSize();
    resize(usual);
    read();
    if (last.isValid()) resize(last.boundedTo(screen()->availableSize()));
    place_beside(*this, *parentWidget());
  }
  show();
  raise();
  activateWindow();
  update_rows();
  view_.setFocus(Qt::OtherFocusReason);
}

void TableWindow::read() {
  const QStringList heads_before = model_.heads();
  read_revision_ = list_.revision();
  showing_ = true;
  model_.read(chosen_);
  {
    const QSignalBlocker quiet(view_.horizontalHeader());
    view_.horizontalHeader()->setSortIndicator(model_.sorted_by(), model_.order());
  }
  if (model_.heads() != heads_before) fit_columns();
  showing_ = false;
  show_after_change();
}

void TableWindow::show_title() {
  const std::string crystal = crystal_();
  if (!windowTitle().isEmpty() && crystal == titled_crystal_) return;
  titled_crystal_ = crystal;
  const QString title = QString::fromStdString(list_.table->title);
  setWindowTitle(crystal.empty() ? tr("Table: %1").arg(title) : tr("Table: %1 - %2").arg(title, to_qt(crystal)));
}

/// To their contents, apart from those that the user has drawn to another width.
void TableWindow::fit_columns() {
  const bool showing = std::exchange(showing_, true);
  view_.resizeColumnsToContents();
  for (int i = 0; i < model_.columnCount(); ++i) {
    if (const int width = widths_.value(model_.name(i)).toInt(); width > 0) view_.setColumnWidth(i, width);
  }
  show_all_columns();
  showing_ = showing;
}

QString TableWindow::key(const char* what) const {
  return QStringLiteral("tables/") + QString::fromStdString(list_.path()) + u'/' + QLatin1String(what);
}

QVariant TableWindow::kept(const char* what) const {
  return settings_ == nullptr ? QVariant() : settings_->value(key(what));
}

void TableWindow::keep(const char* what, const QVariant& value) {
  if (settings_ != nullptr) settings_->setValue(key(what), value);
}

void TableWindow::take_kept() {
  for (const QString& caption : kept("columns").toStringList()) chosen_.insert(caption.toStdString());
  widths_ = kept("widths").toMap();
  model_.sort_by(kept("sort").toString(), kept("descending").toBool() ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void TableWindow::keep_width(int column, int width) {
  if (showing_ || width <= 0) return;
  widths_[model_.name(column)] = width;
  keep("widths", widths_);
}

void TableWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (isVisible() && !isMaximized() && !showing_) keep("size", size());
}

void TableWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::LanguageChange || read_revision_ < 0) return;
  read();  // the filter may name columns
  fit_columns();
}

/// Grows to the right, and where the screen ends there, to the left.
void TableWindow::show_all_columns() {
  constexpr int around = 48;  // margins and the scroll bar
  const QRect room = screen()->availableGeometry();
  const int wanted = std::min(view_.horizontalHeader()->length() + around, room.width());
  if (wanted <= width()) return;
  if (isVisible() && x() + wanted > room.right()) move(std::max(room.left(), room.right() - wanted), y());
  resize(wanted, height());
}

void TableWindow::update_rows() {
  if (!isVisible() && read_revision_ >= 0) return;
  show_title();
  if (read_revision_ != list_.revision()) return read();
  if (shown_line_ != list_.list_index()) show_line();
}

void TableWindow::show_after_change() {
  const int shown = model_.rowCount();
  const QString count =
      shown == model_.all_rows() ? tr("%1 rows").arg(shown) : tr("%1 of %2 rows").arg(shown).arg(model_.all_rows());
  const QString fault = QString::fromStdString(model_.fault_of_filter());
  count_.setText(fault.isEmpty() ? count : fault);
  show_line();
}

void TableWindow::show_line() {
  showing_ = true;
  shown_line_ = list_.list_index();
  const int row = shown_line_ < 0 ? -1 : model_.row_of(shown_line_);
  if (row < 0) {
    view_.clearSelection();
  } else {
    const int column = std::max(0, view_.currentIndex().column());
    view_.selectionModel()->setCurrentIndex(model_.index(row, column),
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    view_.scrollTo(model_.index(row, column));
  }
  showing_ = false;
}

/// What extends the selection for a copy picks nothing.
void TableWindow::pick(int row) {
  if (QApplication::keyboardModifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) return;
  const int line = model_.line_of(row);
  events_.act(list_.window(),
              operation({"select", list_.path(), std::to_string(line)}, [this, line] { list_.pick(line); }),
              {[this, line] { return list_.warn_row ? list_.warn_row(line) : ""; }, [this] { show_line(); }});
}

void TableWindow::sort_by_current() {
  const int column = view_.currentIndex().column();
  if (column < 0) return;
  const bool again = model_.sorted_by() == column && model_.order() == Qt::AscendingOrder;
  view_.sortByColumn(column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
}

std::vector<int> TableWindow::all_rows() const {
  std::vector<int> rows(static_cast<std::size_t>(model_.rowCount()));
  std::iota(rows.begin(), rows.end(), 0);
  return rows;
}

std::vector<int> TableWindow::chosen_rows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : view_.selectionModel()->selectedRows()) rows.push_back(index.row());
  std::sort(rows.begin(), rows.end());
  return rows.empty() ? all_rows() : rows;
}

void TableWindow::copy() {
  QGuiApplication::clipboard()->setText(QString::fromStdString(model_.text(chosen_rows(), '\t')));
}

void TableWindow::save() {
  events_.act(list_.window(),
              {list_.path() + " was saved as a table", "", [this] {
                 const NameEnding ending{".csv"};
                 const std::string crystal = crystal_();
                 const std::string answer = services_.ask_file(
                     {.kind = FileKind::Export,
                      .save = true,
                      .file_name = crystal.empty() ? list_.table->title : crystal + " - " + list_.table->title,
                      .filter = "CSV|*.csv|",
                      .ending = ending});
                 if (answer.empty()) return;
                 try {
                   AtomicFile file(ending.added_to(answer));
                   file.contain(model_.text(all_rows(), ','));
                   file.commit();
                 } catch (const RunFailure& failure) {
                   services_.message(failure.message(), "Save as CSV");
                 }
               }});
}

bool TableWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parent() && event->type() == QEvent::Hide) hide();
  // Qt makes the first row the current one then, which is no choice of the user.
  if (watched == &view_ && event->type() == QEvent::FocusIn && !view_.currentIndex().isValid()) {
    showing_ = true;
    view_.selectionModel()->setCurrentIndex(model_.index(0, 0), QItemSelectionModel::NoUpdate);
    showing_ = false;
  }
  return QWidget::eventFilter(watched, event);
}

void TableWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    if (filter_.text().isEmpty()) {
      close();
    } else {
      filter_.clear();
    }
    return;
  }
  const bool into_table = event->key() == Qt::Key_Down || event->key() == Qt::Key_Return;
  if (into_table && filter_.hasFocus()) return view_.setFocus(Qt::OtherFocusReason);
  QWidget::keyPressEvent(event);
}

}  // namespace zol
