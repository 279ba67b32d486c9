// Places and sizes of the windows, kept from one run to the next.
#pragma once

#include <map>

#include <QObject>
#include <QRect>
#include <QTimer>

class QMainWindow;
class QSettings;

namespace zol {

class Window;

class WindowPlaces : public QObject {
 public:
  /// @param settings  where they are kept; nullptr: nowhere
  explicit WindowPlaces(QSettings* settings);
  ~WindowPlaces() override;

  /// A window that has not been shown yet comes up where it stood; from now on it is followed.
  void follow(const Window& window, QMainWindow& top);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void write();

  QSettings* settings_;
  std::map<QString, QRect> moved_;  ///< since the last writing, by the name of the window
  QTimer soon_;
};

}  // namespace zol
