// Ties of tables to be edited. What is typed goes to the table key by key, as a script types it; here it shows in the
// cell where it will stand. Whole rows come and go by the clipboard and by keys.
#include <algorithm>
#include <optional>
#include <set>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QScrollBar>
#include <QStatusBar>
#include <QTableView>

#include "shell/desktop/control_models.h"
#include "shell/desktop/control_tie.h"
#include "shell/desktop/item_copies.h"
#include "shell/desktop/latin1_input.h"
#include "shell/desktop/qt_text.h"
#include "shell/services/latin1.h"
#include "shell/services/pasted_rows.h"

namespace zol {
namespace {

struct Place {
  int row = 1, column = 1;
  bool operator==(const Place&) const = default;
};

struct CellText {
  Place place;
  std::string text;
};

std::string lower(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
  return text;
}

/// Stands over the cell that is typed into. Its keys are seen by the tie first, Tab among them.
class CellEditor : public QLineEdit {
 public:
  explicit CellEditor(QWidget* parent, std::function<bool(QKeyEvent&)> key) : QLineEdit(parent), key_(std::move(key)) {
    setFrame(false);
    hide();
    take_latin1_only(*this);
  }

 protected:
  bool focusNextPrevChild(bool /*next*/) override { return false; }
  void keyPressEvent(QKeyEvent* event) override {
    if (!key_(*event)) QLineEdit::keyPressEvent(event);
  }

