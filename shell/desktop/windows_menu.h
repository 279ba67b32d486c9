// A menu in every window that names all open ones, goes to them and puts them side by side.
#pragma once

#include <map>
#include <string>
#include <vector>

#include <QObject>
#include <QString>

class QAction;
class QMainWindow;
class QMenu;

namespace zol {

class Window;

class WindowsMenu : public QObject {
  Q_OBJECT

 public:
  WindowsMenu() = default;
  ~WindowsMenu() override;

  /// A window has come into being: its menu bar gets the menu.
  void add(const Window& window, QMainWindow& top);
  void remove(const Window& window);
  /// To be called after each event: which windows are open, and what they show.
  void update();
  /// Puts the open windows side by side on the screen of one of them.
  void arrange(QMainWindow& current);

 private:
  struct Entry {
    const Window* window;
    QMainWindow* top;
    QString kind;    ///< its caption at the start: later it may name a file
    QMenu* menu;     ///< a child of the top level
    int opened = 0;  ///< the how many-th window that was opened; 0 while it is not open
  };
  [[nodiscard]] std::vector<const Entry*> open() const;
  [[nodiscard]] std::vector<QMainWindow*> in_order_of_use(QMainWindow& current) const;
  void add_action();
  void check(const QMainWindow& current);

  std::map<std::string, Entry> entries_;
  std::vector<QAction*> actions_;     ///< in all menus: the first, the second, ... open window
  std::vector<QMainWindow*> listed_;  ///< to which they go
  int last_opened_ = 0;
};

/// What a window is called in a list of windows. @param kind  its caption at the start  @param title  its title now
[[nodiscard]] QString listed_title(const QString& kind, const QString& title);

}  // namespace zol
