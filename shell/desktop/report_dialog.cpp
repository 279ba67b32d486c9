#include "shell/desktop/report_dialog.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "shell/desktop/language/language.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

QTextCharFormat format_of(const QString& line) {
  QTextCharFormat format;
  if (line.startsWith(QStringLiteral("Warning:"))) format.setFontWeight(QFont::Bold);
  return format;
}

}  // namespace

void show_report(const std::vector<std::string>& lines, const std::string& title) {
  QDialog dialog(QApplication::activeWindow());
  dialog.setWindowTitle(latin1_to_qt(title));
  auto* text = new QPlainTextEdit(&dialog);
  text->setReadOnly(true);
  text->setTabChangesFocus(true);
  text->setAccessibleName(latin1_to_qt(title));
  QTextCursor cursor(text->document());
  for (const auto& line : lines) {
    const QString told = latin1_to_qt(line);
    if (cursor.position() > 0) cursor.insertBlock();
    cursor.insertText(shown(told), format_of(told));
  }
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
  auto* copy = buttons->addButton(QObject::tr("&Copy"), QDialogButtonBox::ActionRole);
  QObject::connect(copy, &QPushButton::clicked, text,
                   [text] { QApplication::clipboard()->setText(text->toPlainText()); });
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(text);
  layout->addWidget(buttons);
  const QFontMetrics metrics = text->fontMetrics();
  constexpr int columns = 76;
  constexpr int rows = 16;
  dialog.resize(metrics.averageCharWidth() * columns, metrics.lineSpacing() * rows);
  buttons->button(QDialogButtonBox::Close)->setDefault(true);
  buttons->button(QDialogButtonBox::Close)->setFocus();
  dialog.exec();
}

}  // namespace zol
