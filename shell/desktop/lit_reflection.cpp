#include "shell/desktop/lit_reflection.h"

#include <utility>

#include <QEvent>
#include <QListView>
#include <QMainWindow>
#include <QStringView>

#include "shell/desktop/note_line.h"

namespace zol {
namespace {

/// A list whose rows are reflections.
class ReflectionRows : public QObject {
 public:
  explicit ReflectionRows(NotedList& list) : QObject(&list), list_(list) {
    list.setMouseTracking(true);
    list.viewport()->installEventFilter(this);
    connect(&list, &QListView::entered, this, [this](const QModelIndex& index) {
      LitReflection::of_program().light(*this, indices_at_head(index.data().toString()));
    });
    connect(&LitReflection::of_program(), &LitReflection::changed, this,
            [this](const QObject* source, const LitReflection::Indices& hkl) {
              if (source != this) list_.light(hkl && list_.isVisible() ? row_of(*hkl) : -1);
            });
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Leave) LitReflection::of_program().light(*this, std::nullopt);
    return QObject::eventFilter(watched, event);
  }

 private:
  [[nodiscard]] int row_of(const std::array<int, 3>& hkl) const {
    const int rows = list_.model() == nullptr ? 0 : list_.model()->rowCount();
    for (int row = 0; row < rows; ++row) {
      if (indices_at_head(list_.model()->index(row, 0).data().toString()) == hkl) return row;
    }
    return -1;
  }

  NotedList& list_;
};

}  // namespace

LitReflection& LitReflection::of_program() {
  static LitReflection lit;
  return lit;
}

void LitReflection::light(const QObject& source, const Indices& hkl) {
  if (std::exchange(lit_, hkl) != hkl) emit changed(&source, hkl);
}

LitReflection::Indices indices_at_head(const QString& row) {
  std::array<int, 3> hkl{};
  QStringView rest(row);
  for (int& index : hkl) {
    while (rest.startsWith(u' ')) rest = rest.mid(1);
    const auto end = rest.indexOf(u' ');
    bool whole = false;
    index = rest.left(end < 0 ? rest.size() : end).toInt(&whole);
    if (!whole) return std::nullopt;
    rest = rest.mid(end < 0 ? rest.size() : end);
  }
  return hkl;
}

void tie_lists_of_reflections(QMainWindow& window) {
  for (auto* list : window.findChildren<QListView*>()) {
    auto* noted = dynamic_cast<NotedList*>(list);
    if (noted != nullptr && list->property("rows") == QLatin1String("indices")) new ReflectionRows(*noted);
  }
}

}  // namespace zol
