#include "shell/desktop/library/library_panel.h"

#include <algorithm>
#include <memory>
#include <utility>

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QFile>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QScreen>
#include <QSettings>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

#include "core/number_text.h"
#include "core/run_failure.h"
#include "shell/desktop/library/library_model.h"
#include "shell/desktop/look/look.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

constexpr int panel_width = 300;
constexpr auto open_key = "library/open";

QString quantity(const char* name, double value, int places) {
  return QString::fromUtf8(name) + QStringLiteral(" = ") + to_qt(short_text(value, places));
}

}  // namespace

QString described(const LibraryEntry& entry) {
  QStringList lines{QFile::decodeName(entry.path.c_str())};
  if (!entry.read) return lines.front();
  if (!entry.fault.empty()) return lines.front() + u'\n' + to_qt(entry.fault);
  const QString formula = to_qt(library_formula(entry.formula));
  const QString title = to_qt(entry.title);
  lines << formula + (formula.isEmpty() || title.isEmpty() ? QString() : QStringLiteral(", ")) + title;
  if (entry.group > 0) {
    lines << QStringLiteral("%1 (%2), %3")
                 .arg(to_qt(entry.symbol))
                 .arg(entry.group)
                 .arg(to_qt(std::string(crystal_system(entry.group))));
  }
  const CellConstants& cell = entry.cell;
  lines << quantity("a", cell.a, 4) + QStringLiteral(", ") + quantity("b", cell.b, 4) + QStringLiteral(", ") +
               quantity("c", cell.c, 4) + QStringLiteral(" Å");
  lines << quantity("α", cell.alpha, 3) + QStringLiteral("°, ") + quantity("β", cell.beta, 3) + QStringLiteral("°, ") +
               quantity("γ", cell.gamma, 3) + u'°';
  QString last = quantity("V", entry.volume, 2) + QStringLiteral(" Å³");
  if (entry.density > 0) last += QStringLiteral(", ") + to_qt(short_text(entry.density, 3)) + QStringLiteral(" g/cm³");
  lines << last;
  lines.removeAll(QString());
  return lines.join(u'\n');
}

LibraryPanel::LibraryPanel(LibrarySetup setup, QMainWindow& top)
    : QDockWidget(tr("Crystal library"), &top),
      setup_(std::move(setup)),
      top_(top),
      reading_(setup_.folder, setup_.index_file, setup_.path_of_group),
      model_(new LibraryModel(this)),
      search_(new QLineEdit),
      tree_(new QTreeView),
      state_(new QLabel),
      details_(new QLabel) {
  setObjectName(QStringLiteral("crystalLibrary"));
  setAllowedAreas(Qt::LeftDockWidgetArea | Qt::RightDockWidgetArea);
  lay_out();
  connect(search_, &QLineEdit::textChanged, this, &LibraryPanel::search);
  connect(tree_, &QTreeView::activated, this, &LibraryPanel::open);
  connect(tree_->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& index) { choose(index); });
  connect(&reading_, &LibraryReading::found, this, &LibraryPanel::take);
  connect(&reading_, &LibraryReading::read, this, [this](int done, int total) {
    progress_ = done < total ? tr("reading file %1 of %2").arg(done).arg(total) : QString();
    tell();
  });
  connect(&reading_, &LibraryReading::ended, this, [this](const QString& fault) {
    fault_ = fault;
    progress_.clear();
    tell();
  });
  watcher_.addPath(QFile::decodeName(setup_.folder.c_str()));
  auto* soon = new QTimer(this);  // one look for many changes
  constexpr int pause_ms = 500;
  soon->setSingleShot(true);
  soon->setInterval(pause_ms);
  connect(soon, &QTimer::timeout, this, [this] { reading_.look(); });
  connect(&watcher_, &QFileSystemWatcher::directoryChanged, soon, qOverload<>(&QTimer::start));
}

void LibraryPanel::lay_out() {
  constexpr int margin = 8;
  search_->setObjectName(QStringLiteral("librarySearch"));
  search_->setAccessibleName(tr("search in the crystal library"));
  search_->setPlaceholderText(tr("quartz, +Si -Al, Fm-3m, a=5.43"));
  search_->setClearButtonEnabled(true);
  search_->setToolTip(
      tr("A crystal has to match all words:\n"
         "quartz - in the name, the title or a folder\n"
         "SiO2 - this formula\n"
         "+Si -Al - with, without an element\n"
         "225, Fm-3m, cubic - space group or crystal system\n"
         "a=5.43 - within 1 %; a=5.43~0.01, a=5.4..5.5, a>5; also b, c, alpha, beta, gamma, V, density"));
  search_->installEventFilter(this);
  tree_->setObjectName(QStringLiteral("libraryTree"));
  tree_->setAccessibleName(tr("crystals"));
  tree_->setToolTip(tr("Enter or a double click opens the crystal"));
  tree_->setModel(model_);
  tree_->setUniformRowHeights(true);
  tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tree_->header()->setSectionResizeMode(LibraryModel::Name, QHeaderView::Stretch);
  tree_->header()->setStretchLastSection(false);
  tree_->header()->resizeSection(LibraryModel::Formula, panel_width / 3);
  state_->setObjectName(QStringLiteral("libraryState"));
  state_->setWordWrap(true);
  state_->setProperty("look", QStringLiteral("muted"));
  details_->setObjectName(QStringLiteral("libraryDetails"));
  for (QLabel* label : {state_, details_}) label->setTextFormat(Qt::PlainText);
  details_->setWordWrap(true);
  details_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  auto* inside = new QWidget;
  auto* rows = new QVBoxLayout(inside);
  rows->setContentsMargins(margin, margin, 0, margin);
  rows->setSpacing(margin / 2);
  rows->addWidget(search_);
  rows->addWidget(state_);
  rows->addWidget(tree_, 1);
  rows->addWidget(details_);
  setWidget(inside);
}

