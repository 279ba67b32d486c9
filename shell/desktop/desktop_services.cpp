#include "shell/desktop/desktop_services.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinterInfo>

#include "core/available_memory.h"
#include "core/run_failure.h"
#include "shell/desktop/all_the_same.h"
#include "shell/desktop/language/language.h"
#include "shell/desktop/latin1_input.h"
#include "shell/desktop/picture_export.h"
#include "shell/desktop/qt_surface.h"
#include "shell/desktop/qt_text.h"
#include "shell/desktop/report_dialog.h"
#include "shell/services/heavy_work.h"
#include "shell/services/workbench.h"

namespace zol {
namespace {

/// "name|*.ending|" as a filter of Qt, with "all files" behind it.
QString qt_filter(const FileQuestion& question) {
  QStringList filters;
  const QStringList pieces = to_qt(question.filter).split(u'|');
  for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
    filters << QStringLiteral("%1 (%2)").arg(shown(pieces[i]), QString(pieces[i + 1]).replace(u';', u' '));
  }
  if (const QString ending = to_qt(question.ending.text); filters.isEmpty() && !ending.isEmpty()) {
    filters << shown(tr("%1 files (*%2 *%3)").arg(ending.mid(1).toUpper(), ending.toLower(), ending.toUpper()));
  }
  filters << shown(tr("All files (*)"));
  return filters.join(QStringLiteral(";;"));
}

/// The ending of files by the first filter, as "cry"; empty when there is no filter.
QString usual_ending(const FileQuestion& question) {
  return to_qt(question.filter).section(u'|', 1, 1).section(u'.', -1);
}

/// The answer to a question from the name the user gave: an ending that the program adds in any case is taken off.
std::string answer_of(const FileQuestion& question, const QString& name) {
  QString answer = name;
  const QString ending = to_qt(question.ending.text);
  if (question.save && !question.ending.unless_dotted && answer.endsWith(ending, Qt::CaseInsensitive)) {
    answer.chop(ending.size());
  }
  return QFile::encodeName(answer).toStdString();
}

/// Asks before a file is replaced, by the name that it really bears.
bool may_write(QWidget* parent, const QString& path) {
  if (!QFileInfo::exists(path)) return true;
  return QMessageBox::question(parent, tr("Replace file"),
                               tr("%1 exists already. Replace it?").arg(QDir::toNativeSeparators(path))) ==
         QMessageBox::Yes;
}

/// Draws pages for a printer, or for the file that it is set to: that one is written whole or not at all.
void print_pages(QPrinter& printer, const std::function<void(QPagedPaintDevice&)>& draw) {
  const QString name = printer.outputFileName();
  if (name.isEmpty()) {
    try {
      return draw(printer);
    } catch (const Cancelled&) {
      printer.abort();
      throw;
    }
  }
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter pdf(&buffer);
  pdf.setPageLayout(printer.pageLayout());
  pdf.setResolution(printer.resolution());
  pdf.setTitle(printer.docName());
  draw(pdf);
  write_bytes(buffer.data(), QFile::encodeName(name).toStdString());
}

/// The printable part of a page in its own dots.
QSizeF page_size(const QPagedPaintDevice& pages) {
  return pages.pageLayout().paintRectPixels(pages.logicalDpiX()).size();
}

}  // namespace

