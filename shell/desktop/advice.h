// What the windows say beside their controls: signs where an action would end the run or be of no use, lines over lists
// and pictures that are old or wrong by sense, and at the foot of a window the state that it shares with others.
#pragma once

#include <map>
#include <string>

#include <QObject>
#include <QString>

#include "shell/desktop/user_events.h"
#include "shell/program/result_notes.h"

class QWidget;

namespace zol {

class Advice : public QObject {
 public:
  Advice(Program& program, UserEvents& events);

  /// A window has come into being.
  void add(Window& window, QWidget& top);
  void remove(const Window& window);
  /// To be called after each event.
  void update();

 private:
  class OfWindow;

  /// Asked once in each update, since it may walk through a long list.
  const QString& said_of(SharedPart part);

  Program& program_;
  UserEvents& events_;
  ResultNotes notes_;
  std::map<SharedPart, QString> said_;
  std::map<std::string, OfWindow*> windows_;  ///< each is a child of its top level
};

}  // namespace zol
