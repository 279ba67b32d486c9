// The reflection under the pointer, in whatever window: lists whose rows begin with h k l light up its row, pictures
// its marks.
#pragma once

#include <array>
#include <optional>

#include <QObject>

class QAbstractItemView;
class QMainWindow;

namespace zol {

class LitReflection : public QObject {
  Q_OBJECT

 public:
  using Indices = std::optional<std::array<int, 3>>;

  [[nodiscard]] static LitReflection& of_program();
  /// @param source  where the pointer is
  void light(const QObject& source, const Indices& hkl);

 signals:
  void changed(const QObject* source, const zol::LitReflection::Indices& hkl);

 private:
  Indices lit_;
};

/// The three whole numbers that a row begins with. @returns none where it does not
[[nodiscard]] LitReflection::Indices indices_at_head(const QString& row);

/// Ties each list whose layout says `rows` "indices".
void tie_lists_of_reflections(QMainWindow& window);

}  // namespace zol
