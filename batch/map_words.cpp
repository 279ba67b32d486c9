#include "batch/map_words.h"

#include "batch/number_check.h"

namespace zol {
namespace {

void add_geometry(CLI::App& command, MapWords& words) {
  const auto* group = "Geometry";
  command.add_option("--pc", words.centre, "X,Y,Z of the map's middle point; default: the scan's own")->group(group);
  command.add_option("--convention", words.convention, "of --pc: bruker, edax, oxford, emsoft")
      ->group(group)
      ->capture_default_str();
  command.add_option("--tilt", words.tilt, "of the sample, degrees; default: the scan's own, otherwise 70")
      ->group(group)
      ->check(tilt());
  command.add_option("--camera", words.camera, "tilt of the screen, degrees; default: the scan's own, otherwise 0")
      ->group(group)
      ->check(tilt());
  command.add_option("--screen", words.screen_mm, "width of the screen, mm: the centre drifts with the beam")
      ->group(group)
      ->check(number_from(0, 1000));
  command.add_option("--step", words.step, "between points, micrometres")->group(group)->check(number_from(1e-5, 1e5));
  command.add_option("--size", words.size, "COLUMNSxROWS, for a scan without it")->group(group);
  command.add_option("--scan-x", words.scan_x, "columns run to the right or left")
      ->group(group)
      ->check(CLI::IsMember({"right", "left"}))
      ->capture_default_str();
  command.add_option("--scan-y", words.scan_y, "rows run down or up the slope")
      ->group(group)
      ->check(CLI::IsMember({"down", "up"}))
      ->capture_default_str();
  command.add_flag("--flip", words.flip, "patterns are upside down in the file")->group(group);
  command.add_option("--voltage", words.kilovolt, "kV; default: the scan's own, otherwise 20")
      ->group(group)
      ->check(kilovolt());
}

void add_patterns(CLI::App& command, MapWords& words) {
  const auto* group = "Patterns";
  command.add_option("--background", words.background, "auto, static, static=PICTURE, dynamic, none")
      ->group(group)
      ->check([](const std::string& text) -> std::string {
        const bool known = text == "auto" || text == "static" || text == "dynamic" || text == "none";
        if (known || (text.starts_with("static=") && text.size() > std::string_view("static=").size())) return "";
        return text + " is none of auto, static, static=PICTURE, dynamic, none";
      })
      ->capture_default_str();
  command
      .add_option("--average", words.average,
                  "nlpar, nlpar=SHARE, 3x3, none; default: nlpar, none for dynamical patterns")
      ->group(group);
  command.add_option("--mask", words.mask, "circle")->group(group)->check(CLI::IsMember({"circle"}));
  command.add_option("--region", words.region, "X,Y,W,H of the map, in points")->group(group);
  command.add_option("--dataset", words.dataset, "name of the scan in a file of several")->group(group);
  command.add_flag("--raw", words.raw, "unprocessed patterns where there are both")->group(group);
}

void add_indexing(CLI::App& command, MapWords& words) {
  add_band_words(command, words);
  const auto* group = "Indexing";
  command.add_option("--refine", words.refine, "pattern: by a fit to it; bands: by turning onto them; none: the vote")
      ->group(group)
      ->check(CLI::IsMember({"pattern", "bands", "none"}))
      ->capture_default_str();
  command.add_option("--min-ci", words.min_ci, "confidence below which a point is not indexed")
      ->group(group)
      ->check(number_from(-1, 1))
      ->capture_default_str();
  command.add_option("--max-fit", words.max_fit, "degrees above which it is not")
      ->group(group)
      ->check(number_from(0, 180))
      ->capture_default_str();
  add_master_options(command, words.master);
}

}  // namespace

void add_scan_words(CLI::App& command, MapWords& words) {
  command.add_option("SCAN", words.scan, "scan: .h5, .oh5, .h5oina, .up1, .up2, .ebsp, Pattern.dat, a folder")
      ->required();
  command.add_option("-c,--crystal", words.crystals, "structure file or crystal of a phase; once for each")
      ->required()
      ->allow_extra_args(false);
  add_geometry(command, words);
  add_patterns(command, words);
}

void add_band_words(CLI::App& command, MapWords& words) {
  const auto* group = "Indexing";
  command.add_option("--bands", words.bands, "number of bands to look for")
      ->group(group)
      ->check(whole_from(3, 40))
      ->capture_default_str();
  command.add_option("--families", words.families, "of planes that vote")
      ->group(group)
      ->check(whole_from(1, 100))
      ->capture_default_str();
}

void add_map_words(CLI::App& command, MapWords& words) {
  command
      .add_option("--fit-pc", words.fit_centre, "fit the centre at so many clear points first, a plane through them")
      ->group("Geometry")
      ->check(whole_from(5, 10000));
  command
      .add_option("-o,--output", words.outputs,
                  "result: .ang, .ctf, .h5, .oh5, .csv; once for each; required unless --check is given")
      ->allow_extra_args(false);
  command.add_option("--pictures", words.pictures,
                     "PREFIX of pictures: ipf-x, ipf-y, ipf-z, iq, ci, fit, phase, kam, legend; .png");
  command
      .add_option("--picture-scale", words.picture_scale,
                  "pixels of --pictures a point across; default: as many as make small maps easy to look at")
      ->check(whole_from(1, 64));
  add_indexing(command, words);
  const auto* running = "Running";
  command.add_option("-j,--threads", words.threads, "0: one for each core")->group(running)->check(whole_from(0, 4096));
  command.add_flag("--check", words.check, "index nine points of the map, print rate and fit, write no file")
      ->group(running);
  command.add_flag("--resume", words.resume, "continue a run that was stopped")->group(running);
  auto* quiet = command.add_flag("-q,--quiet", words.quiet, "print only failures")->group(running);
  command.add_flag("-v,--verbose", words.verbose, "what was decided, and the time of each step")
      ->group(running)
      ->excludes(quiet);
}

}  // namespace zol
