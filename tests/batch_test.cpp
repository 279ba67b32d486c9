// The words of zol-batch, its status, and what it does to files.
#include <algorithm>

#include <QImage>

#include "tests/batch_program.h"

namespace zol {
namespace {

struct Case {
  const char* words;
  int status;
  const char* told;  ///< on standard error
};

TEST_F(Batch, EndsWithTheStatusOfItsKindAndSaysWhy) {
  folder.write("broken.cif", "data_x\n_cell_length_a 5\n_cell_length_b nonsense\n");
  folder.write("empty.cry", "");
  folder.write("broken.bmp", "BM and nothing else");
  folder.write("nothing.ang", "");
  const std::string link = "ln -sf " + crystals + "NaCl.cry " + crystals +
                           "CopperLines.cry " ZOL_SOURCE_DIR "/examples/silicon-pattern.bmp " + folder.path("");
  ASSERT_EQ(std::system(link.c_str()), 0);  // NOLINT(cert-env33-c,concurrency-mt-unsafe)
  make_scan();
  const Case cases[] = {
      {"", 2, "subcommand is required"},
      {"draw", 2, "subcommand is required"},
      {"info", 2, "FILE"},
      {"info --jsn NaCl.cry", 2, "--jsn"},
      {"info missing.cif", 1, "missing.cif: No such file"},
      {"info broken.cif NaCl.cry", 1, "broken.cif"},
      {"info empty.cry", 1, "empty.cry"},
      {"reflections missing.cry", 1, "missing.cry: No such file"},
      {"reflections broken.cif", 1, "broken.cif: "},
      {"reflections NaCl.cry --radiation 21kV", 2, "21kV is none of CuKa"},
      {"reflections NaCl.cry --dmin 0", 2, "--dmin: 0: a number from 0.01 to 100 is expected\n"},
      {"reflections NaCl.cry --dmin nan", 2, "--dmin: nan: a number from"},
      {"reflections NaCl.cry --dmin 1e-300", 2, "--dmin: 1e-300: a number from"},
      {"reflections NaCl.cry --dmin 0,8", 2,
       "--dmin: 0,8: a number from 0.01 to 100 is expected, with a decimal point\n"},
      {"powder NaCl.cry --from -70 --to 90 -o x.xy", 2, "--from: -70: a number from 0 to 180"},
      {"master NaCl.cry --energies 10,nan -o x.h5", 2, "--energies: nan"},
      {"pattern NaCl.cry --axis nan,1,1 --kind spots -o x.svg", 2, "nan,1,1"},
      {"index silicon-pattern.bmp -c NaCl.cry --pc .5,.5,.7 --tilt inf", 2, "--tilt: inf"},
      {"index silicon-pattern.bmp -c NaCl.cry --pc .5,.5,.7 --bands 8.5", 2,
       "--bands: 8.5: a whole number from 3 to 30"},
      {"map s -c NaCl.cry -o x.ang --voltage -5", 2, "--voltage: -5"},
      {"map s -c NaCl.cry -o x.ang --pc .5,.5,.7 --average nlpar=0,8", 2, "--average: 0,8: a number"},
      {"map s -c NaCl.cry -o x.foo", 2, "--output: x.foo: its ending"},
      {"map s -c NaCl.cry -o x.ang -o ./x.ang", 2, "--output: ./x.ang would be written twice"},
      {"map s -c NaCl.cry -o none/x.ang", 1, "there is no folder none"},
      {"map s -c NaCl.cry -o x.ang --pictures none/there/x", 1, "there is no folder none/there"},
      {"map s -c NaCl.cry -o x.ang --convention edax", 2, "--convention: needs --pc"},
      {"map s -c NaCl.cry -o x.ang --size -3x-3", 2, "--size: -3x-3: number 1 is to be a whole one from 1"},
      {"map s -c NaCl.cry -o x.ang --pc .5,.5,.7 --region 0,0,0,0", 2, "--region: 0,0,0,0: number 3"},
      {"map s -c NaCl.cry -o x.ang --pc .5,.5,.7 --region 1,0,2,1", 2,
       "--region: 1,0,2,1 lies outside the map of 2 x 1"},
      {"reflections NaCl.cry --dmin 9", 1, "NaCl.cry: there are no reflections down to 9"},
      {"reflections NaCl.cry --dmin .01", 1, "NaCl.cry"},
      {"reflections NaCl.cry --csv --json", 2, "excludes"},
      {"powder NaCl.cry", 2, "--output"},
      {"powder NaCl.cry -o x.tif", 2, "x.tif does not end in .xy"},
      {"powder NaCl.cry -o none/x.svg", 1, "none/x.svg"},
      {"powder NaCl.cry broken.cif -o x.xy", 1, "broken.cif"},
      {"powder NaCl.cry --from 30 --to 30 -o x.xy", 1, "NaCl.cry: 2theta.min and 2theta.max are the same"},
      {"powder NaCl.cry CopperLines.cry --index -o x.svg", 2, "--index"},
      {"rings NaCl.cry --index -o x.svg", 2, "--draw profile"},
      {"rings NaCl.cry CopperLines.cry --draw rings -o x.svg", 2, "--draw"},
      {"pattern NaCl.cry --axis 1,1 --kind spots -o x.svg", 2, "is not 3 numbers"},
      {"pattern NaCl.cry --axis 0,0,0 --kind map -o x.svg", 2, "0,0,0 is not a direction"},
      {"pattern NaCl.cry --axis 1,1,x --kind spots -o x.svg", 2, "1,1,x"},
      {"pattern NaCl.cry --axis 1,1,1 --kind stars -o x.svg", 2, "stars"},
      {"pattern NaCl.cry --axis 1,1,1 --kind spots -o x.xy", 2, "x.xy does not end in .svg"},
      {"pattern CopperLines.cry --axis 1,1,1 --kind spots -o x.svg", 1, "CopperLines.cry: a spot pattern needs atoms"},
      {"index silicon-pattern.bmp -c NaCl.cry", 2, "--pc"},
      {"index silicon-pattern.bmp -c NaCl.cry --pc .5,.5,-1", 2, "is no centre"},
      {"index silicon-pattern.bmp -c NaCl.cry --pc .5,.5,.7 --convention leica", 2, "leica"},
      {"index missing.bmp -c NaCl.cry --pc .5,.5,.7", 1, "missing.bmp: No such file"},
      {"index broken.bmp -c NaCl.cry --pc .5,.5,.7", 1, "broken.bmp"},
      {"index silicon-pattern.bmp -c broken.cif --pc .5,.5,.7", 1, "broken.cif"},
      {"index silicon-pattern.bmp -c CopperLines.cry --pc .5,.5,.77", 0,
       "drawn bands are fitted, not dynamical "
       "patterns: CopperLines: the crystal has no atoms"},
      {"index silicon-pattern.bmp -c CopperLines.cry --pc .5,.5,.77 --master auto", 1,
       "CopperLines: the crystal has no"},
      {"index silicon-pattern.bmp -c NaCl.cry --pc .5,.5,.77 --master none.h5", 1, "none.h5"},
      {"index silicon-pattern.bmp -c NaCl.cry -c NaCl.cry --pc .5,.5,.77 --master none.h5", 1, "NaCl has none; give"},
      {"index silicon-pattern.bmp -c NaCl.cry --pc .5,.5,.7 --overlay none/there", 1, "there is no folder none/there"},
      {"centre missing.h5 -c NaCl.cry", 1, "missing.h5"},
      {"centre nothing.ang -c NaCl.cry", 1, "nothing.ang"},
      {"centre nothing.ang -c NaCl.cry --points 4", 2, "--points"},
      {"--write-reference none", 1, "none/zol-batch.1"},
  };
  const auto files_before = folder.entries();
  for (const auto& [words, status, told] : cases) {
    SCOPED_TRACE(words);
    const auto outcome = batch(words);
    EXPECT_EQ(outcome.status, status) << outcome.err;
    EXPECT_NE(outcome.err.find(told), std::string::npos) << outcome.err;
  }
  EXPECT_EQ(folder.entries(), files_before) << "a file was left behind";
  EXPECT_EQ(run_program(ZOL_BATCH " info NaCl.cry >/dev/full").status, 0) << "the last redirection holds";
  EXPECT_EQ(run_program("(" ZOL_BATCH " info NaCl.cry >/dev/full)").status, 1) << "a full disk";
}

// Each file is told twice: as what is read and as what is written, by its name, a link or another name of the same.
TEST_F(Batch, NeverWritesOverWhatItReads) {
  make_scan();
  const std::string prepared =
      "cp " + crystals + "Silicon.cry x.svg && cp x.svg x.h5 && cp x.svg x.ang && ln -s x.svg link.svg && " +
      "ln x.svg other.svg && ln -s new.svg dangling.svg && cp s/a_x0y0.bmp a_x0y0.png && mkdir t && "
      "cp s/a_x0y0.bmp t";
  ASSERT_EQ(run_program(prepared).status, 0);
  const std::string map = "map s --pc .5,.5,.77 -c x.ang ";
  const std::pair<std::string, const char*> cases[] = {
      {"powder x.svg -o x.svg", "--output: x.svg is the file of FILE, which would be lost"},
      {"rings " + crystals + "NaCl.cry x.svg -o link.svg", "--output: link.svg is"},
      {"pattern x.svg --axis 1,1,1 --kind spots -o other.svg", "--output: other.svg is"},
      {"master x.h5 -o ./x.h5", "--output: ./x.h5 is"},
      {"master x-north.png --png -o x.h5", "--png: x-north.png is"},
      {map + "-o x.ang", "--output: x.ang is the file of --crystal"},
      {"map x.h5 -c x.ang -o x.h5", "--output: x.h5 is the file of SCAN"},
      {map + "-o y.ang --master x.h5 -o x.h5", "--output: x.h5 is the file of --master"},
      {map + "-o y.ang --background static=x.svg --write-settings link.svg",
       "--write-settings: link.svg is the file of --back"},
      {map + "-o y.ang --write-settings y.ang", "--write-settings: y.ang would be written twice, also by --output"},
      {"index a_x0y0.png -c x.ang --pc .5,.5,.77 --overlay .", "--overlay: ./a_x0y0.png is the file of PICTURE"},
      {"index s/a_x0y0.bmp t/a_x0y0.bmp -c x.ang --pc .5,.5,.77 --overlay new",
       "--overlay: new/a_x0y0.png would be written"}};
  const auto files_before = folder.entries();
  for (const auto& [words, told] : cases) {
    SCOPED_TRACE(words);
    const auto outcome = batch(words);
    EXPECT_EQ(outcome.status, 2) << outcome.err;
    EXPECT_NE(outcome.err.find(told), std::string::npos) << outcome.err;
  }
  EXPECT_EQ(folder.entries(), files_before);
  EXPECT_EQ(folder.read("x.svg"), folder.read("x.h5"));
  EXPECT_EQ(batch("powder x.svg -o dangling.svg").status, 0);
  EXPECT_TRUE(folder.read("new.svg").starts_with("<?xml"));
}

TEST_F(Batch, AReaderThatHasReadEnoughIsNoFailureWorthWords) {
  EXPECT_EQ(run_program("(" ZOL_BATCH " reflections " + crystals + "Albite.cry | true)").err, "");
}

// Two points, one of which is asked for.
TEST_F(Batch, MapsTellWhatLiesOutsideTheRegionAndKeepWhatIsThere) {
  make_scan();
  const std::string map = "map s --pc .5,.5,.77 --master none -c " + crystals + "Silicon.cry --region 1,0,1,1 ";
  folder.write("map.ang.part", "what an earlier run has found");
  const auto kept = batch(map + "-o map.ang");
  EXPECT_EQ(kept.status, 1);
  EXPECT_NE(kept.err.find("--resume goes on with it, or remove map.ang.part"), std::string::npos) << kept.err;
  EXPECT_EQ(folder.read("map.ang.part"), "what an earlier run has found");
  ASSERT_EQ(run_program("rm map.ang.part").status, 0);
  ASSERT_EQ(run_program("ln -s real.h5 map.h5").status, 0);
  const auto outcome = batch(map + "-o map.h5 --pictures new/m --picture-scale 3");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_NE(outcome.out.find("Silicon: 1 of 1 points\n"), std::string::npos) << outcome.out;
  EXPECT_NE(outcome.out.find("not indexed: 0\noutside the region: 1\n"), std::string::npos) << outcome.out;
  EXPECT_TRUE(folder.read("real.h5").starts_with("\x89HDF")) << "written through the link";
  const std::string version = batch("--version").out;
  EXPECT_NE(folder.read("real.h5").find("ZOL " + version.substr(0, version.find('\n'))), std::string::npos);
  EXPECT_NE(folder.read("new/m-legend.png"), "");
  EXPECT_EQ(QImage(QString::fromStdString(folder.path("new/m-iq.png"))).size(), QSize(6, 3));
  EXPECT_EQ(batch(map + "--check -q").out, "");
  const auto limited = run_program("(ulimit -f 1; " ZOL_BATCH " " + map + "-o limited.h5)");
  EXPECT_EQ(limited.status, 1);
  EXPECT_NE(limited.err.find("cannot write limited.h5"), std::string::npos) << limited.err;
}

TEST_F(Batch, IsStoppedByASignalAndLeavesNothing) {
  for (const char* signal : {"INT", "TERM"}) {
    // Crystallites of few cells spread each of many reflections over a grid: minutes of work.
    const auto outcome = run_program("timeout --preserve-status -s " + std::string(signal) + " 1 " ZOL_BATCH " rings " +
                                     crystals + "Muscovite.cry --dmin 0.3 --cells 50 -o x.png");
    EXPECT_EQ(outcome.status, 3) << signal << outcome.err;
    EXPECT_EQ(outcome.err, "zol-batch: stopped\n");
    EXPECT_EQ(folder.read("x.png"), "");
  }
}

// Densities and distances are those of the papers that the crystals were taken from, or follow by hand from cell and Z.
// Stripes that turn, EDAX .up1 of version 1: a map of ten tiles, of which one is kept when it is stopped.
TEST_F(Batch, AMapThatIsStoppedWritesNoneAndIsResumed) {
  constexpr int side = 30;
  constexpr int points = 24 * 80;
  std::string scan;
  for (const int number : {1, side, side, 16}) scan += {static_cast<char>(number), 0, 0, 0};
  for (int i = 0; i < points * side * side; ++i) {
    const int x = i % side;
    const int y = i / side % side;
    const int point = i / (side * side);
    scan += static_cast<char>(60 + (x * 7 + y * 13 + point * 5) % 11 + ((x + y * (point % 7)) % 19 < 3 ? 30 : 0));
  }
  folder.write("scan.up1", scan);
  const std::string map =
      "map scan.up1 --size 24x80 -c " + crystals + "Copper.cry --pc .5,.3,.6 --master none -j 1 -q -o x.csv";
  const auto stopped = run_program(
      "{ " ZOL_BATCH " " + map +
      " & until [ \"$(stat -c %s x.csv.part 2>&1)\" -gt 16 ] || ! kill -0 $!; do sleep .02; done 2>/dev/null; "
      "kill -TERM $!; wait $!; }");
  EXPECT_EQ(stopped.status, 3) << stopped.err;
  EXPECT_EQ(stopped.err, "stopped; what is finished is in x.csv.part, --resume continues from there\n");
  EXPECT_EQ(folder.read("x.csv"), "");
  const auto resumed = batch(map + " --resume");
  EXPECT_EQ(resumed.status, 0) << resumed.err;
  EXPECT_EQ(lines(folder.read("x.csv")).size(), points + 1U);
  EXPECT_EQ(folder.read("x.csv.part"), "");
}

}  // namespace
}  // namespace zol