 private:
  std::function<bool(QKeyEvent&)> key_;
};

class GridTie : public ControlTie {
 public:
  GridTie(const TiedWindow& owner, Grid& grid, QTableView& view)
      : ControlTie(owner, grid, &view),
        grid_(grid),
        shown_(view),
        model_(new GridModel(grid, this)),
        editor_(new CellEditor(view.viewport(), [this](QKeyEvent& event) { return editor_key(event); })) {
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.setModel(model_);
    view.installEventFilter(this);
    view.setTabKeyNavigation(true);
    add_copy_commands(view);
    view.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    view.horizontalHeader()->setHighlightSections(false);
    view.verticalHeader()->setHighlightSections(false);
    view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + 8);
    connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current, const QModelIndex& /*previous*/) {
              if (!showing_ && current.isValid()) go_to({current.row() + 1, current.column() + 1});
            });
    if (grid.buffer == nullptr || grid.emptier == nullptr) return;
    connect(&view, &QTableView::doubleClicked, this, [this] { edit_text(); });
    connect(editor_, &QLineEdit::textEdited, this, [this](const QString& text) { type(latin1_from_qt(text)); });
    for (const auto* bar : {view.verticalScrollBar(), view.horizontalScrollBar()}) {
      connect(bar, &QScrollBar::valueChanged, this, &GridTie::place_editor);
    }
    connect(view.horizontalHeader(), &QHeaderView::sectionResized, this, &GridTie::place_editor);
    add_commands();
  }

  void show() override {
    showing_ = true;
    model_->refresh();
    // Columns share the room; none gets narrower than the grid wants.
    constexpr int twips_per_pixel = 15;
    shown_.verticalHeader()->setMinimumWidth(grid_.column_width(0) / twips_per_pixel);
    int narrowest = 0;
    for (int column = 1; column < grid_.columns(); ++column) {
      narrowest = std::max(narrowest, grid_.column_width(column) / twips_per_pixel);
    }
    shown_.horizontalHeader()->setMinimumSectionSize(narrowest);
    shown_.setCurrentIndex(index_of(here()));
    showing_ = false;
    in_text_ = false;
    show_typed();
    tell_doubt();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::KeyPress && table_key(dynamic_cast<QKeyEvent&>(*event))) return true;
    if (event->type() == QEvent::FocusIn && editor_->isVisible()) editor_->setFocus();
    return ControlTie::eventFilter(watched, event);
  }

 private:
  [[nodiscard]] Place here() const { return {grid_.row(), grid_.column()}; }
  [[nodiscard]] Place last() const { return {grid_.rows() - 1, grid_.columns() - 1}; }
  [[nodiscard]] QModelIndex index_of(const Place& place) const {
    return model_->index(place.row - 1, place.column - 1);
  }
  [[nodiscard]] std::string typed() const { return grid_.buffer == nullptr ? std::string() : grid_.buffer->text(); }
  /// Where Enter walks to; the last cell has none behind it.
  [[nodiscard]] Place behind(const Place& place) const {
    if (place == last()) return place;
    return place.column < last().column ? Place{place.row, place.column + 1} : Place{place.row + 1, 1};
  }

  bool table_key(const QKeyEvent& event) {
    const int code = key_code(event);
    const bool refused = !is_latin1(event.text());
    if (refused) say_refused(shown_);
    if (grid_.buffer != nullptr && edits(event, code)) return true;
    if (code == 0) return refused;
    const std::string key = utf8_of_latin1(std::string(1, static_cast<char>(code)));
    enter(operation({"type", grid_.path(), key}, [this, code] { grid_.press_key(code); }));
    show_typed();
    return true;
  }

  /// Keys that mean an edit of a cell rather than a character in it.
  bool edits(const QKeyEvent& event, int code) {
    if (event.key() == Qt::Key_F2) {
      edit_text();
    } else if (event.key() == Qt::Key_Escape && editor_->isVisible()) {
      drop();
    } else if (code == key_enter && (editor_->isVisible() || here() == last())) {
      if (here() == last()) say_beside(shown_, tr("This is the last cell of the table."));
      leave(behind(here()));
    } else {
      return false;
    }
    return true;
  }

  bool editor_key(const QKeyEvent& event) {
    if (edits(event, key_code(event))) return true;
    if (event.matches(QKeySequence::Paste) && has_rows(QGuiApplication::clipboard()->text())) {
      paste();
      return true;
    }
    const Place from = here();
    std::optional<Place> to;
    const bool within = in_text_;  // there the arrows move in the text
    if (event.key() == Qt::Key_Up) to = {std::max(from.row - 1, 1), from.column};
    if (event.key() == Qt::Key_Down) to = {std::min(from.row + 1, last().row), from.column};
    if (event.key() == Qt::Key_Left && !within) to = {from.row, std::max(from.column - 1, 1)};
    if (event.key() == Qt::Key_Right && !within) to = {from.row, std::min(from.column + 1, last().column)};
    if (event.key() == Qt::Key_Tab) to = behind(from);
    if (event.key() == Qt::Key_Backtab) {
      to = from.column > 1 ? Place{from.row, from.column - 1} : Place{std::max(from.row - 1, 1), last().column};
    }
    if (to) leave(*to);
    return to.has_value();
  }

  /// Opens the cell with its text in it.
  void edit_text() {
    if (!editor_->isVisible()) {
      editor_->setText(latin1_to_qt(grid_.text()));
      editor_->selectAll();
      open_editor();
    }
    in_text_ = true;
  }

  /// Makes the table's buffer hold a text: back to where the two part, then forth.
  void type(const std::string& text) {
    const std::string now = typed();
    const auto [part, unused] = std::mismatch(now.begin(), now.end(), text.begin(), text.end());
    const auto kept = static_cast<std::size_t>(part - now.begin());
    const std::string keys = std::string(now.size() - kept, '\b') + text.substr(kept);
    enter(operation({"type", grid_.path(), utf8_of_latin1(keys)}, [this, keys] {
      for (const char key : keys) grid_.press_key(static_cast<unsigned char>(key));
    }));
    show_typed();
  }

  void show_typed() {
    const QString text = latin1_to_qt(typed());
    if (text.isEmpty()) {
      if (!in_text_) close_editor();
      return;
    }
    if (editor_->text() != text) editor_->setText(text);
    open_editor();
  }

  void open_editor() {
    if (editor_->isVisible()) return;
    const bool focus_here = shown_.hasFocus();
    shown_.scrollTo(index_of(here()));
    place_editor();
    editor_->show();
    if (focus_here || in_text_) editor_->setFocus();
    owner().events.in_cell(shown_, [this] { leave(here()); });
  }

  void place_editor() { editor_->setGeometry(shown_.visualRect(index_of(here()))); }

  void close_editor() {
    in_text_ = false;
    if (!editor_->isVisible()) return;
    const bool focus_here = editor_->hasFocus();
    editor_->hide();
    editor_->clear();
    if (focus_here) shown_.setFocus();
    owner().events.out_of_cell(shown_);
  }

  /// Takes in what stands in the editor and goes on, as one event.
  void leave(const Place& to) {
    const Place from = here();
    const bool emptied = in_text_ && editor_->isVisible() && editor_->text().isEmpty() && !grid_.text().empty();
    const bool anything = !typed().empty() || emptied;
    close_editor();
    if (!anything) {
      if (from != to) enter(cell_event(to));
      return;
    }
    UserEvent event = emptied ? operation({"click", grid_.emptier->path()}, [this] { grid_.emptier->click(); })
                              : operation({"type", grid_.path(), "\r"}, [this] { press_enter(); });
    const UserEvent then = cell_event(to);
    if (to != (emptied ? from : behind(from))) event.script += "\n" + then.script;
    event.run = [first = event.run, second = then.run] {
      first();
      second();
    };
    enter(std::move(event));
    show_typed();
  }

  /// Behind the last cell there is none to walk to.
  void press_enter() {
    if (here() != last()) {
      grid_.press_key(key_enter);
    } else {
      grid_.set_text(grid_.buffer->text());
      grid_.buffer->set_text("");
    }
  }

  void drop() {
    close_editor();
    if (!typed().empty()) type("");
  }

  [[nodiscard]] UserEvent cell_event(const Place& to) {
    return operation({"cell", grid_.path(), std::to_string(to.row), std::to_string(to.column)}, [this, to] {
      grid_.set_row(to.row);
      grid_.set_column(to.column);
    });
  }

  void go_to(const Place& to) {
    if (editor_->isVisible()) {
      leave(to);
    } else {
      owner().events.act(owner().window, cell_event(to));
    }
    tell_doubt();
  }

  void tell_doubt() {
    auto* top = qobject_cast<QMainWindow*>(&owner().top);
    if (top == nullptr || !grid_.doubt) return;
    const QString doubt = latin1_to_qt(grid_.doubt(grid_.row(), grid_.column()));
    if (doubt.isEmpty() && !std::exchange(doubt_told_, false)) return;
    doubt_told_ = !doubt.isEmpty();
    top->statusBar()->showMessage(doubt);
  }

  void add_commands() {
    const auto add = [this](const QString& title, const QKeySequence& keys, auto command) {
      auto* action = new QAction(title, &shown_);
      action->setShortcut(keys);
      action->setShortcutContext(Qt::WidgetShortcut);
      connect(action, &QAction::triggered, this, command);
      shown_.addAction(action);
    };
    add(tr("&Paste"), QKeySequence::Paste, [this] { paste(); });
    add(tr("&Empty"), QKeySequence::Delete, [this] { empty_selected(); });
    add(tr("&Insert Row"), Qt::Key_Insert, [this] { insert_row(); });
    add(tr("Move Row &Up"), Qt::ALT | Qt::Key_Up, [this] { move_row(-1); });
    add(tr("Move Row &Down"), Qt::ALT | Qt::Key_Down, [this] { move_row(1); });
  }

  /// Writes cells as one event, which a script repeats by the keys of the table.
  void write(std::vector<CellText> cells, const Place& then, const QString& step) {
    owner().events.leave_box();
    UserEvent event = cell_event(then);
    std::string script;
    for (const auto& [place, text] : cells) {
      script += cell_event(place).script + "\n" +
                (text.empty() ? script_line({"click", grid_.emptier->path()})
                              : script_line({"type", grid_.path(), utf8_of_latin1(text) + "\r"})) +
                "\n";
    }
    event.name = event.step = step.toStdString();
    event.script = script + event.script;
    event.run = [this, cells = std::move(cells), go = event.run] {
      for (const auto& [place, text] : cells) {
        grid_.set_row(place.row);
        grid_.set_column(place.column);
        grid_.set_text(text);
      }
      go();
    };
    enter(std::move(event));
  }

  [[nodiscard]] static bool has_rows(const QString& text) {
    return text.contains(u'\t') || text.trimmed().contains(u'\n');
  }

  /// From the current cell on. Heads as those of the table are left out.
  void paste() {
    owner().events.leave_box();
    const QString text = QGuiApplication::clipboard()->text();
    if (!is_latin1(text)) return say_refused(shown_);
    auto rows = pasted_rows(latin1_from_qt(text));
    const Place from = here();
    if (!rows.empty() && are_heads(rows.front(), from.column)) rows.erase(rows.begin());
    if (rows.empty()) return;
    std::vector<CellText> cells;
    Place place = from;
    for (const auto& row : rows) {
      place.column = from.column;
      for (const auto& cell : row) cells.push_back({{place.row, place.column++}, cell});
      ++place.row;
      if (place.column - 1 > last().column) {
        return say_beside(shown_, tr("Nothing is pasted: row %1 of the text has %2 cells, there is room for %3.")
                                      .arg(place.row - from.row)
                                      .arg(row.size())
                                      .arg(last().column - from.column + 1));
      }
    }
    if (place.row - 1 > last().row) {
      return say_beside(shown_, tr("Nothing is pasted: the text has %1 rows, there is room for %2.")
                                    .arg(rows.size())
                                    .arg(last().row - from.row + 1));
    }
    write(std::move(cells), {std::min(place.row, last().row), from.column}, tr("rows pasted: %1").arg(rows.size()));
  }

  [[nodiscard]] bool are_heads(const std::vector<std::string>& row, int column) const {
    return std::all_of(row.begin(), row.end(), [&](const std::string& cell) {
      return column <= last().column && lower(cell) == lower(grid_.text(0, column++));
    });
  }

  void empty_selected() {
    owner().events.leave_box();
    std::vector<CellText> cells;
    for (const QModelIndex& index : shown_.selectionModel()->selectedIndexes()) {
      const Place place{index.row() + 1, index.column() + 1};
      if (!grid_.text(place.row, place.column).empty()) cells.push_back({place, ""});
    }
    if (cells.empty()) return;
    const QString step = tr("cells emptied: %1").arg(cells.size());
    write(std::move(cells), here(), step);
  }

  [[nodiscard]] bool any_text(int row) const {
    for (int column = 1; column <= last().column; ++column) {
      if (!grid_.text(row, column).empty()) return true;
    }
    return false;
  }

  void copy_row(int from, int to, std::vector<CellText>& cells) const {
    for (int column = 1; column <= last().column; ++column) {
      if (grid_.text(to, column) != grid_.text(from, column)) cells.push_back({{to, column}, grid_.text(from, column)});
    }
  }

  /// An empty row at the current one; those from there on move down.
  void insert_row() {
    owner().events.leave_box();
    const int row = here().row;
    int used = last().row;
    while (used > 0 && !any_text(used)) --used;
    if (used == last().row) return say_beside(shown_, tr("No row is inserted: row %1 is in use.").arg(used));
    if (used < row) return;
    std::vector<CellText> cells;
    for (int to = used + 1; to > row; --to) copy_row(to - 1, to, cells);
    for (int column = 1; column <= last().column; ++column) cells.push_back({{row, column}, ""});
    write(std::move(cells), {row, 1}, tr("row %1 inserted").arg(row));
  }

  void move_row(int by) {
    owner().events.leave_box();
    const Place from = here();
    const int to = from.row + by;
    if (to < 1 || to > last().row) return;
    std::vector<CellText> cells;
    copy_row(from.row, to, cells);
    copy_row(to, from.row, cells);
    write(std::move(cells), {to, from.column},
          by < 0 ? tr("row %1 up").arg(from.row) : tr("row %1 down").arg(from.row));
  }

  Grid& grid_;
  QTableView& shown_;
  GridModel* model_;
  CellEditor* editor_;
  bool showing_ = false;
  bool in_text_ = false;  ///< the text of the cell is edited, rather than typed anew
  bool doubt_told_ = false;
};

}  // namespace

std::unique_ptr<ControlTie> make_grid_tie(const TiedWindow& owner, Control& control) {
  return control.kind() == ControlKind::Grid ? tie_by_name<GridTie, Grid, QTableView>(owner, control) : nullptr;
}

}  // namespace zol
