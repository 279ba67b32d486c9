#include "entry/structure_readers.h"

#include <array>
#include <utility>

namespace zol {
namespace {

struct CellTag {
  std::string_view tag;
  BoxText::Box box;
};
constexpr std::array cell_tags{
    CellTag{"_cell_length_a", BoxText::Box::a},
    CellTag{"_cell_length_b", BoxText::Box::b},
    CellTag{"_cell_length_c", BoxText::Box::c},
    CellTag{"_cell_angle_alpha", BoxText::Box::alpha},
    CellTag{"_cell_angle_beta", BoxText::Box::beta},
    CellTag{"_cell_angle_gamma", BoxText::Box::gamma},
    CellTag{"_symmetry_Int_Tables_number", BoxText::Box::space_group_number},
};

}  // namespace

LineContents CifReader::take(std::string_view line) {
  words_.take(line);
  LineContents found;
  for (const auto& [tag, box] : cell_tags) {
    if (words_(1) != tag) continue;
    if (box != BoxText::Box::space_group_number) words_.strip(2);
    found.texts.push_back({box, words_(2)});
  }
  follow_loop();
  const bool atom_row = in_atom_loop_ && words_(1).find("atom") == std::string::npos;
  if (atom_row) found.site = take_atom();
  return found;
}

/// Switches the atom loop on and off, counts its lines and notes the columns of its tags.
void CifReader::follow_loop() {
  const std::string& word = words_(1);
  if (word == "_atom_site_label") in_atom_loop_ = true;
  if (words_.count() == 0 || word.starts_with('#') || word == "loop_") in_atom_loop_ = false;
  if (in_atom_loop_) loop_column_ += 1;

  const std::array<std::pair<std::string_view, Integer&>, 7> columns{{{"_atom_site_label", label_},
                                                                      {"_atom_site_type_symbol", element_},
                                                                      {"_atom_site_fract_x", x_},
                                                                      {"_atom_site_fract_y", y_},
                                                                      {"_atom_site_fract_z", z_},
                                                                      {"_atom_site_occupancy", occupancy_},
                                                                      {"_atom_site_B_iso_or_equiv", b_iso_}}};
  for (const auto& [tag, column] : columns) {
    if (word == tag) column = loop_column_;
  }
}

AtomSite CifReader::take_atom() {
  for (int i = 1; i <= words_.count(); ++i) words_.strip(i);
  words_.cut_before_digits(element_.value());  // in its place: a column of the same number reads what is left
  AtomSite site{words_(label_.value()), words_(element_.value())};
  if (occupancy_ != 0) site.occupancy = words_.number(occupancy_.value(), "an occupancy");
  site.position = {words_.number(x_.value(), "a coordinate x"), words_.number(y_.value(), "a coordinate y"),
                   words_.number(z_.value(), "a coordinate z")};
  if (b_iso_ >= 1) site.b = words_.number(b_iso_.value(), "a temperature factor B");
  return site;
}

LineContents IcsdReader::take(std::string_view line) {
  using enum BoxText::Box;
  words_.take(line);
  LineContents found;
  const std::string& word = words_(1);
  if (word == "Unit" && words_(2) == "Cell") {
    int place = 3;
    for (const auto box : {a, b, c, alpha, beta, gamma}) {
      words_.strip(place);
      found.texts.push_back({box, words_(place++)});
    }
  }
  if (word == "SG") found.texts.push_back({space_group_number, words_(3)});
  if (word == "Atom") block_ = words_(10) == "ITF(B)" ? AtomBlock::WithB : AtomBlock::WithoutB;
  if (word == "*end" || word == "Lbl") block_ = AtomBlock::Outside;
  if (word != "Atom" && block_ != AtomBlock::Outside) found.site = take_atom();
  return found;
}

/// Words of a row: element, number of the site, three that are not read, x, y, z, occupancy, one not read, B.
AtomSite IcsdReader::take_atom() {
  for (int i = 6; i <= 11; ++i) words_.strip(i);
  AtomSite site{words_(1) + words_(2), words_(1), words_.number(9, "an occupancy")};
  site.position = {words_.number(6, "a coordinate x"), words_.number(7, "a coordinate y"),
                   words_.number(8, "a coordinate z")};
  if (block_ == AtomBlock::WithB) site.b = words_.number(11, "a temperature factor B");
  return site;
}

}  // namespace zol
