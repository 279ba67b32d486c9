#include "shell/desktop/guide.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QToolBar>

#include "shell/desktop/qt_text.h"
#include "shell/program/data_folders.h"

namespace zol {
namespace {

constexpr int margin = 12;  // pixels around the text

/// The name of a heading in links: small letters and digits, hyphens for blanks, without other signs.
QString heading_name(const QString& heading) {
  QString name;
  for (const QChar letter : heading.toLower()) {
    if (letter.isLetterOrNumber() || letter == u'-' || letter == u'_') name += letter;
    if (letter == u' ') name += u'-';
  }
  return name;
}

}  // namespace

QString guide_folder() {
  const QDir programs(QCoreApplication::applicationDirPath());
  for (const QString& folder : {programs.absoluteFilePath(QStringLiteral("../share/doc/zol/user-guide")),
                                to_qt(source_tree()) + QStringLiteral("/docs/user-guide")}) {
    if (QDir(folder).exists()) return QDir::cleanPath(folder);
  }
  return {};
}

void GuidePages::doSetSource(const QUrl& page, QTextDocument::ResourceType type) {
  QTextBrowser::doSetSource(page, type);
  document()->setDocumentMargin(margin);
  if (page.hasFragment()) scroll_to_heading(page.fragment());
}

void GuidePages::scroll_to_heading(const QString& name) {
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || heading_name(block.text()) != name) continue;
    verticalScrollBar()->setValue(static_cast<int>(document()->documentLayout()->blockBoundingRect(block).top()));
    return;
  }
}

QVariant GuidePages::loadResource(int type, const QUrl& name) {
  const QUrl place = source().resolved(name);
  if (place.isLocalFile() && !QFileInfo(place.toLocalFile()).isFile()) return {};  // a pipe would never end
  QVariant resource = QTextBrowser::loadResource(type, name);
  if (type != QTextDocument::ImageResource) return resource;
  const QImage image = QImage::fromData(resource.toByteArray());
  const int room = viewport()->width() - 2 * margin - verticalScrollBar()->sizeHint().width();
  return image.width() <= room ? image : image.scaledToWidth(room, Qt::SmoothTransformation);
}

Guide::Guide() {
  setWindowTitle(tr("User guide"));
  constexpr QSize size(860, 700);
  resize(size);
  pages_.setOpenExternalLinks(true);
  setCentralWidget(&pages_);
  auto* bar = addToolBar(tr("Pages"));
  bar->setMovable(false);
  auto* back = bar->addAction(tr("Back"), QKeySequence::Back, &pages_, &QTextBrowser::backward);
  auto* forward = bar->addAction(tr("Forward"), QKeySequence::Forward, &pages_, &QTextBrowser::forward);
  bar->addAction(tr("Contents"), this, [this] { open(QStringLiteral("README.md")); });
  for (auto* action : {back, forward}) action->setEnabled(false);
  connect(&pages_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(&pages_, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
}

void Guide::open(const QString& page) {
  show();
  raise();
  activateWindow();
  const QString folder = guide_folder();
  if (folder.isEmpty()) {
    pages_.setPlainText(tr("The pages of the user guide are not installed: %1 is missing.")
                            .arg(QStringLiteral("share/doc/zol/user-guide")));
    return;
  }
  QUrl place = QUrl::fromLocalFile(folder + u'/' + page.section(u'#', 0, 0));
  place.setFragment(page.section(u'#', 1));
  pages_.setSource(place);
}

}  // namespace zol
