#include "cli/report/TextPage.h"

namespace verdalis {

void TextPage::setCurrentX(double position) {
  // At the start of a line, the text is at the left edge already.
  placed_ = !(atLineStart_ && position == 0);
}

void TextPage::print(const std::string& text) {
  if (text.empty() && !placed_) return;
  if (placed_) text_ += '\t';
  text_ += text;
  placed_ = false;
  atLineStart_ = false;
}

void TextPage::printLine(const std::string& text) {
  print(text);
  text_ += '\n';
  placed_ = false;
  atLineStart_ = true;
}

void TextPage::endDocument() {
  if (!atLineStart_) text_ += '\n';
  onEnd_(text_);
}

}  // namespace verdalis
