// The picture control: a drawing in user coordinates and, where the surroundings have pixels, a raster of it.
//
// Two layers: the stored image (background picture and what was drawn in persistent mode) and the overlay above it.
#pragma once

#include <any>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/services/controls.h"
#include "shell/services/drawing.h"
#include "shell/services/picture_marks.h"
#include "shell/services/raster.h"

namespace zol {

struct CurveOffer;

/// An axis of a curve: what is laid off along it, and in which unit.
struct Axis {
  std::string quantity;
  std::string unit;
  double per_unit = 1;  ///< shown numbers per user unit
};

class Canvas : public Control {
 public:
  /// @param width_twips  size of the control, 1440 twips are 96 pixels
  Canvas(Window& window, Services& services, std::string name, int width_twips, int height_twips);
  ~Canvas() override;

  /// All that can change about it.
  struct Contents {
    Drawing drawing;
    std::shared_ptr<const Surface> picture;  ///< the background
    bool raster_base = false;                ///< the stored image holds more than picture and list tell
    std::shared_ptr<const Surface> stored;   ///< it then, where it has been made
    MousePointer mouse_pointer = MousePointer::Default;
    PictureMarks marks = {};  ///< of what was drawn
  };
  [[nodiscard]] Contents contents() const;
  void set_contents(const Contents& contents);

  /// In persistent mode erases all drawing down to the background picture; else the overlay alone.
  void clear();
  /// A scale of width or height 0 is taken too. What is drawn in it goes on the list, but has no pixels.
  void scale(double left, double top, double right, double bottom);
  void move_to(double x, double y);  ///< sets the drawing position
  void line(double x1, double y1, double x2, double y2, std::optional<Colour> colour = {});
  void line_to(double x, double y, std::optional<Colour> colour = {});
  /// A circle also where the two scales differ: the radius counts in units of x. Leaves the drawing position at the
  /// centre.
  void circle(double x, double y, double radius, std::optional<Colour> colour = {});
  void set_point(double x, double y, std::optional<Colour> colour = {});
  /// Colour of the pixel, -1 outside the picture. @throws RunFailure  there are no pixels here
  [[nodiscard]] Colour point(double x, double y);
  void print(std::string_view text);  ///< at the drawing position, which stays
  /// What was drawn has indices. No part of the drawing; the next clear forgets it.
  void mark(const PictureMark& mark) {
    marks_.push_back(mark);
    touched();
  }
  [[nodiscard]] const PictureMarks& marks() const { return marks_; }

  [[nodiscard]] Colour fore_colour() const { return drawing_.pens.fore; }
  [[nodiscard]] Colour back_colour() const { return drawing_.pens.back; }
  [[nodiscard]] double font_size() const { return drawing_.pens.font_size_pt; }
  void set_fore_colour(Colour colour) { set_pen(drawing_.pens.fore, colour); }
  void set_back_colour(Colour colour);  ///< repaints the background under the drawing
  void set_fill_colour(Colour colour) { set_pen(drawing_.pens.fill, colour); }
  void set_solid_fill(bool solid) { set_pen(drawing_.pens.solid_fill, solid); }  ///< else transparent
  void set_font_size(double points) { set_pen(drawing_.pens.font_size_pt, points); }
  void set_persistent(bool persistent) { set_pen(drawing_.pens.persistent, persistent); }

  [[nodiscard]] int width() const { return drawing_.width_twips; }  ///< twips
  [[nodiscard]] int height() const { return drawing_.height_twips; }
  void set_width(int twips);
  void set_height(int twips);
  [[nodiscard]] int pixel_width() const { return drawing_.pixel_width(); }
  [[nodiscard]] int pixel_height() const { return drawing_.pixel_height(); }

  /// Background picture. Each replaces the stored image, so that what was drawn into it goes.
  /// A file holds a bitmap, PNG, JPEG or TIFF, by its content. @throws RunFailure  it cannot be read
  void load_picture(const std::string& path);
  void take_picture(Canvas& other, bool upside_down);  ///< the stored image of another canvas
  void remove_picture();
  void flip_picture();    ///< upside down; without a picture nothing happens
  void mirror_picture();  ///< left to right
  /// The stored image, changed pixel by pixel, becomes the picture.
  void edit_picture(const std::function<void(Surface&)>& edit);
  [[nodiscard]] bool has_picture() const { return raster_.picture() != nullptr; }
  /// The pixels of the picture at its own size, without what is drawn over it: of the file as it was turned over, or
  /// what an edit made of the stored image. Kept until there is another picture; null where there is none.
  [[nodiscard]] std::shared_ptr<const GreyPicture> grey_picture() { return raster_.grey_picture(); }

