// The texts of one language, as Qt Linguist writes them.
#pragma once

#include <optional>
#include <vector>

#include <QHash>
#include <QString>
#include <QStringList>

class QIODevice;

namespace zol {

/// The text without the marks of its mnemonics; "&&" stays.
[[nodiscard]] QString without_mnemonic(const QString& text);
/// Where the letter of the mnemonic stands in a text, behind its "&"; -1: it has none.
[[nodiscard]] qsizetype mnemonic_at(const QString& text);

/// A table from English texts to those of another language. A source with %1, %2 is a template: it stands for all texts
/// that have anything in those places. In the translation %1 is what stood there, %L1 the translation of it. A source
/// with a mnemonic stands for that text alone where there is another one without: "&Copy" beside "Copy".
class Phrases {
 public:
  struct Entry {
    QString source;
    QString translation;
  };

  Phrases() = default;
  explicit Phrases(const std::vector<Entry>& entries);
  /// The finished entries of a .ts file. @returns none where the file is broken
  [[nodiscard]] static std::vector<Entry> read(QIODevice& file);

  /// What is shown for a text; nothing where neither it nor its parts are known.
  [[nodiscard]] std::optional<QString> find(const QString& text) const;
  [[nodiscard]] bool empty() const { return exact_.isEmpty(); }

 private:
  struct Template {
    QStringList literals;      ///< what stands before, between and behind the places
    std::vector<int> numbers;  ///< of the places, in their order
    QString translation;
    qsizetype letters = 0;  ///< of the literals: how much they tell
  };

  [[nodiscard]] static Template template_of(const Entry& entry);
  [[nodiscard]] static std::optional<QStringList> places(const Template& form, const QString& text);
  [[nodiscard]] std::optional<QString> look_up(const QString& text, int depth) const;
  [[nodiscard]] std::optional<QString> look_up_words(const QString& text) const;
  [[nodiscard]] std::optional<QString> fill(const Template& form, const QStringList& parts, int depth) const;
  [[nodiscard]] std::optional<QString> by_template(const QString& text, bool strict, int depth) const;
  [[nodiscard]] std::optional<QString> by_parts(const QString& text, bool all, int depth) const;

  QHash<QString, QString> exact_;
  std::vector<Template> templates_;  ///< those that tell most first
  mutable QHash<QString, std::optional<QString>> known_;
};

}  // namespace zol
