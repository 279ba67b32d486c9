// Thin lines of words that cost a window no width, and lists that leave room for one.
#pragma once

#include <functional>

#include <QListView>
#include <QString>
#include <QToolButton>
#include <QWidget>

namespace zol {

/// One line of words, cut off with dots where it has no room; the tooltip says all.
class WordLine : public QWidget {
 public:
  explicit WordLine(QWidget* parent = nullptr);
  void set_words(const QString& words);
  [[nodiscard]] const QString& words() const { return words_; }
  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString words_;
};

class NotedList : public QListView {
 public:
  using QListView::QListView;
  void set_note_room(int pixels) { setViewportMargins(0, pixels, 0, 0); }
  /// Frames a row and brings it into sight; -1: none.
  void light(int row);
  [[nodiscard]] int lit() const { return lit_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int lit_ = -1;
};

/// A line at the head of a list or a picture, outside of what it shows, with a button where something can be done.
class NoteLine : public QWidget {
 public:
  /// @param view    makes room for it
  /// @param clicked  of the button
  NoteLine(QWidget& view, std::function<void(int pixels)> make_room, std::function<void()> clicked);
  /// @param words  empty: the line goes
  void set_note(const QString& words, bool with_button);
  [[nodiscard]] const QString& words() const { return line_.words(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void place();

  QWidget& view_;
  std::function<void(int)> make_room_;
  WordLine line_{this};
  QToolButton button_{this};
};

/// A small sign on the corner of a widget: a triangle with an exclamation mark.
class WarningSign : public QWidget {
 public:
  explicit WarningSign(QWidget& at);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void place();

  QWidget& at_;
};

/// The same sign as an icon.
[[nodiscard]] QIcon warning_icon();

}  // namespace zol
