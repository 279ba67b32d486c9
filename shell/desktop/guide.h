// The user guide in a window of its own.
#pragma once

#include <QMainWindow>
#include <QTextBrowser>

namespace zol {

/// Folder of the guide: of the installation or, for a program run from its build, of the source tree. Empty when there
/// is none.
[[nodiscard]] QString guide_folder();

/// Shows Markdown pages. Headings are places to jump to, named as in "a-heading-of-two-lines"; pictures are made to
/// fit.
class GuidePages : public QTextBrowser {
  Q_OBJECT

 public:
  using QTextBrowser::QTextBrowser;

 protected:
  void doSetSource(const QUrl& page, QTextDocument::ResourceType type) override;
  QVariant loadResource(int type, const QUrl& name) override;

 private:
  void scroll_to_heading(const QString& name);
};

class Guide : public QMainWindow {
  Q_OBJECT

 public:
  Guide();

  /// Comes to the front with a page. @param page  as "kikuchi.md#the-zone-axis-map"
  void open(const QString& page);

 private:
  GuidePages pages_;
};

}  // namespace zol
