// What the program asks of its surroundings: questions to the user, the printer, pixels, and its own end.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/numbers.h"
#include "core/task.h"

namespace zol {

class Canvas;
class Surface;
class Window;

/// What the program adds to the name that a save dialog answers.
struct NameEnding {
  std::string text = {};       ///< as ".bmp"; empty: nothing
  bool unless_dotted = false;  ///< only to a name that has no dot

  [[nodiscard]] std::string added_to(const std::string& path) const;
};

/// Filters of file dialogs.
namespace file_filters {
inline constexpr auto crystals = "Crystal files|*.cry|";
inline constexpr auto structures = "Structure files|*.cif;*.mcif;*.res;*.ins;*.vasp;*.cry;*.gz;POSCAR*;CONTCAR*|";
inline constexpr auto cif = "CIF|*.cif|";
inline constexpr auto texts = "Text files|*.txt|";
inline constexpr auto atom_lists = "Lists of atoms|*.txt;*.cif|";
inline constexpr auto bitmaps = "bmp|*.bmp|";
inline constexpr auto pictures = "Pictures|*.bmp;*.png;*.jpg;*.jpeg;*.tif;*.tiff|bmp|*.bmp|";
inline constexpr auto pages = "PDF|*.pdf|";
/// Of the pictures, in small letters.
inline constexpr std::array picture_endings{".bmp", ".png", ".jpg", ".jpeg", ".tif", ".tiff"};
}  // namespace file_filters

/// What a file holds. Folders and names are proposed by it: a name of another kind never is.
enum class FileKind {
  Crystal,
  Structure,
  Cif,
  Icsd,
  AtomList,
  Report,
  Picture,
  PowderPattern,
  RingProfile,
  CameraParameters,
  Corrector,
  Export,
  PrintedPage,
  MeasuredPattern,
  LineList
};

struct FileQuestion {
  FileKind kind = FileKind::Crystal;
  bool save = false;
  std::string initial_folder = {};
  std::string file_name = {};  ///< preset, or the last answer for this kind, whatever was cancelled since
  std::string filter = {};     ///< "name|*.ending|", may be empty
  NameEnding ending = {};      ///< the file that is written bears the answer with it
};

/// A prompt, with words for its dialog alone.
struct PromptQuestion {
  std::string text;
  std::string title;
  std::string bounds = {};  ///< what an answer means, and in which bounds; told below the text
  /// Why an answer, the empty one of a cancel included, would end the run or be of no use; empty where it is fine.
  std::function<std::string(const std::string& answer)> warn_when = {};
};

class Services {
 public:
  Services() = default;
  Services(const Services&) = delete;
  Services& operator=(const Services&) = delete;
  virtual ~Services() = default;

  /// Asks for a path, modal. @returns the full path, empty when the user cancelled
  virtual std::string ask_file(const FileQuestion& question) = 0;
  /// Shows the printer set-up dialog; the choice applies to the next printed window.
  virtual void set_up_printer() = 0;
  /// Asks for a text, modal. @returns the empty text when the user cancelled
  virtual std::string prompt(const std::string& text, const std::string& title) = 0;
  /// The same with what is known of the answers beforehand.
  [[nodiscard]] virtual std::string ask_text(const PromptQuestion& question) {
    return prompt(question.text, question.title);
  }
  /// Tells something, with an exclamation icon, modal.
  virtual void message(const std::string& text, const std::string& title) = 0;

  /// Tells several lines at once, to be read and copied.
  virtual void report(const std::vector<std::string>& lines, const std::string& title) {
    for (const auto& line : lines) message(line, title);
  }

  /// Puts a text where other programs paste it from; here it is told.
  virtual void copy_text(const std::vector<std::string>& lines, const std::string& title) { report(lines, title); }

  virtual void print_line(const std::string& line) = 0;  ///< one line of the document under way
  /// Sends the document. @param title  names it, also where it goes to a file
  virtual void end_document(const std::string& title) = 0;
  /// By the choice of the set-up dialog, which holds once.
  virtual void print_window(Window& window) = 0;

  /// A pixel image; nullptr where there are none.
  virtual std::unique_ptr<Surface> make_surface(int width, int height) = 0;
  /// Writes a picture with its overlay to a file; the kind by the ending: .bmp, .png, .svg, .pdf.
  virtual void export_picture(Canvas& canvas, const std::string& path) = 0;

  /// Asked often while something long runs: does the user want to stop it? Has to be quick.
  [[nodiscard]] virtual bool stop_wanted() { return false; }
  /// How far something long is; done rises to total.
  virtual void work_reported(int /*done*/, int /*total*/) {}
  /// Asked before work that may take long. @returns false when it is not to be done
  [[nodiscard]] virtual bool confirm_work(const Effort& /*effort*/) { return true; }

  /// Ends the program once the running handler has returned; no further event comes in.
  virtual void end_program() = 0;

  /// Told of each file that a dialog of a window has answered, by the name that it bears.
  using Chosen = std::function<void(const FileQuestion&, const std::string& path)>;
  void set_chosen(Chosen chosen) { chosen_ = std::move(chosen); }

 private:
  friend class WindowTask;
  friend class FileDialog;
  Chosen chosen_;
  int tasks_ = 0;  ///< that are under way, one within the other
};

/// The file dialog of a window.
class FileDialog {
 public:
  explicit FileDialog(Services& services) : services_(services) {}
  /// The dialog of a window: what it remembers is kept with the window's fields.
  FileDialog(Window& window, Services& services, const std::string& name);

  void set_initial_folder(std::string folder) { memory_.initial_folder = std::move(folder); }
  /// Of files of one kind, in the place of the common one.
  void set_initial_folder(FileKind kind, std::string folder) { memory_.folders[kind] = std::move(folder); }
  /// Of the next question.
  void set_file_name(std::string name) { memory_.preset = std::move(name); }
  void set_filter(std::string filter) { memory_.filter = std::move(filter); }

  /// Each returns the full path, empty when the user cancelled.
  const std::string& open(FileKind kind) { return ask(kind, false, {}); }
  /// @param ending  what the caller adds to the answer
  const std::string& save(FileKind kind, const NameEnding& ending = {}) { return ask(kind, true, ending); }
  /// The answer with its ending, also when it is empty.
  [[nodiscard]] std::string save_as(FileKind kind, const NameEnding& ending) {
    return ending.added_to(save(kind, ending));
  }
  void printer_setup() { services_.set_up_printer(); }

  /// Runs an action in which the first question is answered in advance, as a file dropped on the window does.
  void answering(std::string path, const std::function<void()>& action);

  [[nodiscard]] std::string file_title() const;  ///< the last answer without its folder

 private:
  struct Memory {
    std::string initial_folder;
    std::string filter;
    std::map<FileKind, std::string> folders;
    std::map<FileKind, std::string> last_names;
    std::optional<std::string> preset;
    std::string file_name;
    bool operator==(const Memory&) const = default;
  };

  const std::string& ask(FileKind kind, bool save, const NameEnding& ending);

  Services& services_;
  Memory memory_;
  std::optional<std::string> answered_;  // within answering() alone
};

/// Collects a printed line: print zones of 14 columns, each value starts at the next zone; a number is its Str and a
/// blank.
class PrintLine {
 public:
  PrintLine& add(std::string_view text);
  PrintLine& add(Single value);
  PrintLine& add(Integer value);
  [[nodiscard]] const std::string& text() const { return text_; }

 private:
  std::string text_;
  std::size_t next_zone_ = 0;
};

}  // namespace zol
