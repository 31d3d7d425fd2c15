#pragma once

#include <functional>
#include <string>

#include "controls/services.h"

namespace verdalis {

/// A document as plain text: a line for each printed line, its pieces in order, a tab in front of each piece
/// that was placed at a new position, no marks for fonts.
class TextPage : public PageSurface {
 public:
  /// `onEnd` takes the whole text at the end of the document.
  explicit TextPage(std::function<void(const std::string&)> onEnd) : onEnd_(std::move(onEnd)) {}

  void setFontSize(double /*points*/) override {}
  void setBold(bool /*on*/) override {}
  void setItalic(bool /*on*/) override {}
  void setUnderline(bool /*on*/) override {}
  void setCurrentX(double position) override;
  void print(const std::string& text) override;
  void printLine(const std::string& text) override;
  void endDocument() override;

 private:
  std::function<void(const std::string&)> onEnd_;
  std::string text_;
  bool atLineStart_ = true;  ///< Nothing stands on the line, and nothing has been placed on it
  bool placed_ = false;      ///< The next piece stands at a position of its own
};

}  // namespace verdalis
