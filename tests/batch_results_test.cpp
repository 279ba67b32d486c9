// What zol-batch calculates, against the windows of the program.
#include <algorithm>
#include <cmath>
#include <map>
#include <nlohmann/json.hpp>
#include <numbers>

#include <QImage>

#include "tests/batch_program.h"

namespace zol {
namespace {

using nlohmann::json;

TEST_F(Batch, InfoTellsWhatAFileHoldsAndWhatWasAssumed) {
  folder.write("broken.cif", "data_x\n");
  const auto text = batch("info " + crystals + "Silicon.cry " + crystals + "CopperLines.cry");
  EXPECT_EQ(text.status, 0);
  ASSERT_EQ(lines(text.out).size(), 2U);
  EXPECT_NE(text.out.find("Si, Z = 8, cell 5.4307 5.4307 5.4307 90 90 90, Fd3m (number 227, axes abc), 1 site, 8 atoms "
                          "in the cell, 2.329 g/cm3, shortest Si - Si 2.352 A\n"),
            std::string::npos)
      << text.out;
  EXPECT_NE(text.out.find("8 observed lines in the place of atoms"), std::string::npos);
  const auto outcome = batch("info --json " + cif + "quartz.cif broken.cif " + crystals + "NaCl.cry");
  EXPECT_EQ(outcome.status, 1) << "one of them is broken";
  const auto all = json::parse(outcome.out);
  ASSERT_EQ(all.size(), 2U) << "the others are told all the same";
  EXPECT_EQ(all[0]["formula"], "O2 Si");
  EXPECT_EQ(all[0]["assumed"], json({"no symmetry operators in the file; those of P 32 2 1 are taken"}));
  EXPECT_EQ(all[1]["z"], 4);
  // 4 (22.990 + 35.453) / 0.602214 / 5.6402^3; half the edge
  EXPECT_NEAR(all[1]["density_g_cm3"].get<double>(), 2.1635, 0.0005);
  EXPECT_NEAR(all[1]["shortest_distance"]["angstrom"].get<double>(), 2.8201, 1e-4);
}

TEST_F(Batch, ReflectionsAreTheLinesOfTheMainWindow) {
  struct Row {
    std::string file, radiation, choice, load;
  };
  for (const auto& [file, radiation, choice, load] : {Row{cif + "quartz.cif", "CuKa", "CuKa", "ImportStructure"},
                                                      {crystals + "Albite.cry", "200kV", "200", "DATA_LOAD"},
                                                      {crystals + "CopperLines.cry", "MoKa", "MoKa", "DATA_LOAD"}}) {
    SCOPED_TRACE(file);
    std::string printed = script("set Main1.Text15 0.9\nchoose Main1.Combo1 " + choice + "\nanswer " + file +
                                 "\nclick Main1." + load + "\necho list\nprint Main1.List2\n");
    printed = printed.substr(printed.find("list\n") + 5);
    const auto shown = batch("reflections " + file + " --dmin 0.9 --radiation " + radiation);
    ASSERT_EQ(shown.status, 0) << shown.err;
    EXPECT_EQ(shown.out.substr(shown.out.find('\n') + 1), printed);
    const auto table = numbers(batch("reflections " + file + " --dmin 0.9 --csv --radiation " + radiation).out, ',');
    const auto list = lines(printed);
    ASSERT_EQ(table.size(), list.size());
    for (std::size_t i = 0; i < list.size(); i += 7) {
      EXPECT_NEAR(table[i][0], Val(list[i].substr(0, 4)), 0) << list[i];
      EXPECT_NEAR(table[i][4], Val(list[i].substr(20, 9)), 1e-4) << list[i];
      ASSERT_EQ(table[i].size(), 10U) << list[i];
      EXPECT_EQ(table[i][9], Val(list[i].substr(list[i].rfind(' ')))) << list[i];
    }
  }
}

// Multiplicities of International Tables A, of the general and special forms of each Laue class.
TEST_F(Batch, MergedReflectionsHaveTheMultiplicityOfTheirForm) {
  using Form = std::array<int, 3>;
  const std::map<std::string, std::map<Form, int>> known = {
      {"NaCl", {{{1, 1, 1}, 8}, {{2, 0, 0}, 6}, {{2, 2, 0}, 12}, {{3, 1, 1}, 24}, {{4, 2, 0}, 24}, {{4, 2, 2}, 24}}},
      {"Pyrite", {{{2, 1, 0}, 12}, {{2, 0, 1}, 12}, {{1, 1, 1}, 8}, {{3, 2, 1}, 24}}},
      {"Rutile", {{{1, 1, 0}, 4}, {{1, 0, 1}, 8}, {{2, 0, 0}, 4}, {{2, 1, 1}, 16}, {{0, 0, 2}, 2}}},
      {"Forsterite", {{{0, 2, 0}, 2}, {{0, 2, 1}, 4}, {{1, 2, 1}, 8}}},  // Pbnm, with a file of its own
      {"Kyanite", {{{1, 0, 0}, 2}, {{1, 1, 0}, 2}}},
      {"Quartz", {{{1, 0, 0}, 6}, {{1, 0, 1}, 6}, {{0, 0, 3}, 2}, {{1, 1, 1}, 12}}},
      {"Magnesium", {{{1, 0, 0}, 6}, {{1, 0, 1}, 12}, {{0, 0, 2}, 2}, {{1, 1, 0}, 6}}}};
  for (const auto& [crystal, forms] : known) {
    SCOPED_TRACE(crystal);
    const auto merged = batch("reflections " + crystals + crystal + ".cry --merge --csv");
    const auto all = numbers(batch("reflections " + crystals + crystal + ".cry --csv").out, ',');
    std::map<Form, int> found;
    std::size_t sum = 0;
    for (const auto& row : numbers(merged.out, ',')) {
      found[{static_cast<int>(row[0]), static_cast<int>(row[1]), static_cast<int>(row[2])}] = static_cast<int>(row[3]);
      sum += static_cast<std::size_t>(row[3]);
    }
    EXPECT_EQ(sum, all.size()) << "each reflection is of one form";
    for (const auto& [form, count] : forms) EXPECT_EQ(found[form], count) << form[0] << form[1] << form[2];
  }
}

TEST_F(Batch, SeveralCrystalsGoIntoOneTable) {
  std::string expected;
  for (const auto* crystal : {"NaCl", "Silicon"}) {
    for (const auto& line : lines(batch("reflections " + crystals + crystal + ".cry --merge --csv").out)) {
      const bool head = line.starts_with("h,");
      if (!head || expected.empty()) expected += (head ? "crystal" : crystal) + ("," + line) + "\n";
    }
  }
  EXPECT_EQ(batch("reflections " + crystals + "NaCl.cry " + crystals + "Silicon.cry --merge --csv").out, expected);
}

// {200} of diamond's structure is extinct; its computed intensity is not quite 0.
TEST_F(Batch, PeaksBearTheIndicesOfReflectionsThatAreThere) {
  for (const auto& [words, first] : {std::pair("", false), {" --index", true}}) {
    ASSERT_EQ(batch("powder " + crystals + "Silicon.cry --to 60 -o peaks.svg" + words).status, 0);
    const std::string drawn = folder.read("peaks.svg");
    EXPECT_EQ(drawn.find(">1 1 1<") != std::string::npos, first);
    EXPECT_EQ(drawn.find(">2 0 0<"), std::string::npos);
    EXPECT_NE(drawn.find(">Silicon, Cu K"), std::string::npos);
  }
}

TEST_F(Batch, PowderNumbersAreTheSamplesOfTheWindow) {
  const std::string words = "powder " + crystals + "NaCl.cry --from 20 --to 60 --width .3 --gauss 40 ";
  ASSERT_EQ(batch(words + "-o window.xy").status, 0);
  (void)script("choose Main1.Combo1 CuKa\nanswer " + crystals +
               "NaCl.cry\nclick Main1.DATA_LOAD\nclick Main1.Command7\nset Xd.Text1 20\nset Xd.Text2 60\n"
               "set Xd.Text3 .3\nset Xd.Text4 40\nclick Xd.Command1\nanswer pattern.XDP\nclick Xd.Command3\n");
  const auto ours = numbers(folder.read("window.xy"), ' ');
  auto theirs = numbers(folder.read("pattern.XDP"), ',');
  ASSERT_EQ(ours.size(), 1001U);
  ASSERT_GT(theirs.size(), 1001U);
  theirs.erase(theirs.begin(), theirs.end() - 1001);
  EXPECT_EQ(ours, theirs);
  // Steps of their own: a thousandth of the range gives the same, and Bragg's law the place of 200.
  ASSERT_EQ(batch(words + "--step .04 -o same.xy").status, 0);
  EXPECT_EQ(numbers(folder.read("same.xy"), ' '), ours);
  ASSERT_EQ(batch(words + "--step .01 " + crystals + "Silicon.cry -o fine.xy").status, 0);
  const auto fine = numbers(folder.read("fine.xy"), ' ');
  ASSERT_EQ(fine.size(), 4001U);
  const auto highest = [&fine](std::size_t column) {
    return (*std::max_element(fine.begin(), fine.end(),
                              [column](const auto& a, const auto& b) { return a[column] < b[column]; }))[0];
  };
  const auto bragg = [](double d) { return 2 * std::asin(1.542 / 2 / d) * 180 / std::numbers::pi; };
  constexpr double bin = 0.025;  // of 0.0002 / A in 1/d, and a step
  EXPECT_NEAR(highest(1), bragg(5.6402 / 2), bin);
  EXPECT_NEAR(highest(2), bragg(5.4307 / std::sqrt(3)), bin);
}

TEST_F(Batch, FiguresAreThoseOfTheWindowsInEachKindOfFile) {
  const std::string silicon = crystals + "Silicon.cry";
  const std::string head = "choose Main1.Combo1 20\nanswer " + silicon + "\nclick Main1.DATA_LOAD\n";
  const auto axis = [](const std::string& window, const char* numbers = "112") {
    std::string text;
    for (int i = 0; i < 3; ++i) text += "set " + window + ".Text" + std::to_string(3 + i) + " " + numbers[i] + "\n";
    return text;
  };
  struct Row {
    std::string words, actions, picture;
  };
  const Row rows[] = {
      {"pattern " + silicon + " --axis 1,1,2 --kind spots --radiation 20kV --index --area 1",
       "click Main1.Command9\n" + axis("Pattern") +
           "set Pattern.Text1 1\nclick Pattern.Option1\nclick Pattern.Check3\nclick Pattern.Command8\n",
       "Pattern.Picture1"},
      {"pattern " + silicon + " --axis 1,1,2 --kind fiber --radiation 20kV --dispersion 8 --area 1",
       "click Main1.Command12\n" + axis("FiberTexture") +
           "set FiberTexture.Text1 1\nset FiberTexture.Text2 8\nclick FiberTexture.Command8\n",
       "FiberTexture.Picture1"},
      {"pattern " + silicon + " --axis 1,1,2 --kind kikuchi --roots --bands 74 --area 30",
       "click Main1.Command10\n" + axis("Pattern2") +
           "set Pattern2.Text1 30\nset Pattern2.Text19 74\nclick Pattern2.Option2\nclick Pattern2.Command8\n",
       "Pattern2.Picture1"},
      {"pattern " + silicon + " --axis 1,1,2 --kind map",
       "click Main1.Command10\n" + axis("Pattern2") + "click Pattern2.Command8\nclick Pattern2.Check2\n" +
           "click Pattern2.Command8\n",
       "Zaxis.Picture1"},
      {"rings " + silicon + " --radiation 20kV --centred --roots",
       "click Main1.Command8\nclick Dring.Check1\nclick Dring.Check2\nclick Dring.Command1\n", "Dring.Picture2"},
  };
  for (const auto& [words, actions, picture] : rows) {
    SCOPED_TRACE(words);
    const auto outcome = batch(words + " -o ours.svg");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    (void)script(head + actions + "export " + picture + " theirs.svg\n");
    EXPECT_TRUE(folder.read("ours.svg") == folder.read("theirs.svg"));
  }
  const std::pair<const char*, const char*> heads[] = {
      {"svg", "<?xml"}, {"pdf", "%PDF-1.4"}, {"png", "\x89PNG"}, {"bmp", "BM"}};
  for (const auto& [ending, begins] : heads) {
    ASSERT_EQ(batch("powder " + crystals + "Quartz.cry " + crystals + "Calcite.cry -o two." + ending).status, 0);
    EXPECT_TRUE(folder.read("two." + std::string(ending)).starts_with(begins)) << ending;
  }
  const std::string legend = folder.read("two.svg");
  for (const char* name : {">Quartz<", ">Calcite<"}) EXPECT_NE(legend.find(name), std::string::npos) << name;
}

/// Bright along a band and dark beside it: the picture holds the crystal's bands where the lines lie.
TEST_F(Batch, APictureOfBandsIsIndexedAsTheDirectionThatItWasDrawnFor) {
  // 33 degrees from the middle to the border: the specimen stands 0.5 / tan 33 degrees = 0.76993 widths away.
  ASSERT_EQ(batch("pattern " + crystals + "Silicon.cry --axis 1,1,2 --kind picture --area 33 -o bands.png").status, 0);
  const QImage image(QString::fromStdString(folder.path("bands.png")));
  ASSERT_EQ(image.width(), image.height());
  const auto outcome = batch("index bands.png --flipped --master none -c " + crystals +
                             "Silicon.cry --pc .5,.5,.76993 --json --overlay drawn");
  ASSERT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_FALSE(QImage(QString::fromStdString(folder.path("drawn/bands.png"))).isNull());
  const auto found = json::parse(outcome.out)[0];
  std::array<double, 3> axis{};
  for (std::size_t i = 0; i < 3; ++i) axis[i] = std::abs(found["crystal_from_picture"][i][2].get<double>());
  std::sort(axis.begin(), axis.end());
  EXPECT_NEAR(axis[0], 1 / std::sqrt(6), 0.002);
  EXPECT_NEAR(axis[1], 1 / std::sqrt(6), 0.002);
  EXPECT_NEAR(axis[2], 2 / std::sqrt(6), 0.002);
}

TEST_F(Batch, PicturesAreIndexedAsInTheWindow) {
  const std::string picture = ZOL_SOURCE_DIR "/examples/silicon-pattern.bmp";
  const std::string printed = script(
      "answer " + crystals + "Silicon.cry\nclick Main1.DATA_LOAD\nset PATTERN3.Text3 33\n" + "answer " + picture +
      "\nclick PATTERN3.ImageLoad\nclick PATTERN3.ImageFlip\n" + "click AutoIndex.Index\nprint AutoIndex.Solutions\n");
  const auto outcome = batch("index " + picture + " missing.bmp -c " + crystals + "Quartz.cry -c " + crystals +
                             "Silicon.cry --pc .5,.5,.76993 --master none --csv");
  EXPECT_EQ(outcome.status, 1) << "one of them is missing";
  const auto rows = lines(outcome.out);
  ASSERT_EQ(rows.size(), 2U);
  EXPECT_TRUE(rows[1].starts_with(picture + ",Silicon,")) << rows[1];
  std::istringstream window(printed);
  std::vector<std::string> words;
  for (std::string word; words.size() < 11 && window >> word;) words.push_back(word);
  std::string numbers_of_row = rows[1].substr(picture.size() + std::string(",Silicon,").size());
  const auto ours = numbers(numbers_of_row, ',').at(0);
  // phi1, Phi, phi2 are the last three of the window's line, then come bands and correlation.
  for (std::size_t i = 0; i < 3; ++i) EXPECT_NEAR(ours[i], Val(words[8 + i]), 0.06) << printed;
  EXPECT_EQ(words[1], Format(ours[3], "0") + "/" + Format(ours[4], "0"));
  EXPECT_NEAR(ours[6], Val(words[3]), 0.001);
  // A centre 0.02 off is found again.
  const auto refined = json::parse(
      batch("index " + picture + " -c " + crystals + "Silicon.cry --pc .52,.48,.79 --refine-pc --master none --json")
          .out)[0];
  const auto centre = refined["pattern_centre"]["Bruker"];
  EXPECT_NEAR(centre[0].get<double>(), 0.5, 0.004);
  EXPECT_NEAR(centre[1].get<double>(), 0.5, 0.004);
  EXPECT_NEAR(centre[2].get<double>(), 0.76993, 0.004);
}

/// Rotation angle between two orientations of Bunge's angles, cubic symmetry taken out.
double cubic_misorientation_deg(const std::array<double, 3>& a, const std::array<double, 3>& b) {
  const auto matrix = [](const std::array<double, 3>& deg) {
    std::array<double, 3> c{};
    std::array<double, 3> s{};
    for (std::size_t i = 0; i < 3; ++i) {
      c[i] = std::cos(deg[i] * std::numbers::pi / 180);
      s[i] = std::sin(deg[i] * std::numbers::pi / 180);
    }
    return std::array<std::array<double, 3>, 3>{
        {{c[0] * c[2] - s[0] * s[2] * c[1], s[0] * c[2] + c[0] * s[2] * c[1], s[2] * s[1]},
         {-c[0] * s[2] - s[0] * c[2] * c[1], -s[0] * s[2] + c[0] * c[2] * c[1], c[2] * s[1]},
         {s[0] * s[1], -c[0] * s[1], c[1]}}};
  };
  const auto g = matrix(a);
  const auto h = matrix(b);
  std::array<std::array<double, 3>, 3> turn{};
  for (std::size_t i = 0; i < 9; ++i) {
    for (std::size_t k = 0; k < 3; ++k) turn[i / 3][i % 3] += g[i / 3][k] * h[i % 3][k];
  }
  double trace = -1;  // of the permutation with signs, all of the determinant 1, that comes nearest
  std::array<std::size_t, 3> p{0, 1, 2};
  do {
    const bool odd = (p[0] > p[1]) != ((p[0] > p[2]) != (p[1] > p[2]));
    const std::array<double, 3> part{turn[0][p[0]], turn[1][p[1]], turn[2][p[2]]};
    for (int signs = 0; signs < 8; ++signs) {
      const auto sign = [signs](int i) { return (signs >> i & 1) != 0 ? -1.0 : 1.0; };
      if (sign(0) * sign(1) * sign(2) != (odd ? -1 : 1)) continue;
      trace = std::max(trace, sign(0) * part[0] + sign(1) * part[1] + sign(2) * part[2]);
    }
  } while (std::next_permutation(p.begin(), p.end()));
  return std::acos(std::min(1.0, (trace - 1) / 2)) * 180 / std::numbers::pi;
}

// The orientation was published with the pattern, from a fit to another program's dynamical simulation.
TEST_F(Batch, MeasuredPicturesAreFittedToDynamicalPatternsByAnyNumberOfThreads) {
  const std::string measured = ZOL_SOURCE_DIR "/examples/measured/";
  const std::string words = "index --csv -c " + measured + "Nickel.cry --pc .42088,.21654,.50079 " + measured +
                            "nickel.png missing.png " + measured + "silicon.png " + measured + "nickel.png ";
  const auto alone = batch(words + "-j 1");
  EXPECT_EQ(alone.status, 1) << "one of them is missing";
  for (const char* threads : {"-j 3", "-j 0 --master auto"}) {
    const auto outcome = batch(words + threads);
    EXPECT_EQ(outcome.out, alone.out) << threads;
    EXPECT_EQ(outcome.err, alone.err) << threads;
  }
  const auto rows = lines(alone.out);
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_EQ(rows[1], rows[3]);
  EXPECT_TRUE(rows[2].starts_with(measured + "silicon.png"));
  const auto dynamical = numbers(rows[1].substr(rows[1].find("Nickel,") + 7), ',').at(0);
  EXPECT_LT(cubic_misorientation_deg({dynamical[0], dynamical[1], dynamical[2]}, {348.574, 88.846, 147.252}), 0.2);
  const auto drawn = lines(batch(words + "--master none").out);
  const auto kinematic = numbers(drawn[1].substr(drawn[1].find("Nickel,") + 7), ',').at(0);
  ASSERT_EQ(dynamical.size(), 12U);
  EXPECT_GT(dynamical[6], kinematic[6] + 0.08);
  EXPECT_NEAR(dynamical[11], kinematic[6], 0.02);
}

}  // namespace
}  // namespace zol
