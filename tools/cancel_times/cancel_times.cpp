// How soon the desktop program answers Esc while it works, for each kind of long work: the real windows, a key that
// comes in by way of the window system at a random moment after the bar has come up, and everything as before
// afterwards. A whole run besides shows how far apart calculations ask whether to stop, how long the windows stand
// still behind it, and what the estimate was worth.
//
//     cancel_times [--times N] [--only WORDS] [--no-whole-runs] FOLDER     (made files and saved ones go to FOLDER)
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <deque>
#include <fstream>
#include <iostream>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <QApplication>
#include <QImage>
#include <QTest>

#include "core/number_text.h"
#include "shell/desktop/desktop_services.h"
#include "shell/desktop/guarded_application.h"
#include "shell/program/program.h"

namespace zol {
namespace {

using Clock = std::chrono::steady_clock;

double ms_between(Clock::time_point from, Clock::time_point to) {
  return std::chrono::duration<double, std::milli>(to - from).count();
}

struct Kind {
  const char* name;
  const char* setup;  ///< operations of a script, a line each
  const char* work;   ///< the one that takes long
};

/// Presses Esc on the keyboard of the X server, from its own thread, a while after it has been told that the bar is
/// there.
class Finger {
 public:
  Finger() : keyboard_(popen("xdotool -", "w")), thread_([this] { run(); }) {}
  Finger(const Finger&) = delete;
  Finger& operator=(const Finger&) = delete;
  ~Finger() {
    over_ = true;
    thread_.join();
    pclose(keyboard_);
  }
  void press(double after_ms) {
    after_ms_ = after_ms;
    pressed_ = false;
    wanted_ = true;
  }
  [[nodiscard]] bool pressed() const { return pressed_; }
  [[nodiscard]] Clock::time_point pressed_at() const { return pressed_at_.load(); }

 private:
  void run() {
    while (!over_) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
      if (!wanted_.exchange(false)) continue;
      std::this_thread::sleep_for(std::chrono::duration<double, std::milli>(after_ms_.load()));
      pressed_at_ = Clock::now();
      pressed_ = true;
      std::fputs("key Escape\n", keyboard_);
      std::fflush(keyboard_);
    }
  }

  FILE* keyboard_;
  std::atomic<double> after_ms_{0};
  std::atomic<bool> wanted_{false}, pressed_{false}, over_{false};
  std::atomic<Clock::time_point> pressed_at_{};
  std::thread thread_;
};

/// The surroundings of the program, with answers in the place of dialogs, which note what is asked of them.
class Watched : public DesktopServices {
 public:
  std::string ask_file(const FileQuestion& /*question*/) override { return answer(); }
  std::string prompt(const std::string& /*text*/, const std::string& /*title*/) override { return answer(); }
  void message(const std::string& text, const std::string& /*title*/) override { std::cerr << text << '\n'; }
  void report(const std::vector<std::string>& /*lines*/, const std::string& /*title*/) override {}
  bool confirm_work(const Effort& effort) override {
    expected.seconds += effort.seconds;
    expected.bytes += effort.bytes;
    return true;
  }
  bool stop_wanted() override {
    const auto asked = Clock::now();
    note_gap(asked);
    const bool stop = DesktopServices::stop_wanted();
    stopped = stopped || stop;
    if (!bar_seen && ms_between(began, asked) > 1000) find_bar();
    asked_last = Clock::now();
    return stop;
  }
  void note_gap(Clock::time_point now) {
    const double gap = ms_between(asked_last, now);
    if (gap > longest_gap) longest_gap = gap;
  }
  void start() {
    began = asked_last = Clock::now();
    longest_gap = 0;
    bar_seen = stopped = false;
    expected = {};
  }

  std::deque<std::string> answers;
  Finger* finger = nullptr;  ///< that is to press once the bar is there
  double press_after_ms = 0;
  Clock::time_point began, asked_last;
  double longest_gap = 0;
  bool bar_seen = false;
  bool stopped = false;
  Effort expected;

