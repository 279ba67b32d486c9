// The one place that sees the parser's own headers.
#include "structures/cif_document.h"

#include <algorithm>
#include <cctype>
#include <gemmi/cif.hpp>

#include "core/run_failure.h"
#include "structures/cif_text.h"

namespace zol {
namespace {

std::string normal_tag(std::string tag) {
  for (char& c : tag) c = c == '.' ? '_' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return tag;
}

std::optional<std::string> value_of(const std::string& raw) {
  if (gemmi::cif::is_null(raw)) return std::nullopt;
  return gemmi::cif::as_string(raw);
}

bool has_value(const CifColumn& column) {
  return std::any_of(column.values.begin(), column.values.end(), [](const auto& value) { return value.has_value(); });
}

/// Of a tag that stands twice the first with a value counts.
void add_column(CifDocument& document, CifBlock& block, const std::string& tag, CifColumn column) {
  const auto [place, is_new] = block.columns.try_emplace(normal_tag(tag), column);
  if (is_new) return;
  if (place->second.values != column.values) {
    document.notes.assume("line " + std::to_string(column.line) + ": " + tag +
                          " occurs twice; the first one with a value is used");
  }
  if (!has_value(place->second)) place->second = std::move(column);
}

/// Measured reflections, which no one looks at: millions of them would take longer than all the rest.
bool is_long_list_of_intensities(const gemmi::cif::Loop& loop) {
  constexpr std::size_t long_list = 10000;
  return loop.length() > long_list && std::all_of(loop.tags.begin(), loop.tags.end(), [](const std::string& tag) {
           const std::string name = normal_tag(tag);
           return name.rfind("_refln_", 0) == 0 || name.rfind("_diffrn_refln_", 0) == 0;
         });
}

void add_items(CifDocument& document, CifBlock& block, const std::vector<gemmi::cif::Item>& items, int& loops) {
  for (const auto& item : items) {
    if (item.type == gemmi::cif::ItemType::Pair) {
      add_column(document, block, item.pair[0], {{value_of(item.pair[1])}, 0, item.line_number});
    } else if (item.type == gemmi::cif::ItemType::Loop) {
      const auto& loop = item.loop;
      ++loops;
      if (is_long_list_of_intensities(loop)) continue;
      for (std::size_t column = 0; column < loop.width(); ++column) {
        CifColumn values{{}, loops, item.line_number};
        for (std::size_t row = 0; row < loop.length(); ++row) values.values.push_back(value_of(loop.val(row, column)));
        add_column(document, block, loop.tags[column], std::move(values));
      }
    }
  }
}

}  // namespace

const CifColumn* CifBlock::find(std::initializer_list<std::string_view> tags) const {
  for (const auto tag : tags) {
    const auto found = columns.find(std::string(tag));
    if (found != columns.end() && has_value(found->second)) return &found->second;
  }
  return nullptr;
}

std::optional<std::string> CifBlock::value(std::initializer_list<std::string_view> tags) const {
  const CifColumn* column = find(tags);
  if (column == nullptr) return std::nullopt;
  for (const auto& value : column->values) {
    if (value) return value;
  }
  return std::nullopt;
}

CifDocument parse_cif(std::string_view bytes) {
  MendedCif mended = mended_cif(bytes);
  CifDocument document{{}, std::move(mended.notes)};
  gemmi::cif::Document parsed;
  try {
    namespace pegtl = gemmi::cif::pegtl;
    pegtl::memory_input<> in(mended.text, "");
    gemmi::cif::parse_input(parsed, in);  // without its checks for tags and blocks that stand twice
  } catch (const gemmi::cif::pegtl::parse_error& error) {
    const std::size_t line = error.positions().empty() ? 0 : error.positions().front().line;
    throw RunFailure("line " + std::to_string(line) + ": " + error.what());
  }
  int loops = 0;
  for (const auto& block : parsed.blocks) {
    document.blocks.push_back({block.name, {}});
    add_items(document, document.blocks.back(), block.items, loops);
  }
  return document;
}

}  // namespace zol
