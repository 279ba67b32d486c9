#include "shell/desktop/desktop_services.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QInputDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinterInfo>

#include "core/run_failure.h"
#include "shell/desktop/picture_export.h"
#include "shell/desktop/qt_surface.h"
#include "shell/desktop/qt_text.h"

namespace zol {
namespace {

QString tr(const char* text) { return QCoreApplication::translate("zol", text); }

/// "name|*.ending|" as a filter of Qt, with "all files" behind it.
QString qt_filter(const std::string& filter) {
  QStringList filters;
  const QStringList pieces = to_qt(filter).split(u'|');
  for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
    filters << QStringLiteral("%1 (%2)").arg(pieces[i], QString(pieces[i + 1]).replace(u';', u' '));
  }
  filters << tr("All files (*)");
  return filters.join(QStringLiteral(";;"));
}

}  // namespace

std::string DesktopServices::ask_file(const FileQuestion& question) {
  const QString folder = last_folder_.isEmpty() ? to_qt(question.initial_folder) : last_folder_;
  const QString preset = to_qt(question.file_name);
  const QString start = preset.isEmpty() || !question.save ? folder : preset;
  auto* parent = QApplication::activeWindow();
  const QString filter = qt_filter(question.filter);
  const QString path = question.save ? QFileDialog::getSaveFileName(parent, tr("Save"), start, filter)
                                     : QFileDialog::getOpenFileName(parent, tr("Open"), start, filter);
  if (path.isEmpty()) return "";
  last_folder_ = QFileInfo(path).absolutePath();
  return QFile::encodeName(path).toStdString();
}

void DesktopServices::set_up_printer() {
  if (QPrinterInfo::availablePrinterNames().isEmpty()) return;  // a PDF file is asked for when something is printed
  QPrinter printer;
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  if (dialog.exec() == QDialog::Accepted) chosen_printer_ = printer.printerName();
}

std::string DesktopServices::prompt(const std::string& text, const std::string& title) {
  bool accepted = false;
  const QString answer =
      QInputDialog::getText(QApplication::activeWindow(), to_qt(title), to_qt(text), QLineEdit::Normal, {}, &accepted);
  return accepted ? from_qt(answer) : "";
}

void DesktopServices::message(const std::string& text, const std::string& title) {
  QMessageBox::warning(QApplication::activeWindow(), to_qt(title), to_qt(text));
}

bool DesktopServices::choose_output(QPrinter& printer) {
  if (!chosen_printer_.isEmpty()) {
    printer.setPrinterName(chosen_printer_);
    return true;
  }
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) return true;
  const QString path = QFileDialog::getSaveFileName(QApplication::activeWindow(), tr("No printer: print to a PDF file"),
                                                    last_folder_, tr("PDF files (*.pdf)"));
  if (path.isEmpty()) return false;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(path);
  return true;
}

void DesktopServices::print_line(const std::string& line) { lines_ << to_qt(line); }

void DesktopServices::end_document() {
  const QStringList lines = std::exchange(lines_, {});
  QPrinter printer;
  if (choose_output(printer)) print_lines(printer, lines);
}

void DesktopServices::print_window(Window& window) {
  const auto* binder = desktop_->binder(window.name());
  QPrinter printer;
  if (binder == nullptr || !choose_output(printer)) return;
  QPainter painter(&printer);
  if (!painter.isActive()) throw RunFailure("can't print the window " + window.caption());
  const QPixmap image = binder->widget().grab();
  const QSizeF page = printer.pageLayout().paintRectPixels(printer.resolution()).size();
  painter.drawPixmap(QRectF({}, QSizeF(image.size()).scaled(page, Qt::KeepAspectRatio)), image, QRectF(image.rect()));
}

std::unique_ptr<Surface> DesktopServices::make_surface(int width, int height) {
  return std::make_unique<QtSurface>(width, height);
}

void DesktopServices::export_picture(Canvas& canvas, const std::string& path) { zol::export_picture(canvas, path); }

void print_lines(QPrinter& printer, const QStringList& lines) {
  QPainter painter(&printer);
  if (!painter.isActive()) throw RunFailure("can't print the report: the printer does not answer");
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  constexpr int points = 9;
  font.setPointSize(points);
  painter.setFont(font);
  const QFontMetricsF metrics(font, &printer);
  const double page = printer.pageLayout().paintRectPixels(printer.resolution()).height();
  double y = 0;
  for (const QString& line : lines) {
    if (y + metrics.lineSpacing() > page) {
      printer.newPage();
      y = 0;
    }
    painter.drawText(QPointF(0, y + metrics.ascent()), line);
    y += metrics.lineSpacing();
  }
}

}  // namespace zol