 private:
  std::string answer() {
    if (answers.empty()) return "";
    std::string first = answers.front();
    answers.pop_front();
    return first;
  }
  void find_bar() {
    for (QWidget* top : QApplication::topLevelWidgets()) {
      const auto* bar = top->findChild<QWidget*>(QStringLiteral("longWork"));
      if (bar == nullptr || !bar->isVisible()) continue;
      bar_seen = true;
      if (finger != nullptr) finger->press(press_after_ms);
      return;
    }
  }
};

struct Measured {
  double answer_ms = 0;  ///< from the key to the end of the event
  double painted_ms = 0;
  double seconds = 0;
  double gap_ms = 0;     ///< the longest between two questions whether to stop
  double behind_ms = 0;  ///< from the last one to the end of the event and of the repaint
  bool pressed = false;
  bool as_before = true;  ///< unless the work was over just before the key
  Effort expected;
};

class Bench {
 public:
  explicit Bench(DataRoot data, std::string folder)
      : program_(std::move(data), services_),
        desktop_(program_.windows(), [this](const std::string& message) { failure_ = message; }),
        folder_(std::move(folder)) {
    services_.set_desktop(desktop_);
    program_.watch(desktop_.gate());
    desktop_.offer_undo(program_);
    desktop_.enter("start", [this] { program_.start(); });
    QApplication::processEvents();
  }

  /// What is left of the answers behind it belongs to the work, each time.
  void run_all(const std::string& script) {
    std::istringstream lines(script);
    for (std::string line; std::getline(lines, line);) run(line);
    answers_of_work_ = services_.answers;
  }

  Measured measure(const std::string& line, Finger* finger, double after_ms) {
    QTest::qWait(50);
    Measured measured;
    const auto before = program_.snapshot();
    services_.answers = answers_of_work_;
    services_.finger = finger;
    services_.press_after_ms = after_ms;
    services_.start();
    run(line);
    const auto end = Clock::now();
    QApplication::processEvents();
    const auto painted = Clock::now();
    measured.seconds = ms_between(services_.began, end) / 1000;
    measured.gap_ms = services_.longest_gap;
    measured.behind_ms = ms_between(services_.asked_last, painted);
    measured.expected = services_.expected;
    if (finger != nullptr && finger->pressed()) {
      measured.pressed = true;
      measured.answer_ms = ms_between(finger->pressed_at(), end);
      measured.painted_ms = ms_between(finger->pressed_at(), painted);
      measured.as_before = !services_.stopped || same_work(*before, *program_.snapshot());
    }
    if (!failure_.empty()) throw std::runtime_error(line + ": " + failure_);
    return measured;
  }

 private:
  static std::vector<std::string> words_of(const std::string& line) {
    std::istringstream text(line);
    std::vector<std::string> words;
    for (std::string word; text >> word;) words.push_back(word);
    return words;
  }

  void run(const std::string& line) {
    const auto words = words_of(line);
    if (words.empty()) return;
    if (words[0] == "answer") {
      const std::string file =
          words[1].starts_with("FOLDER/") ? folder_ + words[1].substr(6) : ZOL_SOURCE_DIR "/" + words[1];
      services_.answers.push_back(file);
      return;
    }
    const auto dot = words[1].find('.');
    UserEvent event = operation({words[0], words[1]}, [this, &words, dot] { act(words, dot); });
    event.window = words[1].substr(0, dot);
    desktop_.gate().enter(std::move(event));
  }

  void act(const std::vector<std::string>& words, std::size_t dot) {
    Window& window = program_.windows().use(words[1].substr(0, dot));
    if (words[0] == "show") return window.show();
    Control* control = window.find(words[1].substr(dot + 1));
    const auto number = [&words](std::size_t i) { return Val(words.at(i)); };
    if (words[0] == "click") {
      if (auto* button = dynamic_cast<CommandButton*>(control)) return button->click();
      if (auto* item = dynamic_cast<MenuItem*>(control)) return item->click();
      if (auto* check = dynamic_cast<CheckBox*>(control)) return check->click();
      if (auto* option = dynamic_cast<OptionButton*>(control)) return option->click();
    } else if (auto* box = dynamic_cast<TextBox*>(control)) {
      if (words[0] == "set") return box->set_text(words.size() > 2 ? words[2] : "");
      if (words[0] == "leave") return box->leave();
    } else if (auto* combo = dynamic_cast<ComboBox*>(control)) {
      const auto item = std::find(combo->items().begin(), combo->items().end(), words.at(2));
      return combo->pick(static_cast<int>(item - combo->items().begin()));
    } else if (auto* canvas = dynamic_cast<Canvas*>(control)) {
      if (words[0] == "press") return canvas->press(number(2), number(3));
      if (words[0] == "move") return canvas->move(number(2), number(3));
      if (words[0] == "release") return canvas->release(number(2), number(3));
    }
    throw std::runtime_error("no such operation: " + words[0] + ' ' + words[1]);
  }

