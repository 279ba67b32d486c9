#include "fuzz/storm.h"

#include <algorithm>
#include <array>
#include <map>
#include <random>
#include <sstream>
#include <string_view>
#include <vector>

#include "fuzz/bounded_script.h"
#include "shell/program/program.h"
#include "shell/script/script_services.h"

namespace zol::fuzz {
namespace {

constexpr std::array crystals{"Quartz.cry",  "Copper.cry",  "CopperLines.cry", "Corundum.cry", "Silicon.cry",
                              "Kyanite.cry", "Calcite.cry", "Graphite.cry",    "NaCl.cry",     "Forsterite.cry"};
constexpr std::array<std::string_view, 12> files{"quartz.cif",
                                                 "kyanite.cif",
                                                 "zincite-u-only.cif",
                                                 "silicon-pattern.bmp",
                                                 "Quartz.cry",
                                                 "Corrector_Standard",
                                                 "Camera_Parameters_New",
                                                 "first-list.zs",
                                                 "missing",
                                                 "out",
                                                 "out.bmp",
                                                 ""};
constexpr std::array saves{"out", "out.bmp", "Quartz.cry", "out.x.y", "", "."};
constexpr std::array exports{"out.bmp", "out.png", "out.svg", "out.pdf", "out", "out.txt"};
constexpr std::array common_numbers{"0",  "1",  "2",   "3",   "-1", "0.5", "1.5", "5",   "10",
                                    "20", "45", "90",  "120", "25", "14",  "221", "255", "-3.25",
                                    "60", "4",  "0.1", "0.8", "6",  "100", "-2",  "50"};
constexpr std::array absurd_texts{"",
                                  "abc",
                                  "-0",
                                  "1e-30",
                                  "1e30",
                                  "-1e30",
                                  "32767",
                                  "32768",
                                  "-32769",
                                  "2147483648",
                                  "1e308",
                                  "1e999",
                                  "1e-999",
                                  "1e99999999999999999999",
                                  "nan",
                                  "inf",
                                  "-nan(1)",
                                  ".",
                                  "-",
                                  "1e",
                                  "1.2.3",
                                  "1,5",
                                  "0x10",
                                  " 1 2 3 ",
                                  "1d5",
                                  "3.4028235e38",
                                  "1e-45",
                                  "16777217",
                                  "0.49999999999999994",
                                  "\xB1\xFF\xC3",
                                  "Si",
                                  "O2-",
                                  "99999999999999999999999999999999999999999999999999999999999999999999999999999999",
                                  "360",
                                  "1e7",
                                  "-90"};
constexpr std::array keys{R"("\r")", R"("\b")", R"("1\r")", R"("a\b\b")", R"("-1.5\r")", R"("Si\r")", R"("\t")"};

/// What an operation asks for before it does anything, and for a file one of the right kind.
enum class Asks { Crystal, File, Save, Number };
struct Question {
  Asks asks;
  std::string_view right_file = "";
};
const std::map<std::string, Question, std::less<>> questions{
    {"Main1.DATA_LOAD", {Asks::Crystal}},
    {"PATTERN3.Command5", {Asks::Crystal}},
    {"Pattern2.Command16", {Asks::Crystal}},
    {"Main1.CRYSTAL_SELECT", {Asks::Crystal}},
    {"Main1.ImportfromCIF", {Asks::File, "kyanite.cif"}},
    {"Main1.ImportStructure", {Asks::File, "kyanite.cif"}},
    {"Main1.ExportStructure", {Asks::Save}},
    {"Main1.ImportFromICSD", {Asks::File, "rutile.txt"}},
    {"InputAtom.Import_CIF", {Asks::File, "rutile-list.txt"}},
    {"InputAtom.Import_MINCRYST", {Asks::File, "rutile-mincryst.txt"}},
    {"PATTERN3.ImageLoad", {Asks::File, "silicon-pattern.bmp"}},
    {"PATTERN3.CorrectFile", {Asks::File, "Corrector_Standard"}},
    {"CameraParameters.Command1", {Asks::File, "Camera_Parameters_New"}},
    {"CameraParameters.Command2", {Asks::Save}},
    {"Main1.DATA_SAVE", {Asks::Save}},
    {"Main1.Command2", {Asks::Save}},
    {"Main1.Command4", {Asks::Save}},
    {"PATTERN3.ImageSAve", {Asks::Save}},
    {"Pattern2.ISAVE", {Asks::Save}},
    {"Pattern.ISAVE", {Asks::Save}},
    {"FiberTexture.Isave", {Asks::Save}},
    {"Zaxis.SaveMap", {Asks::Save}},
    {"AutoIndex.MakerCentre", {Asks::Number}},
    {"AutoIndex.AddCrystal", {Asks::Crystal}},
    {"AutoIndex.SaveSimulated", {Asks::Save}},
    {"MasterPattern.SavePicture", {Asks::Save}},
    {"Xd.Command3", {Asks::Save}},
    {"Xd.Command4", {Asks::Save}},
    {"Dring.Command3", {Asks::Save}},
    {"Dring.Command4", {Asks::Save}},
    {"PATTERN3.Imatch", {Asks::Number}},
    {"PATTERN3.EquivSet", {Asks::Number}},
    {"Pattern2.Imagesize", {Asks::Number}},
    {"Pattern2.Rpitch", {Asks::Number}},
    {"Pattern2.Spitch", {Asks::Number}},
    {"Pattern2.Zpitch", {Asks::Number}},
    {"Pattern2.Fsize", {Asks::Number}},
    {"Pattern2.Spotsize", {Asks::Number}},
    {"Pattern.Spotsize", {Asks::Number}},
    {"Pattern.Rpitch", {Asks::Number}},
    {"Pattern.Fsize", {Asks::Number}},
    {"Pattern.Imagesize", {Asks::Number}},
    {"FiberTexture.Fsize", {Asks::Number}},
    {"FiberTexture.Rpitch", {Asks::Number}},
    {"FiberTexture.Imagesize", {Asks::Number}},
    {"FiberTexture.Spotsize", {Asks::Number}}};

/// What makes the windows ready, so that not every storm ends at the first click on an empty one.
struct SetUp {
  unsigned percent;
  std::vector<std::string_view> operations;
};
const std::array set_ups{
    SetUp{95,
          {"set Pattern2.Text3 0", "set Pattern2.Text4 0", "set Pattern2.Text5 1", "click Pattern2.Command8",
           "click Pattern.Command8"}},
    SetUp{50, {"click Main1.Command7"}},
    SetUp{50, {"click Main1.Command8"}},
    SetUp{30, {"set FiberTexture.Text2 5", "click FiberTexture.Command8"}},
    SetUp{30, {"set AtomDistance.Text1 3", "click AtomDistance.Command1"}},
    SetUp{30,
          {"answer silicon-pattern.bmp", "click PATTERN3.ImageLoad", "press PATTERN3.Picture1 20 75",
           "release PATTERN3.Picture1 490 293", "press PATTERN3.Picture1 60 490", "release PATTERN3.Picture1 480 245",
           "press PATTERN3.Picture1 24 20", "release PATTERN3.Picture1 259 490", "click PATTERN3.Command1"}},
    SetUp{15, {"click Main1.Command1", "cell InputAtom.G 1 1"}}};

struct Place {
  std::string path;
  ControlKind kind;
};
struct Room {
  std::string name;
  std::vector<Place> places;
  std::vector<std::string> operations;
};

}  // namespace

struct StormMaker::Catalogue {
  std::vector<Room> rooms;
};

/// One script under way.
class StormMaker::Storm {
 public:
  Storm(const Catalogue& catalogue, std::uint64_t seed) : catalogue_(catalogue), random_(seed) {
    constexpr std::array percents{0U, 2U, 20U};
    absurd_percent_ = one_of(percents);
  }

