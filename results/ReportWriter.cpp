#include "results/ReportWriter.h"

namespace verdalis {

std::string reportTime(const ClockTime& time) {
  const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
  return std::to_string(time.month) + "/" + std::to_string(time.day) + "/" + std::to_string(time.year) + " " +
         std::to_string(hour) + (time.minute < 10 ? ":0" : ":") + std::to_string(time.minute) +
         (time.hour < 12 ? " AM" : " PM");
}

void ReportWriter::font(double size, bool bold) {
  page_.setFontSize(size);
  page_.setBold(bold);
}

void ReportWriter::head(const ReportHead& head, const ClockTime& time) {
  font(12, true);
  page_.print(head.title);
  page_.setCurrentX(head.timeStop);
  font(9);
  page_.printLine(head.timeLabel + reportTime(time));
  endLine();
  font(8);
  page_.printLine(head.origin);
  page_.printLine(
      "The information is presented 'as is'.  The user is responsible for how the information is utilized in "
      "their own operation.");
  page_.printLine(
      "Marlowe Institute has technically reviewed the information but disclaims any responsibility or "
      "liability for interpretations or decisions based theron.");
  font(9);
}

void ReportWriter::at(double stop, const std::string& text) {
  page_.setCurrentX(stop);
  page_.print(text);
}

void ReportWriter::pair(const std::string& label, const std::string& value) {
  page_.setBold(true);
  page_.print(label);
  page_.setBold(false);
  page_.print(value);
}

void ReportWriter::pair(double labelStop, const std::string& label, double valueStop,
                        const std::string& value) {
  page_.setBold(true);
  at(labelStop, label);
  page_.setBold(false);
  at(valueStop, value);
}

void ReportWriter::rule(int count, char character) {
  page_.printLine(std::string(static_cast<std::size_t>(count), character));
}

}  // namespace verdalis
