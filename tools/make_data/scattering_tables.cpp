#include "tools/make_data/scattering_tables.h"

#include <array>
#include <gemmi/it92.hpp>
#include <vector>

#include "core/record_reader.h"
#include "core/record_writer.h"

namespace zol {
namespace {

constexpr int last_element = 98;  // Cf

struct Row {
  std::string key;
  std::array<Single, 9> coefficients{};  // a1, b1, ... a4, b4, c
  int atomic_number = 0;
};

std::vector<Row> read_ions(const std::string& path) {
  std::vector<Row> rows;
  RecordReader file(path);
  while (!file.at_end()) {
    Row row;
    row.key = file.next_string("the key of an ion");
    for (auto& coefficient : row.coefficients) coefficient = file.next_single("a coefficient of " + row.key);
    row.atomic_number = file.next_integer("the atomic number of " + row.key).value();
    if (row.atomic_number < 1 || row.atomic_number > last_element) {
      file.fail("the atomic number of " + row.key + " is " + std::to_string(row.atomic_number) +
                ", it must be within 1 to 98");
    }
    rows.push_back(row);
  }
  return rows;
}

Row neutral_atom(int atomic_number) {
  const gemmi::Element element(atomic_number);
  const auto& factor = gemmi::IT92<double>::get(element.elem);
  Row row;
  row.key = element.name();
  auto next = row.coefficients.begin();
  for (int pair = 0; pair < 4; ++pair) {
    *next++ = to_single(factor.a(pair));
    *next++ = to_single(factor.b(pair));
  }
  *next = to_single(factor.c());
  row.atomic_number = atomic_number;
  return row;
}

void write_row(RecordWriter& file, const Row& row) {
  file.field(row.key);
  for (const Single coefficient : row.coefficients) file.field(coefficient);
  file.field(Integer(row.atomic_number)).end_line();
}

}  // namespace

void write_xray_table(const std::string& path, const std::string& ion_file) {
  const auto ions = read_ions(ion_file);
  RecordWriter file(path);
  for (int atomic_number = 1; atomic_number <= last_element; ++atomic_number) {
    write_row(file, neutral_atom(atomic_number));
    for (const auto& ion : ions) {
      if (ion.atomic_number == atomic_number) write_row(file, ion);
    }
  }
  file.commit();
}

}  // namespace zol
