#include "shell/desktop/library/library_reading.h"

#include <new>
#include <system_error>
#include <utility>

#include <QElapsedTimer>
#include <QMetaObject>

#include "core/run_failure.h"
#include "shell/desktop/qt_text.h"

namespace zol {

class LibraryReading::StoppedTask : public Task {
 public:
  explicit StoppedTask(LibraryReading& reading) : reading_(reading) { clock_.start(); }
  void report(int done, int total) override {
    constexpr int pause_ms = 100;
    if (done < total && clock_.elapsed() < pause_ms) return;
    clock_.start();
    LibraryReading* reading = &reading_;
    QMetaObject::invokeMethod(reading, [reading, done, total] { emit reading->read(done, total); });
  }
  void check() override {
    if (reading_.stopped_) throw Cancelled();
  }

 private:
  LibraryReading& reading_;
  QElapsedTimer clock_;
};

LibraryReading::LibraryReading(std::string folder, std::string index_file,
                               std::function<std::string(int)> path_of_group)
    : folder_(std::move(folder)), index_file_(std::move(index_file)), groups_(std::move(path_of_group)) {}

LibraryReading::~LibraryReading() {
  stopped_ = true;
  if (thread_.joinable()) thread_.join();
}

void LibraryReading::look() {
  if (under_way_) {
    again_ = true;
    return;
  }
  begin();
}

void LibraryReading::begin() {
  if (thread_.joinable()) thread_.join();
  again_ = false;
  try {
    thread_ = std::thread([this] { run(); });
    under_way_ = true;
  } catch (const std::system_error& error) {
    emit ended(QString::fromLocal8Bit(error.what()));
  }
}

/// On the thread; what it tells is told on that of the windows.
void LibraryReading::run() {
  QString fault;
  try {
    StoppedTask task(*this);
    Entries latest;
    update_library(
        folder_, index_file_, groups_,
        [this, &latest](LibraryEntries entries) {
          auto shared = std::make_shared<const LibraryEntries>(std::move(entries));
          latest = shared;
          QMetaObject::invokeMethod(this, [this, shared] { emit found(shared); });
        },
        task, known_ ? *known_ : LibraryEntries());
    known_ = latest;
  } catch (const RunFailure& failure) {
    fault = to_qt(failure.message());
  } catch (const std::exception& error) {
    fault = QString::fromLocal8Bit(error.what());
  } catch (const Cancelled&) {  // the program ends
  }
  QMetaObject::invokeMethod(this, [this, fault] { finish(fault); });
}

void LibraryReading::finish(const QString& fault) {
  under_way_ = false;
  emit ended(fault);
  if (again_) begin();
}

}  // namespace zol
