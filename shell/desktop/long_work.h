// The way out of an event that takes long: what is being done, how far it is, and a button and a key that stop it.
//
// Calculations ask stop_wanted() every few milliseconds. Once the event has run for a second, each look lets the
// windows repaint and be moved, while nothing that the user does reaches them but Esc and the button.
#pragma once

#include <functional>
#include <utility>

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include "shell/services/event_gate.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace zol {

class LongWork : public QObject {
 public:
  struct Host {
    std::function<QWidget*(const std::string& window)> widget_of;  ///< nullptr where it has none
    std::function<QString(const UserEvent& event)> name_of;        ///< of what is being done
  };
  explicit LongWork(Host host) : host_(std::move(host)) {}
  ~LongWork() override;

  void begin(const UserEvent& event);
  /// @param stopped  by the user, which the window says
  void end(bool stopped);

  /// done rises to total; another total is another part of the work.
  void report(int done, int total);
  /// Shows the bar where it is time for it, and looks every now and then what the user does.
  [[nodiscard]] bool stop_wanted();

  /// The user wants the event that runs, however long it takes.
  void confirm() { confirmed_ = true; }
  [[nodiscard]] bool confirmed() const { return confirmed_; }

  /// The bar is there, and input goes nowhere else.
  [[nodiscard]] bool shown() const { return shown_; }

  /// As long as it lives the windows repaint: that is not stopped.
  class Looking {
   public:
    explicit Looking(LongWork& work) : work_(work), before_(std::exchange(work.looking_, true)) {}
    Looking(const Looking&) = delete;
    Looking& operator=(const Looking&) = delete;
    ~Looking() { work_.looking_ = before_; }

   private:
    LongWork& work_;
    bool before_;
  };

  /// As long as it lives a dialog asks the user: that is no work, and its input is its own.
  class Pause {
   public:
    explicit Pause(LongWork* work) : work_(work) {
      if (work_ != nullptr) work_->pause();
    }
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;
    ~Pause() {
      if (work_ != nullptr) work_->go_on();
    }

   private:
    LongWork* work_;
  };

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void pause();
  void go_on();
  void show();
  void hide();
  void make_bar(QWidget& window);
  void place_bar();
  void tell();
  void look();
  [[nodiscard]] QWidget* window_to_tell() const;
  [[nodiscard]] bool takes(QObject* receiver, QEvent* event);
  [[nodiscard]] bool is_for_button(const QObject* receiver, const QEvent& event) const;

  Host host_;
  const UserEvent* event_ = nullptr;  ///< that runs
  QElapsedTimer clock_;               ///< since it began, or since the last dialog
  qint64 next_look_ms_ = 0;
  qint64 next_words_ms_ = 0;
  bool shown_ = false;
  bool looking_ = false;
  bool stop_ = false;
  bool confirmed_ = false;
  int pauses_ = 0;

  int done_ = 0, total_ = 0;  ///< as reported last; total 0: nothing yet
  int first_done_ = 0;        ///< of this part
  qint64 part_began_ms_ = 0;

  QPointer<QWidget> bar_;
  QLabel* what_ = nullptr;
  QProgressBar* part_ = nullptr;
  QLabel* time_ = nullptr;
  QPushButton* cancel_ = nullptr;
};

/// "3 s", "2 min 05 s"
[[nodiscard]] QString duration_text(double seconds);

}  // namespace zol
