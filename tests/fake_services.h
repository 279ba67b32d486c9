// Surroundings for tests: answers from a list, and pictures as plain arrays of colours.
#pragma once

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/run_failure.h"
#include "shell/services/pictures.h"
#include "shell/services/window_services.h"

namespace zol {

/// Sets the end pixels of lines, the centre of circles and nothing for text: enough to see where things fall.
class FakeSurface : public Surface {
 public:
  FakeSurface(int width, int height) : width_(width), height_(height) {}
  [[nodiscard]] int width() const override { return width_; }
  [[nodiscard]] int height() const override { return height_; }
  void fill(Colour colour) override {
    pixels_.clear();
    background_ = colour;
  }
  void make_transparent() override {
    pixels_.clear();
    background_.reset();
  }
  void line(double x1, double y1, double x2, double y2, Colour colour) override {
    set_near(x1, y1, colour);
    set_near(x2, y2, colour);
  }
  void circle(double x, double y, double radius, Colour outline, std::optional<Colour> fill) override {
    last_radius = radius;
    set_near(x, y, fill.value_or(outline));
  }
  void set_pixel(int x, int y, Colour colour) override { pixels_[{x, y}] = colour; }
  [[nodiscard]] std::optional<Colour> pixel(int x, int y) const override {
    const auto found = pixels_.find({x, y});
    return found == pixels_.end() ? background_ : std::optional(found->second);
  }
  void text(double, double, const std::string&, Colour, double) override {}
  void draw(const Surface& other, bool upside_down) override {
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) {
        const int row = y * other.height() / height_;
        const auto colour = other.pixel(x * other.width() / width_, upside_down ? other.height() - 1 - row : row);
        if (colour) set_pixel(x, y, *colour);
      }
    }
  }
  [[nodiscard]] std::unique_ptr<Surface> mirrored(bool left_to_right, bool upside_down) const override {
    auto turned = std::make_unique<FakeSurface>(width_, height_);
    for (const auto& [place, colour] : pixels_) {
      const auto [x, y] = place;
      turned->set_pixel(left_to_right ? width_ - 1 - x : x, upside_down ? height_ - 1 - y : y, colour);
    }
    return turned;
  }
  [[nodiscard]] GreyPicture grey() const override { return {width_, height_, {}}; }
  void load(const std::string& path) override {
    if (path != "four.bmp") throw RunFailure("cannot read " + path);
    width_ = height_ = 2;
    for (int i = 0; i < 4; ++i) set_pixel(i % 2, i / 2, 100 + i);
  }
  void save_bitmap(const std::string& path) const override { saved()[path] = pixels_; }
  void store(StoreWriter& out) const override {
    for (const int side : {width_, height_}) out.number(side);
    zol::store(out, background_);
    out.count(pixels_.size());
    for (const auto& [place, colour] : pixels_) {
      for (const int number : {place.first, place.second, colour}) out.number(number);
    }
  }
  void load(StoreReader& in) override {
    width_ = in.number<int>();
    height_ = in.number<int>();
    background_ = zol::load<std::optional<Colour>>(in);
    for (std::size_t left = in.count(); left > 0; --left) {
      const auto [x, y, colour] = zol::load<std::array<int, 3>>(in);
      pixels_[{x, y}] = colour;
    }
  }

  using Pixels = std::map<std::pair<int, int>, Colour>;
  /// What was saved, by the path.
  static std::map<std::string, Pixels>& saved() {
    static std::map<std::string, Pixels> files;
    return files;
  }

  double last_radius = 0;

 private:
  void set_near(double x, double y, Colour colour) {
    set_pixel(static_cast<int>(round_half_even(x)), static_cast<int>(round_half_even(y)), colour);
  }

  int width_;
  int height_;
  std::optional<Colour> background_;
  Pixels pixels_;
};

class FakeServices : public Services {
 public:
  std::string ask_file(const FileQuestion& question) override {
    questions.push_back(question);
    return next();
  }
  void set_up_printer() override {}
  std::string prompt(const std::string& text, const std::string& title) override {
    prompts.push_back(text + "|" + title);
    return next();
  }
  void message(const std::string& text, const std::string& /*title*/) override { messages.push_back(text); }
  void print_line(const std::string& line) override { printed.push_back(line); }
  void end_document(const std::string& /*title*/) override { printed.emplace_back("end"); }
  void print_window(Window& window) override { printed.push_back("window " + window.caption()); }
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return std::make_unique<FakeSurface>(width, height);
  }
  void export_picture(Canvas& /*canvas*/, const std::string& /*path*/) override {}
  void end_program() override {}

  std::deque<std::string> answers;
  std::vector<FileQuestion> questions;
  std::vector<std::string> prompts, messages, printed;

 private:
  std::string next() {
    if (answers.empty()) throw RunFailure("a question without an answer");
    std::string answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

/// Pixels for the windows that read them.
struct FakePictures : PictureMaker {
  std::unique_ptr<Surface> make_surface(int width, int height) override {
    return std::make_unique<FakeSurface>(width, height);
  }
  void export_picture(Canvas& /*canvas*/, const std::string& /*path*/) override {}
};

}  // namespace zol