  std::string script() {
    if (chance(90)) prepare();
    const Room& favourite = one_of(catalogue_.rooms);
    while (lines_ < most_operations) act(chance(60) ? favourite : one_of(catalogue_.rooms));
    return text_.str();
  }

 private:
  bool chance(unsigned percent) { return random_() % 100 < percent; }
  template <class List>
  const typename List::value_type& one_of(const List& list) {
    return list[random_() % list.size()];
  }

  void line(std::string_view operation) {
    text_ << operation << '\n';
    ++lines_;
  }

  std::string number() {
    if (chance(absurd_percent_)) return '"' + std::string(one_of(absurd_texts)) + '"';
    return one_of(common_numbers);
  }

  void prepare() {
    line(std::string("answer ") + one_of(crystals));
    line("click Main1.DATA_LOAD");
    for (const auto& set_up : set_ups) {
      if (!chance(set_up.percent)) continue;
      for (const auto operation : set_up.operations) line(operation);
    }
  }

  void answer(const Question& question) {
    if (chance(5)) return line("cancel");
    switch (question.asks) {
      case Asks::Crystal:
        return line(std::string("answer ") + one_of(crystals));
      case Asks::File:
        return line("answer \"" + std::string(chance(80) ? question.right_file : one_of(files)) + '"');
      case Asks::Save:
        return line(std::string("answer \"") + one_of(saves) + '"');
      case Asks::Number:
        return line("answer " + number());
    }
  }