  Watched services_;
  Program program_;
  Desktop desktop_;
  std::string folder_;
  std::string failure_;
  std::deque<std::string> answers_of_work_;
};

/// 1000 atoms without symmetry as a crystal file and as a CIF, and a bitmap of 67 million pixels.
void make_files(const std::string& folder) {
  std::mt19937 random(1);
  const auto coordinate = [&random] { return "0." + std::to_string(100000 + random() % 900000); };
  std::ofstream crystal(folder + "/many.cry");
  std::ofstream cif(folder + "/large.cif");
  crystal << "40,40,40,90,90,90,\"P\",1,\"abc\"\n1000\n";
  cif << "data_large\n_cell_length_a 40\n_cell_length_b 40\n_cell_length_c 40\n_cell_angle_alpha 90\n"
         "_cell_angle_beta 90\n_cell_angle_gamma 90\n_space_group_symop_operation_xyz x,y,z\nloop_\n"
         "_atom_site_label\n_atom_site_type_symbol\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n";
  for (int i = 0; i < 1000; ++i) {
    const std::string x = coordinate();
    const std::string y = coordinate();
    const std::string z = coordinate();
    crystal << "\"C" << i << "\",\"C\",1," << x << ',' << y << ',' << z << ",1\n";
    cif << 'C' << i << " C " << x << ' ' << y << ' ' << z << '\n';
  }
  cif << "loop_\n_refln_index_h\n_refln_index_k\n_refln_index_l\n_refln_F_squared_meas\n";
  for (int i = 0; i < 2000000; ++i) cif << i % 40 << ' ' << i / 40 % 40 << ' ' << i / 1600 % 40 << " 12.34\n";
  std::ofstream text(folder + "/long.cif");
  text << "_cell_length_a 5\nloop_\n_atom_site_label\n_atom_site_fract_x\n_atom_site_fract_y\n_atom_site_fract_z\n"
          "C1 0 0 0\n\n";
  for (int i = 0; i < 1700000; ++i) text << "_a_line_that_no_one_reads " << i << '\n';
  constexpr int side = 8192;
  QImage picture(side, side, QImage::Format_RGB32);
  for (int y = 0; y < side; ++y) {
    auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
    for (int x = 0; x < side; ++x) row[x] = 0xff000000U | static_cast<QRgb>((x * 7 + y * 13 + x * y / 64) & 0xffffff);
  }
  picture.save(QString::fromStdString(folder + "/large.png"));
}

#define MUSCOVITE "show Main1\nanswer data/ZOLDATA/Muscovite.cry\nclick Main1.DATA_LOAD\n"
#define LIST(d) "set Main1.Text15 " d "\nclick Main1.Command6\n"
#define THREE_BANDS                                                                                      \
  "press PATTERN3.Picture1 100 100\nmove PATTERN3.Picture1 200 300\nrelease PATTERN3.Picture1 200 300\n" \
  "press PATTERN3.Picture1 300 100\nmove PATTERN3.Picture1 200 400\nrelease PATTERN3.Picture1 200 400\n" \
  "press PATTERN3.Picture1 50 100\nmove PATTERN3.Picture1 400 120\nrelease PATTERN3.Picture1 400 120\n"

const std::vector<Kind>& kinds() {
  static const std::vector<Kind> all{
      {"reflection list, muscovite to 0.12 Å", MUSCOVITE "set Main1.Text15 0.12", "click Main1.Command6"},
      {"powder pattern, crystallites of 60 x 40 x 20 cells",
       MUSCOVITE "choose Main1.Combo1 CuKa\n" LIST(
           "0.771") "click Main1.Command7\nset Xd.Text6 60\nset Xd.Text7 40\nset Xd.Text8 20",
       "click Xd.Command1"},
      {"Debye rings, crystallites of 60 x 40 x 20 cells",
       MUSCOVITE LIST("0.6") "click Main1.Command8\nset Dring.Text6 60\nset Dring.Text7 40\nset Dring.Text8 20",
       "click Dring.Command1"},
      {"triple table of a long list", MUSCOVITE LIST("0.15") "show PATTERN3\nset PATTERN3.Text2 1200",
       "leave PATTERN3.Text2"},
      {"matching of 1200³ triples",
       MUSCOVITE LIST("0.4") "show PATTERN3\nset PATTERN3.Text2 1200\nleave PATTERN3.Text2\n" THREE_BANDS
                             "set PATTERN3.Text1 0.3\nclick PATTERN3.Check1",
       "click PATTERN3.Command1"},
      {"adjustment of the detector",
       MUSCOVITE LIST("1") "show PATTERN3\nset PATTERN3.Text2 20\nleave PATTERN3.Text2\n" THREE_BANDS
                           "set PATTERN3.Text1 30\nclick PATTERN3.Command1\nclick PATTERN3.CP_Setting_Show\n"
                           "set PATTERN3.Text10 10",
       "click PATTERN3.Command15"},
      {"spot pattern of a wide zone",
       MUSCOVITE LIST("1") "click Main1.Command9\n"
                           "set Pattern.Text3 0\nset Pattern.Text4 1\nset Pattern.Text5 0\nset Pattern.Text1 60",
       "click Pattern.Command8"},
      {"fiber texture of wide arcs",
       MUSCOVITE LIST("1") "click Main1.Command12\nset FiberTexture.Text3 0\n"
                           "set FiberTexture.Text4 0\nset FiberTexture.Text5 1\nset FiberTexture.Text1 3\nset "
                           "FiberTexture.Text2 3000",
       "click FiberTexture.Command8"},
      {"Kikuchi pattern of a long list",
       MUSCOVITE "choose Main1.Combo1 200\n" LIST(
           "0.12") "click Main1.Command10\n"
                   "set Pattern2.Text3 1\nset Pattern2.Text4 1\nset Pattern2.Text5 3\nset Pattern2.Text2 -1\n",
       "click Pattern2.Command8"},
      {"zone axis map to 90 90 90",
       MUSCOVITE LIST("1") "click Main1.Command10\n"
                           "set Pattern2.Text3 1\nset Pattern2.Text4 1\nset Pattern2.Text5 3\nclick "
                           "Pattern2.Command8\nshow Zaxis\n"
                           "set Zaxis.Text1 90\nset Zaxis.Text2 90\nset Zaxis.Text3 90",
       "click Zaxis.Check2"},
      {"atom distances to 40 Å",
       "show Main1\nanswer FOLDER/many.cry\nclick Main1.DATA_LOAD\nclick Main1.Command11\n"
       "set AtomDistance.Text1 40",
       "click AtomDistance.Command1"},
      {"import of a CIF", "show Main1\nanswer FOLDER/large.cif", "click Main1.ImportStructure"},
      {"import of a long text", MUSCOVITE "answer FOLDER/long.cif", "click Main1.ImportfromCIF"},
      {"loading a large picture", "show PATTERN3\nanswer FOLDER/large.png", "click PATTERN3.ImageLoad"},
      {"turning a large picture over", "show PATTERN3\nanswer FOLDER/large.png\nclick PATTERN3.ImageLoad",
       "click PATTERN3.ImageFlip"},
      {"corrector of a picture", "show PATTERN3\nanswer examples/silicon-pattern.bmp\nclick PATTERN3.ImageLoad",
       "click PATTERN3.Command4"},
      {"indexing, twelve crystals",
       "show Main1\nanswer data/ZOLDATA/Silicon.cry\nclick Main1.DATA_LOAD\n"
       "show PATTERN3\nset PATTERN3.Text3 33\nanswer examples/silicon-pattern.bmp\nclick PATTERN3.ImageLoad\n"
       "click PATTERN3.AutomaticIndexing\n"
       "answer data/ZOLDATA/Muscovite.cry\nclick AutoIndex.AddCrystal\nanswer data/ZOLDATA/Dickite.cry\n"
       "click AutoIndex.AddCrystal\nanswer data/ZOLDATA/Albite.cry\nclick AutoIndex.AddCrystal\n"
       "answer data/ZOLDATA/Kyanite.cry\nclick AutoIndex.AddCrystal\nanswer data/ZOLDATA/Kaolinite.cry\n"
       "click AutoIndex.AddCrystal\nanswer data/ZOLDATA/Lepidolite.cry\nclick AutoIndex.AddCrystal\n"
       "answer data/ZOLDATA/Barite.cry\nclick AutoIndex.AddCrystal\nanswer data/ZOLDATA/Quartz.cry\n"
       "click AutoIndex.AddCrystal\nanswer data/ZOLDATA/Coesite.cry\nclick AutoIndex.AddCrystal\n"
       "answer data/ZOLDATA/Forsterite.cry\nclick AutoIndex.AddCrystal\nanswer data/ZOLDATA/Pyrophyllite.cry\n"
       "click AutoIndex.AddCrystal",
       "click AutoIndex.Index"},
      {"indexing, many families",
       "show Main1\nanswer data/ZOLDATA/Muscovite.cry\nclick Main1.DATA_LOAD\n"
       "show PATTERN3\nset PATTERN3.Text3 33\nanswer examples/silicon-pattern.bmp\nclick PATTERN3.ImageLoad\n"
       "click PATTERN3.AutomaticIndexing\nset AutoIndex.FamilyCount 400",
       "click AutoIndex.Index"},
      {"indexing of a large picture",
       "show Main1\nanswer data/ZOLDATA/Silicon.cry\nclick Main1.DATA_LOAD\n"
       "show PATTERN3\nset PATTERN3.Text3 33\nanswer FOLDER/large.png\nclick PATTERN3.ImageLoad\n"
       "click PATTERN3.AutomaticIndexing",
       "click AutoIndex.Index"},
      {"fitting the pattern centre",
       "show Main1\nanswer data/ZOLDATA/Silicon.cry\nclick Main1.DATA_LOAD\n"
       "show PATTERN3\nset PATTERN3.Text3 33\nanswer examples/silicon-pattern.bmp\nclick PATTERN3.ImageLoad\n"
       "click PATTERN3.AutomaticIndexing",
       "click AutoIndex.RefineCentre"},
      {"printing a long list", MUSCOVITE LIST("0.2") "answer FOLDER/list.pdf", "click Main1.Command5"},
      {"a long list to a file", MUSCOVITE LIST("0.12") "answer FOLDER/list.txt", "click Main1.Command4"},
  };
  return all;
}

}  // namespace
}  // namespace zol

