#pragma once

#include <string>

#include "controls/services.h"

namespace verdalis {

/// A date and time in the format of the reports, such as "5/6/2024 7:08 AM".
[[nodiscard]] std::string reportTime(const ClockTime& time);

/// The heading of a report.
struct ReportHead {
  std::string title;
  double timeStop = 0;  ///< Stop of the printing time, twentieths of a point
  std::string timeLabel;
  std::string origin;  ///< The first line of the notice below the title
};

/// Writes the common parts of both printed reports on a page surface.
class ReportWriter {
 public:
  explicit ReportWriter(PageSurface& page) : page_(page) {}

  /// Sets the font for the following texts. `size` is in points.
  void font(double size, bool bold = false);

  /// Writes title, time and notice, then sets the font size to 9.
  void head(const ReportHead& head, const ClockTime& time);

  /// Writes a text at a stop without ending the line.
  void at(double stop, const std::string& text);

  /// Writes a bold label followed by a plain value.
  void pair(const std::string& label, const std::string& value);

  /// Writes a bold label and a plain value, each at its stop.
  void pair(double labelStop, const std::string& label, double valueStop, const std::string& value);

  void endLine() { page_.printLine(""); }

  /// Writes a line of `count` equal characters.
  void rule(int count, char character);

 private:
  PageSurface& page_;
};

}  // namespace verdalis
