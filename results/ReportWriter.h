#pragma once

#include <string>

#include "controls/services.h"

namespace verdalis {

/// A moment as the reports show it, such as "5/6/2024 7:08 AM".
[[nodiscard]] std::string reportTime(const ClockTime& time);

/// What stands at the head of a report.
struct ReportHead {
  std::string title;
  double timeStop = 0;  ///< Where the time of printing stands, twentieths of a point
  std::string timeLabel;
  std::string origin;  ///< The first line of the notice below the title
};

/// Writes on a page surface what both printed reports are made of.
class ReportWriter {
 public:
  explicit ReportWriter(PageSurface& page) : page_(page) {}

  /// Points, and whether what follows is bold.
  void font(double size, bool bold = false);

  /// Title, time and notice; what follows is in size 9.
  void head(const ReportHead& head, const ClockTime& time);

  /// A text that begins at a stop; the line goes on.
  void at(double stop, const std::string& text);

  /// A bold label and a plain value right behind it.
  void pair(const std::string& label, const std::string& value);

  /// A bold label and a plain value, each at its stop.
  void pair(double labelStop, const std::string& label, double valueStop, const std::string& value);

  void endLine() { page_.printLine(""); }

  /// A line of one character, `count` times.
  void rule(int count, char character);

 private:
  PageSurface& page_;
};

}  // namespace verdalis