  /// Writes the stored image, or the image with its overlay, as a bitmap.
  void save_stored_image(const std::string& path);
  void save_image_with_overlay(const std::string& path);

  /// Another number when the drawing has begun anew.
  [[nodiscard]] unsigned begun() const { return begun_; }

  [[nodiscard]] MousePointer mouse_pointer() const { return mouse_pointer_; }
  void set_mouse_pointer(MousePointer pointer);

  // Mouse events, positions in user coordinates
  void press(double x, double y) const { on_mouse_down.fire(path() + " was pressed", to_single(x), to_single(y)); }
  void move(double x, double y) const { on_mouse_move.fire(path() + " was moved over", to_single(x), to_single(y)); }
  void release(double x, double y) const { on_mouse_up.fire(path() + " was released", to_single(x), to_single(y)); }
  void double_click() const { on_double_click.fire(path() + " was double clicked"); }
  Event<Single, Single> on_mouse_down;
  Event<Single, Single> on_mouse_move;
  Event<Single, Single> on_mouse_up;
  Event<> on_double_click;

  std::function<std::string(double x, double y)> warn_at = {};  ///< why it should not be pressed at this place
  Reason warn_click = {};                                       ///< against a press without a drag
  /// Against a press at a place, of the whole picture or of this place.
  [[nodiscard]] std::string reason_against(double x, double y) const {
    const std::string of_all = warn_when ? warn_when() : "";
    return of_all.empty() && warn_at ? warn_at(x, y) : of_all;
  }

  // What a view shows beside the picture
  std::optional<Axis> x_axis, y_axis;                             ///< rulers, where the picture is a curve
  std::function<std::string(double x, double y)> describe_place;  ///< the place under the pointer, in user coordinates
  std::shared_ptr<const CurveOffer> curve;         ///< what may be laid beside the curve, where it is one
  std::string hint;                                ///< what to do, as long as the picture is empty
  std::optional<PictureGeometry> geometry;         ///< where places can be measured
  std::unique_ptr<PictureDrag> drag;               ///< where a drag tilts and turns
  const ListBox* rows = nullptr;                   ///< whose rows the marks name
  std::function<PictureMarks(int row)> row_marks;  ///< what a row of that list looks like over the picture
  std::vector<PictureAction> actions;
  bool loupe = false;  ///< while a line is drawn

  // For views and exports
  [[nodiscard]] Services& services() const { return services_; }
  [[nodiscard]] const UserScale& user_scale() const { return drawing_.scale; }
  [[nodiscard]] const UserScale& list_scale() const {
    return drawing_.list_scale;
  }  ///< in force at the head of the list
  [[nodiscard]] const DrawingList& drawing() const { return drawing_.list; }
  /// True when the stored image holds more than picture and list tell: a raster is then the base of any export.
  [[nodiscard]] bool has_raster_base() const { return raster_.has_base(); }
  /// Empty, or why what was drawn has no pixels: it stands in a scale of width or height 0.
  [[nodiscard]] std::string fault() const;
  /// @throws RunFailure  there are no pixels here, or the drawing has a fault
  [[nodiscard]] Surface& stored_image();
  [[nodiscard]] Surface& overlay_image();
  /// Makes some more of both images, until the answer is true. @returns whether they are there, with all that was drawn
  [[nodiscard]] bool make_some_images(const std::function<bool()>& enough);
  /// Both as far as they have been made.
  [[nodiscard]] const Surface& stored_so_far() const { return raster_.stored(); }
  [[nodiscard]] const Surface& overlay_so_far() const { return raster_.overlay(); }
  /// Another number when more has changed than that something was drawn besides.
  [[nodiscard]] unsigned redrawn() const { return redrawn_; }
  /// What lies beside the curve has changed.
  void surroundings_changed() { changed(); }

 protected:
  [[nodiscard]] std::any copied_contents() const override { return contents(); }
  [[nodiscard]] const ValueKind* contents_kind() const override { return &value_kind<Contents>; }
  void take_contents(const std::any& contents) override { set_contents(std::any_cast<const Contents&>(contents)); }

 private:
  template <class Value>
  void set_pen(Value& pen, Value value) {
    if (pen == value) return;
    pen = value;
    touched();
  }
  void drawn();
  void make_images();
  void turn_picture(bool left_to_right, bool upside_down);
  void show_picture();

  Services& services_;
  Drawing drawing_;
  Raster raster_;
  PictureMarks marks_;
  unsigned begun_ = 0;
  MousePointer mouse_pointer_ = MousePointer::Default;
  unsigned redrawn_ = 0;
};

}  // namespace zol
