#include "cli/Progress.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <iostream>
#include <utility>

#include "platform/Interrupt.h"
#include "platform/terminal.h"
#include "text/numbers.h"

namespace verdalis {
namespace {

constexpr double quietSeconds = 0.3;  // no progress for shorter runs
constexpr double secondsBetweenDraws = 0.1;
constexpr std::size_t mostDescription = 20;

std::string timeText(double seconds) {
  constexpr double hundredHours = 360000;
  if (seconds >= hundredHours) return "more than 100 h";
  const long whole = std::max(1L, std::lround(seconds));
  if (whole < 60) return std::to_string(whole) + " s";
  if (whole < 3600) return std::to_string(whole / 60) + " min " + std::to_string(whole % 60) + " s";
  return std::to_string(whole / 3600) + " h " + std::to_string(whole / 60 % 60) + " min";
}

}  // namespace

Progress::Progress(std::ostream* terminal, ProgramState& state, Clock clock)
    : terminal_(terminal), state_(state), clock_(std::move(clock)) {}

double Progress::secondsNow() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void Progress::showProgress(const std::string& /*title*/) {
  erase();
  steps_ = 0;
  done_ = 0;
  started_ = clock_();
  nextDraw_ = started_ + quietSeconds;
}

void Progress::setProgress(double steps, const std::string& description) {
  steps_ = steps;
  done_ = 0;
  description_ = description.substr(0, mostDescription);
}

void Progress::update() {
  ++done_;
  drawIfDue();
}

void Progress::pumpEvents() {
  if (Interrupt::requested()) state_.CancelRequested = true;
  drawIfDue();
}

void Progress::drawIfDue() {
  if (terminal_ == nullptr || steps_ <= 0) return;
  const double now = clock_();
  if (now < nextDraw_) return;
  nextDraw_ = now + secondsBetweenDraws;
  drawn_ = true;
  *terminal_ << '\r' << line(now - started_) << "\x1b[K" << std::flush;
}

std::string Progress::line(double elapsed) const {
  std::string text = "Evaluating: ";
  if (!description_.empty()) text += description_ + ", ";
  text += formatNumber(done_, "###,##0") + " of " + formatNumber(steps_, "###,##0") + " steps, " +
          formatNumber(std::min(done_ / steps_, 1.0) * 100, "##0") + " %";
  if (done_ > 0) text += ", " + timeText(elapsed * std::max(steps_ - done_, 0.0) / done_) + " left";
  return text;
}

void Progress::erase() {
  if (drawn_) *terminal_ << "\r\x1b[K" << std::flush;
  drawn_ = false;
}

std::ostream* asTerminal(std::ostream& err) {
  return &err == &std::cerr && isTerminal(StandardStream::error) ? &err : nullptr;
}

}  // namespace verdalis