int main(int argc, char** argv) {
  using namespace zol;
  int times = 5;
  bool whole_runs = true;
  std::string only, folder = ".";
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--times" && i + 1 < argc)
      times = std::stoi(argv[++i]);
    else if (word == "--only" && i + 1 < argc)
      only = argv[++i];
    else if (word == "--no-whole-runs")
      whole_runs = false;
    else
      folder = word;
  }
  int count = 1;
  const GuardedApplication application(count, argv);
  use_desktop_resources();
  QApplication::setQuitOnLastWindowClosed(false);
  make_files(folder);
  std::mt19937 random(1);
  std::uniform_real_distribution<double> moment(0, 1000);
  std::cout
      << "| Work | whole run (s) | estimate (s, MB) | gap (ms) | after it (ms) | Esc to the end (ms) | and painted "
         "(ms) | as before |\n|---|---|---|---|---|---|---|---|\n"
      << std::flush;
  for (const Kind& kind : kinds()) {
    if (std::string(kind.name).find(only) == std::string::npos) continue;
    try {
      Bench bench({ZOL_SOURCE_DIR "/data/ZOL", ZOL_SOURCE_DIR "/data/ZOLDATA"}, folder);
      bench.run_all(kind.setup);
      double answer = 0, painted = 0, gap = 0;
      bool as_before = true;
      int pressed = 0;
      for (int i = 0; i < times; ++i) {
        Finger finger;
        const Measured measured = bench.measure(kind.work, &finger, moment(random));
        gap = std::max(gap, measured.gap_ms);
        if (!measured.pressed) continue;
        ++pressed;
        answer = std::max(answer, measured.answer_ms);
        painted = std::max(painted, measured.painted_ms);
        as_before = as_before && measured.as_before;
      }
      Measured whole;
      if (whole_runs) whole = bench.measure(kind.work, nullptr, 0);
      std::printf("| %s | %.1f | %.1f, %.0f | %.0f | %.0f | ", kind.name, whole.seconds, whole.expected.seconds,
                  whole.expected.bytes / 1048576, std::max(gap, whole.gap_ms), whole.behind_ms);
      if (pressed > 0) {
        std::printf("%.0f | %.0f | %s |\n", answer, painted, as_before ? "yes" : "NO");
      } else {
        std::printf("over within a second | | |\n");
      }
      std::fflush(stdout);
    } catch (const std::exception& error) {
      std::printf("| %s | %s |\n", kind.name, error.what());
    }
  }
  return 0;
}
