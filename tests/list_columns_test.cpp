// What the columns of the lists say against what the windows have written there, so that a changed format is noticed.
#include <cmath>

#include "analysis/window/pattern3_form.h"
#include "calculators/window/atom_distance_form.h"
#include "core/cell_geometry.h"
#include "kikuchi/window/pattern2_form.h"
#include "powder/window/dring_form.h"
#include "powder/window/xd_form.h"
#include "shell/services/list_table.h"
#include "tests/program_test.h"

namespace zol {
namespace {

class ListColumnsTest : public ProgramTest {
 protected:
  /// The rows of a list as numbers by column; what is none is NaN.
  struct Read {
    ListTable table;
    [[nodiscard]] int rows() const { return table.rows(); }
    [[nodiscard]] std::string text(int row, const char* column) const {
      return table.cells(row)[static_cast<std::size_t>(table.column_named(column))];
    }
    double operator()(int row, const char* column) const { return number_of_cell(text(row, column)); }
  };
  static Read read(const ListBox& list) {
    Read rows{ListTable(*list.table, list.contents().items, {})};
    EXPECT_GT(rows.rows(), 0) << list.path();
    return rows;
  }
};

TEST_F(ListColumnsTest, OfAtomsAndReflections) {
  for (const auto* crystal : {"Quartz.cry", "NaCl.cry", "Albite.cry", "CopperLines.cry"}) {
    load(crystal);
    const auto reflections = read(main1().List2);
    for (int i = 0; i < reflections.rows(); ++i) {
      const auto at = [&](const char* column) { return reflections(i, column); };
      const auto index = [&](const char* column) { return Integer::rounded(at(column)); };
      const double length = DHKL(state, index("h"), index("k"), index("l"));
      EXPECT_NEAR(at("s"), length / 2, 6e-4) << crystal << i;
      EXPECT_NEAR(at("d"), 1 / length, 6e-5) << crystal << i;
      EXPECT_NEAR(std::sin(at("2theta") / 2 * degree), state.WaveLength * length / 2, 1e-5) << crystal << i;
      EXPECT_NEAR(at("F"), std::hypot(at("A"), at("B")), 0.011) << crystal << i;
      const double scale = state.NAtom > 0 ? 1e5 / std::pow(double{state.CellVolume}, 2) : 0;
      const double f = at("F");
      const double rounding = scale > 0 ? 0.011 * f * scale + 1e-3 : 0.006;
      EXPECT_NEAR(at("I"), scale > 0 ? f * f * scale : f, rounding) << crystal << i;
    }
    if (state.NAtom < 1) continue;
    const auto atoms = read(main1().List1);
    ASSERT_EQ(atoms.rows(), state.NCell.value());
    for (int m = 1; m <= atoms.rows(); ++m) {
      EXPECT_EQ(atoms(m - 1, "number"), m);
      EXPECT_EQ(atoms.text(m - 1, "label"), state.UCLabel(m));
      EXPECT_EQ(atoms.text(m - 1, "element"), state.UCElement(m));
      EXPECT_NEAR(atoms(m - 1, "occupancy"), state.UCOcc(m), 1e-4);
      EXPECT_NEAR(atoms(m - 1, "z"), state.UCPos(m, 3), 1e-5);
      EXPECT_NEAR(atoms(m - 1, "B"), state.UCB(m), 1e-5);
    }
  }
  EXPECT_EQ(read(main1().List3).text(224, "symbol"), "Fm3m");
}

TEST_F(ListColumnsTest, OfDistances) {
  for (const auto* crystal : {"Quartz.cry", "Albite.cry", "ZnO.cry"}) {
    load(crystal);
    auto& form = window<AtomDistanceForm>();
    form.Text1.set_text("3");
    form.Command1.click();
    const auto rows = read(form.List1);
    QuietTask task;
    int row = 0;
    int site = 0;
    for (const auto& of_site : atom_distances(state, form.cell, 3, task)) {
      ++site;
      for (const auto& found : of_site) {
        EXPECT_EQ(rows.text(row, "atom 1"), state.AtomLabel(site));
        EXPECT_EQ(rows.text(row, "element 1"), state.AtomElement(site));
        EXPECT_EQ(rows.text(row, "atom 2"), state.UCLabel(found.cell_atom));
        EXPECT_EQ(rows.text(row, "element 2"), state.UCElement(found.cell_atom));
        EXPECT_NEAR(rows(row++, "distance"), found.distance, 6e-5);
      }
    }
    EXPECT_EQ(rows.rows(), row);
  }
}

TEST_F(ListColumnsTest, OfPeaks) {
  for (const auto* crystal : {"Quartz.cry", "NaCl.cry"}) {
    load(crystal);
    main1().Combo1.pick(0);
    main1().Command6.click();
    main1().Command7.click();
    main1().Command8.click();
    const auto peaks = read(window<XdForm>().List1);
    for (int i = 0; i < peaks.rows(); ++i) {
      EXPECT_NEAR(2 * peaks(i, "d") * std::sin(peaks(i, "2theta") / 2 * degree), state.WaveLength, 0.02) << crystal;
      EXPECT_LE(peaks(i, "I/Io"), 100);
    }
    const auto rings = read(window<DringForm>().List1);
    const auto strongest = rings.table.arranged(1, true, "").front();
    EXPECT_EQ(rings(strongest, "I/Io"), 100);
    EXPECT_GE(rings(0, "d"), rings(rings.rows() - 1, "d"));
  }
}

TEST_F(ListColumnsTest, OfBands) {
  for (const auto* crystal : {"Silicon.cry", "Quartz.cry"}) {
    load(crystal);
    main1().Command10.click();
    auto& form = window<Pattern2Form>();
    form.Text5.set_text("1");
    form.Command8.click();
    const auto bands = read(form.List1);
    for (int i = 0; i < bands.rows(); ++i) {
      EXPECT_EQ(bands(i, "number"), i + 1);
      EXPECT_EQ(bands(i, "h"), state.BandHKL(i, 0).value());
      EXPECT_EQ(bands(i, "l"), state.BandHKL(i, 2).value());
      EXPECT_LE(bands(i, "latitude"), state.CamAcquisition * 1.5);
      EXPECT_LE(std::abs(bands(i, "azimuth")), 360);
      EXPECT_LE(bands(i, "grey"), 255);
    }
  }
}

TEST_F(ListColumnsTest, OfSolutions) {
  load("Silicon.cry");
  auto& form = window<Pattern3Form>();
  TripleTable triples = form.triples;
  const auto row = [&](Solution solution) {
    form.Heading.set_caption(solution_heading(3, solution.width_error_percent.has_value()));
    form.List1.clear();
    form.List1.add_item(solution_line(triples, solution));
    form.List1.add_item("    No. of solution = 1");
    return read(form.List1);
  };
  Solution solution{7, 1, {1000, -20.5F, 3}, {0.5F, -1.25F, 12}, {}, SolvedBy::FirstRoot, 0};
  for (const int number : {7, 123}) {
    solution.number = number;
    const auto cells = row(solution);
    ASSERT_EQ(cells.rows(), 1);
    EXPECT_EQ(cells(0, "no"), number);
    int c = 0;
    for (const auto* index : {"h1", "k1", "l1", "h2", "k2", "l2", "h3", "k3", "l3"}) {
      EXPECT_EQ(cells(0, index), triples.TripleHKL(1, c++).value()) << index;
    }
    EXPECT_EQ(cells(0, "u"), 1000);
    EXPECT_EQ(cells(0, "v"), -20.5);
    EXPECT_EQ(cells(0, "d31"), 12);
    EXPECT_EQ(cells.text(0, "solved by"), "A1");
  }
  solution.width_error_percent = {1, -22.5, 0};
  EXPECT_EQ(row(solution)(0, "w2"), -22.5);
}

}  // namespace
}  // namespace zol
