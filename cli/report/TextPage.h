#pragma once

#include <functional>
#include <string>

#include "controls/services.h"

namespace verdalis {

/// A document as plain text: one line per printed line, with its pieces in order and a tab before each piece
/// at a new position. Fonts are not marked.
class TextPage : public PageSurface {
 public:
  /// `onEnd` receives the whole text at the end of the document.
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
  bool atLineStart_ = true;  ///< Nothing has been written or placed on the line
  bool placed_ = false;      ///< The next piece has its own position
};

}  // namespace verdalis
