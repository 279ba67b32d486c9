#include "shell/desktop/recent_menu.h"

#include <algorithm>
#include <array>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>

#include "shell/desktop/mnemonics.h"
#include "shell/desktop/qt_text.h"
#include "shell/services/window.h"

namespace zol {
namespace {

struct Kind {
  FileKind kind;
  const char* key;
  const char* title;
};
constexpr std::array kinds{
    Kind{FileKind::Crystal, "crystals", QT_TRANSLATE_NOOP("zol::RecentMenu", "&Crystals")},
    Kind{FileKind::Structure, "structures", QT_TRANSLATE_NOOP("zol::RecentMenu", "&Structures")},
    Kind{FileKind::Picture, "pictures", QT_TRANSLATE_NOOP("zol::RecentMenu", "&Pictures")},
    Kind{FileKind::MeasuredPattern, "patterns", QT_TRANSLATE_NOOP("zol::RecentMenu", "&Measured patterns")}};

QString key(const Kind& kind) { return QStringLiteral("recent/") + QLatin1String(kind.key); }

/// With its folder, where "~" stands for the home.
QString told_path(const std::string& path) {
  const QString whole = QFile::decodeName(path.c_str());
  const QString home = QDir::homePath() + u'/';
  return whole.startsWith(home) ? QStringLiteral("~/") + whole.mid(home.size()) : whole;
}

}  // namespace

RecentMenu::RecentMenu(QSettings* settings, FileOpening& opening, Tell tell)
    : settings_(settings), opening_(opening), tell_(std::move(tell)) {}

void RecentMenu::add(Window& window, QMainWindow& top) {
  const auto ways = file_ways(window);
  QMenu* menu = nullptr;
  for (const Kind& kind : kinds) {
    if (std::none_of(ways.begin(), ways.end(), [&kind](const FileWay& way) { return way.kind == kind.kind; })) continue;
    if (menu == nullptr) menu = top.menuBar()->addMenu(with_free_mnemonic(top, tr("Recent")));
    QMenu* files = menu->addMenu(tr(kind.title));
    files->setToolTipsVisible(true);
    connect(files, &QMenu::aboutToShow, this, [this, files, &window, kind] { fill(*files, window, kind.kind); });
  }
}

/// The names of files are bytes, kept as they are.
void RecentMenu::read() {
  if (settings_ == nullptr) return;
  settings_->sync();  // another run may have added some
  for (const Kind& kind : kinds) {
    std::vector<std::string> paths;
    for (const QString& path : settings_->value(key(kind)).toStringList()) {
      paths.push_back(QByteArray::fromPercentEncoding(path.toLatin1()).toStdString());
    }
    files_.set(kind.kind, std::move(paths));
  }
}

void RecentMenu::change(const std::function<void()>& change) {
  read();
  change();
  if (settings_ == nullptr) return;
  for (const Kind& kind : kinds) {
    QStringList paths;
    for (const auto& path : files_.of(kind.kind)) {
      paths << QString::fromLatin1(QByteArray::fromStdString(path).toPercentEncoding("/"));
    }
    settings_->setValue(key(kind), paths);
  }
}

/// A picture that is saved is a result; a crystal that is saved is gone on with.
void RecentMenu::chosen(const FileQuestion& question, const std::string& path) {
  if (!question.save || question.kind == FileKind::Crystal) chosen_.emplace_back(question.kind, path);
}

void RecentMenu::settle() {
  if (chosen_.empty()) return;
  change([this] {
    for (const auto& [kind, path] : std::exchange(chosen_, {})) {
      if (fault_of_file(path).empty()) files_.note(kind, path);
    }
  });
}

void RecentMenu::fill(QMenu& menu, Window& window, FileKind kind) {
  read();
  menu.clear();
  int number = 0;
  for (const auto& path : files_.of(kind)) {
    const QString name = to_qt(path.substr(path.rfind('/') + 1)).replace(u'&', QStringLiteral("&&"));
    const bool missing = !fault_of_file(path).empty();
    ++number;
    const QString text = QStringLiteral("&%1 %2").arg(number % 10).arg(missing ? tr("%1 (missing)").arg(name) : name);
    QAction* action = menu.addAction(text, this, [this, &window, kind, path] { open(window, kind, path); });
    action->setToolTip(told_path(path));
    QFont font = action->font();
    font.setItalic(missing);
    action->setFont(font);
  }
  if (number == 0) menu.addAction(tr("none yet"))->setEnabled(false);
}

void RecentMenu::open(Window& window, FileKind kind, const std::string& path) {
  if (const std::string fault = fault_of_file(path); !fault.empty()) {
    change([this, kind, &path] { files_.drop(kind, path); });
    return tell_(fault + "; it is no longer in the list of recent files");
  }
  const auto ways = file_ways(window);
  const auto way = std::find_if(ways.begin(), ways.end(), [kind](const FileWay& one) { return one.kind == kind; });
  if (way != ways.end()) opening_.open(window, *way, path);
}

}  // namespace zol