  void answer_questions_of(const std::string& path) {
    const auto found = questions.find(path);
    if (found != questions.end()) answer(found->second);
  }

  void act(const Room& room) {
    if (chance(5)) return line("show " + room.name);
    if (!room.operations.empty() && chance(5)) {
      const std::string path = room.name + '.' + one_of(room.operations);
      answer_questions_of(path);
      return line("call " + path);
    }
    if (!room.places.empty()) act(one_of(room.places));
  }

  void act(const Place& place) {
    switch (place.kind) {
      case ControlKind::TextBox:
        return act_on_box(place.path);
      case ControlKind::ListBox:
      case ControlKind::ComboBox:
        if (chance(60)) return;  // many lists are empty, and a pick ends the run
        return line("select " + place.path + ' ' +
                    std::to_string(chance(2) ? 100000 : random_() % (chance(80) ? 2 : 12)));
      case ControlKind::Grid:
        return act_on_grid(place.path);
      case ControlKind::Canvas:
        return act_on_picture(place.path);
      case ControlKind::CommandButton:
      case ControlKind::CheckBox:
      case ControlKind::OptionButton:
      case ControlKind::MenuItem:
        if (ends_program(place.path) || takes_minutes(place.path)) return;
        answer_questions_of(place.path);
        return line("click " + place.path);
      case ControlKind::Slider:
        return line("set " + place.path + ' ' + number());
      case ControlKind::Label:
      case ControlKind::Frame:
      case ControlKind::ProgressBar:
        if (chance(10)) line("print " + place.path);
        return;
    }
  }

  static bool ends_program(const std::string& path) { return path == "MAIN_MENU.Command5" || path == "Main1.OWARI"; }
  /// Under the sanitizers dynamical patterns take minutes, and a script stops nothing.
  static bool takes_minutes(const std::string& path) {
    return path == "AutoIndex.Dynamical" || path == "MasterPattern.Make" || path == "Pattern2.DynamicalBands";
  }

  void act_on_box(const std::string& path) {
    if (chance(60)) line("set " + path + ' ' + number());
    if (chance(20)) line("type " + path + ' ' + (chance(50) ? number() : one_of(keys)));
    if (chance(50)) line("leave " + path);
  }

  void act_on_grid(const std::string& path) {
    if (chance(60)) line("cell " + path + ' ' + grid_index() + ' ' + grid_index());
    line("type " + path + ' ' + (chance(50) ? number() : one_of(keys)));
    if (chance(50)) line("type " + path + R"( "\r")");
  }
  std::string grid_index() { return chance(5) ? "-1" : std::to_string(random_() % 9); }

  void act_on_picture(const std::string& path) {
    if (chance(10)) return line("export " + path + ' ' + one_of(exports));
    if (chance(10)) return line("doubleclick " + path);
    if (chance(10)) return line("print " + path);
    for (const auto* event : {"press ", "move ", "release "}) {
      if (chance(80)) line(event + path + ' ' + position() + ' ' + position());
    }
  }
  std::string position() {
    constexpr std::array far{"1e30", "-1e30", "1e-30", "1e300", "2147483648"};
    if (chance(3)) return one_of(far);
    return std::to_string(static_cast<int>(random_() % 1200) - 300) + (chance(30) ? "e-3" : "");
  }

  const Catalogue& catalogue_;
  std::mt19937_64 random_;
  unsigned absurd_percent_;  // of the numbers
  std::ostringstream text_;
  int lines_ = 0;
};

StormMaker::StormMaker() {
  std::ostringstream output;
  ScriptServices services(output);
  Program program({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, services);
  auto catalogue = std::make_unique<Catalogue>();
  for (const auto& name : program.windows().names()) {
    const Window& window = program.windows().use(name);
    Room room{name, {}, window.operation_names()};
    for (const Control* control : window.controls()) room.places.push_back({control->path(), control->kind()});
    catalogue->rooms.push_back(std::move(room));
  }
  catalogue_ = std::move(catalogue);
}

StormMaker::~StormMaker() = default;

std::string StormMaker::script(std::uint64_t seed) const { return Storm(*catalogue_, seed).script(); }

}  // namespace zol::fuzz