/// The window grows by the panel where the screen has room, unless its kept place has the panel already; where the
/// window cannot get narrow enough for both, the panel floats.
void LibraryPanel::come_up(bool window_has_room) {
  const QRect room = top_.screen()->availableGeometry();
  const bool fits = top_.minimumSizeHint().width() + panel_width <= room.width();
  top_.addDockWidget(Qt::LeftDockWidgetArea, this);
  if (fits && !window_has_room && !top_.isMaximized()) {
    const int width = std::min(top_.width() + panel_width, room.width());
    top_.resize(width, top_.height());
    const int frame = top_.frameGeometry().width() - top_.width();
    const int last_left = room.right() + 1 - width - frame;
    if (top_.frameGeometry().left() > last_left) top_.move(std::max(room.left(), last_left), top_.y());
  }
  setFloating(!fits);
  show();
  if (fits) {
    top_.resizeDocks({this}, {panel_width}, Qt::Horizontal);
  } else {
    resize(panel_width, room.height() / 2);
  }
  search_->setFocus(Qt::ShortcutFocusReason);
  search_->selectAll();
}

void LibraryPanel::showEvent(QShowEvent* event) {
  QDockWidget::showEvent(event);
  reading_.look();
}

void LibraryPanel::closeEvent(QCloseEvent* event) {
  QDockWidget::closeEvent(event);
  emit shown(false);
}

bool LibraryPanel::eventFilter(QObject* watched, QEvent* event) {
  const auto* key = event->type() == QEvent::KeyPress ? dynamic_cast<QKeyEvent*>(event) : nullptr;
  if (key == nullptr) return QDockWidget::eventFilter(watched, event);
  switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      open(chosen() != nullptr ? tree_->currentIndex() : model_->first());
      return true;
    case Qt::Key_Down:
    case Qt::Key_Up:
      if (chosen() == nullptr) tree_->setCurrentIndex(model_->first());
      tree_->setFocus(Qt::OtherFocusReason);
      return true;
    case Qt::Key_Escape:
      search_->clear();
      return true;
    default:
      return QDockWidget::eventFilter(watched, event);
  }
}

void LibraryPanel::take(const LibraryReading::Entries& entries) {
  entries_ = entries;
  search();
}

/// What is chosen stays as long as it is found; few finds are all shown.
void LibraryPanel::search() {
  constexpr int few = 200;
  const std::string chosen_before = chosen_path_;
  mistake_.clear();
  try {
    model_->show(entries_, LibraryQuery(search_->text().toStdString()));
  } catch (const RunFailure& failure) {
    mistake_ = to_qt(failure.message());
  }
  if (!search_->text().isEmpty() && model_->found() <= few) tree_->expandAll();
  tree_->setCurrentIndex(model_->of_path(chosen_before));
  choose(tree_->currentIndex());
  tell();
}

const LibraryEntry* LibraryPanel::chosen() const { return model_->entry(tree_->currentIndex()); }

void LibraryPanel::choose(const QModelIndex& index) {
  const LibraryEntry* entry = model_->entry(index);
  chosen_path_ = entry == nullptr ? "" : entry->path;
  details_->setText(entry == nullptr ? QString() : described(*entry));
}

void LibraryPanel::open(const QModelIndex& index) {
  const LibraryEntry* entry = model_->entry(index);
  if (entry == nullptr) return;
  tree_->setCurrentIndex(index.siblingAtColumn(LibraryModel::Name));
  setup_.open(setup_.folder + '/' + entry->path);
}

void LibraryPanel::tell() {
  if (!mistake_.isEmpty()) return state_->setText(mistake_);
  if (!fault_.isEmpty()) return state_->setText(fault_);
  const auto all = entries_ ? static_cast<int>(entries_->size()) : 0;
  QString text =
      search_->text().isEmpty() ? tr("%1 crystals").arg(all) : tr("%1 of %2 crystals").arg(model_->found()).arg(all);
  if (!progress_.isEmpty()) text += QStringLiteral(", ") + progress_;
  state_->setText(text);
}

void offer_library(QMainWindow& top, const LibrarySetup& setup, QSettings* settings) {
  auto* action = new QAction(QCoreApplication::translate("zol::LibraryPanel", "Crystal &library"), &top);
  action->setCheckable(true);
  action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));
  view_menu(top).addAction(action);
  const auto keep = [action, settings](bool open) {
    action->setChecked(open);
    if (settings != nullptr) settings->setValue(QLatin1String(open_key), open);
  };
  auto at_start = std::make_shared<bool>(false);
  QObject::connect(action, &QAction::triggered, &top,
                   [&top, setup, keep, at_start, panel = QPointer<LibraryPanel>()](bool wanted) mutable {
                     if (!panel) {
                       panel = new LibraryPanel(setup, top);
                       QObject::connect(panel, &LibraryPanel::shown, panel, keep);
                     }
                     wanted ? panel->come_up(*at_start) : panel->hide();
                     keep(wanted);
                   });
  if (settings != nullptr && settings->value(QLatin1String(open_key)).toBool()) {
    QTimer::singleShot(0, action, [action, at_start] {
      *at_start = true;
      action->trigger();
      *at_start = false;
    });
  }
}

}  // namespace zol
