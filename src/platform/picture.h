#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace velmar {

/// A place on a picture, in its units, counted from its left and upper edge.
struct Point {
  double x = 0;
  double y = 0;

  bool operator==(const Point&) const = default;
};

/// The colours are numbers as in `colour`; see form.h.

/// A filled disc with a border one unit wide.
struct Disc {
  Point centre;
  double radius = 1;
  int fill = 0;
  int border = 0;

  bool operator==(const Disc&) const = default;
};

/// A line from place to place.
struct Stroke {
  std::vector<Point> points;
  int colour = 0;
  double width = 1;

  bool operator==(const Stroke&) const = default;
};

/// A filled area without a border. Its rings may lie within one another: what lies in an even
/// number of them stays open.
struct Area {
  std::vector<std::vector<Point>> rings;
  int fill = 0;

  bool operator==(const Area&) const = default;
};

/// A line of text around its centre, on a ground of its own where `ground` is not negative.
struct Lettering {
  Point centre;
  std::string text;  ///< code page 1252
  int colour = 0;
  double height = 10;  ///< of the letters, in units
  bool bold = false;
  int ground = -1;

  bool operator==(const Lettering&) const = default;
};

using Shape = std::variant<Disc, Stroke, Area, Lettering>;

/// A drawing, as a list of shapes, each over those ahead of it. Windows, the printer and picture
/// files draw it alike; what lies beyond its edges is cut off.
class Picture {
 public:
  Picture(double width, double height, int ground)
      : width_(width), height_(height), ground_(ground) {}

  double width() const { return width_; }
  double height() const { return height_; }
  /// The colour behind all shapes; -1 where what lies behind the picture shines through.
  int ground() const { return ground_; }
  const std::vector<Shape>& shapes() const { return shapes_; }

  void Add(Shape shape) { shapes_.push_back(std::move(shape)); }
  void Add(const Picture& other) {
    shapes_.insert(shapes_.end(), other.shapes_.begin(), other.shapes_.end());
  }

 private:
  double width_;
  double height_;
  int ground_;
  std::vector<Shape> shapes_;
};

/// Keeps pictures as files.
class PictureFiles {
 public:
  virtual ~PictureFiles() = default;

  /// Writes a picture in the format that the ending of the path names: "bmp" with a dot a unit,
  /// "png" with more of them; a ground that lets shine through is white in a "bmp". The file is the
  /// old one or the new one. Raises RunTimeError: 5 for another ending, and what the disk raises.
  virtual void Save(const Picture& picture, const std::string& path) = 0;

  /// The bytes of such a "png".
  virtual std::string Png(const Picture& picture) = 0;
};

}  // namespace velmar