std::string DesktopServices::ask_file(const FileQuestion& question) {
  const auto pause = dialog_open();
  const QString usual_folder = QFile::decodeName(question.initial_folder.c_str());
  const QString folder = last_folders_.value(question.kind, usual_folder.isEmpty() ? last_folder_ : usual_folder);
  QFileDialog dialog(QApplication::activeWindow(), question.save ? tr("Save") : tr("Open"), folder,
                     qt_filter(question));
  dialog.setFileMode(question.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setAcceptMode(question.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);  // the name may get an ending yet
  if (question.save) {
    dialog.selectFile(QFileInfo(QFile::decodeName(question.file_name.c_str())).fileName());
    if (question.ending.text.empty()) dialog.setDefaultSuffix(usual_ending(question));
  }
  while (dialog.exec() == QDialog::Accepted) {
    const QString chosen = dialog.selectedFiles().constFirst();
    std::string answer = answer_of(question, chosen);
    const QString written = QFile::decodeName(question.ending.added_to(answer).c_str());
    if (question.save && !may_write(&dialog, written)) continue;
    last_folders_[question.kind] = last_folder_ = QFileInfo(chosen).absolutePath();
    return answer;
  }
  return "";
}

void DesktopServices::set_up_printer() {
  const auto pause = dialog_open();
  auto printer = std::make_unique<QPrinter>();
  QPrintDialog dialog(printer.get(), QApplication::activeWindow());
  if (dialog.exec() == QDialog::Accepted) set_up_ = std::move(printer);
}

std::string DesktopServices::prompt(const std::string& text, const std::string& title) {
  return ask_text({text, title});
}

/// An answer that would do harm leads back to the dialog, unless it is wanted all the same.
std::string DesktopServices::ask_text(const PromptQuestion& question) {
  const auto pause = dialog_open();
  QInputDialog dialog(QApplication::activeWindow());
  dialog.setWindowTitle(to_qt(question.title));
  dialog.setLabelText(to_qt(question.text + (question.bounds.empty() ? "" : "\n" + question.bounds)));
  dialog.setTextEchoMode(QLineEdit::Normal);  // makes the box
  take_latin1_only(*dialog.findChild<QLineEdit*>());
  while (true) {
    std::string answer = dialog.exec() == QDialog::Accepted ? latin1_from_qt(dialog.textValue()) : "";
    const std::string reason = question.warn_when ? question.warn_when(answer) : "";
    if (reason.empty() || ask_all_the_same(reason)) return answer;
  }
}

void DesktopServices::message(const std::string& text, const std::string& title) {
  const auto pause = dialog_open();
  QMessageBox::warning(QApplication::activeWindow(), to_qt(title), to_qt(text));
}

void DesktopServices::copy_text(const std::vector<std::string>& lines, const std::string& /*title*/) {
  QString text;
  for (const auto& line : lines) text += to_qt(line) + QLatin1Char('\n');
  QGuiApplication::clipboard()->setText(text);
}

void DesktopServices::report(const std::vector<std::string>& lines, const std::string& title) {
  const auto pause = dialog_open();
  show_report(lines, title);
}

/// Once for each event: what it goes on to is a part of it.
bool DesktopServices::confirm_work(const Effort& effort) {
  if (!is_heavy(effort, available_memory()) || (desktop_ != nullptr && desktop_->long_work().confirmed())) return true;
  const auto pause = dialog_open();
  const bool wanted = QMessageBox::question(QApplication::activeWindow(), tr("ZOL"), to_qt(effort_question(effort)),
                                            QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
  if (wanted && desktop_ != nullptr) desktop_->long_work().confirm();
  return wanted;
}

std::unique_ptr<QPrinter> DesktopServices::default_output(const std::string& title) {
  auto printer = std::make_unique<QPrinter>();
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) return printer;
  const QString name = QFileInfo(to_qt(title).trimmed().replace(u'/', u'-')).completeBaseName();
  const std::string path = ask_file({.kind = FileKind::PrintedPage,
                                     .save = true,
                                     .file_name = QFile::encodeName(name + QStringLiteral(".pdf")).toStdString(),
                                     .filter = file_filters::pages});
  if (path.empty()) return nullptr;
  printer->setOutputFormat(QPrinter::PdfFormat);
  printer->setOutputFileName(QFile::decodeName(path.c_str()));
  return printer;
}

void DesktopServices::print_line(const std::string& line) { lines_ << latin1_to_qt(line); }

void DesktopServices::end_document(const std::string& title) {
  const QStringList lines = std::exchange(lines_, {});
  const auto printer = default_output(title);
  if (!printer) return;
  printer->setDocName(to_qt(title));
  WindowTask task(*this);
  print_pages(*printer, [&lines, &task](QPagedPaintDevice& pages) { print_lines(pages, lines, task); });
}

void DesktopServices::print_window(Window& window) {
  const auto* binder = desktop_->binder(window.name());
  if (binder == nullptr) return;
  auto chosen = std::exchange(set_up_, nullptr);
  const std::string crystal = window.shows_crystal ? desktop_->crystal_name() : "";
  if (!chosen) chosen = default_output(crystal.empty() ? window.caption() : crystal + ".pdf");
  if (!chosen) return;
  chosen->setDocName(to_qt(window.caption()).trimmed());
  const QPixmap image = binder->widget().grab();
  print_pages(*chosen, [&](QPagedPaintDevice& pages) {
    QPainter painter(&pages);
    if (!painter.isActive()) throw RunFailure("cannot print the window " + window.caption());
    const QSizeF size = QSizeF(image.size()).scaled(page_size(pages), Qt::KeepAspectRatio);
    painter.drawPixmap(QRectF({}, size), image, QRectF(image.rect()));
  });
}

std::unique_ptr<Surface> DesktopServices::make_surface(int width, int height) {
  return std::make_unique<QtSurface>(width, height);
}

void DesktopServices::export_picture(Canvas& canvas, const std::string& path) {
  WindowTask task(*this);
  zol::export_picture(canvas, path, 1.0, task);
}

void print_lines(QPagedPaintDevice& pages, const QStringList& lines, Task& task) {
  QPainter painter(&pages);
  if (!painter.isActive()) throw RunFailure("cannot print the report: the printer does not answer");
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  constexpr int points = 9;
  font.setPointSize(points);
  painter.setFont(font);
  const QFontMetricsF metrics(font, &pages);
  const double page = page_size(pages).height();
  double y = 0;
  int count = 0;
  for (const QString& line : lines) {
    task.report(++count, static_cast<int>(lines.size()));
    task.check();
    if (y + metrics.lineSpacing() > page) {
      pages.newPage();
      y = 0;
    }
    painter.drawText(QPointF(0, y + metrics.ascent()), line);
    y += metrics.lineSpacing();
  }
}

}  // namespace zol
