#pragma once

#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace verdalis {

/// Wrong arguments or incomplete inputs. The text says what to change and where.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The user stopped the run.
class Cancelled : public std::runtime_error {
 public:
  Cancelled() : std::runtime_error("cancelled") {}
};

/// Messages for the user, on standard error. Standard output contains only results.
class Messages {
 public:
  explicit Messages(std::ostream& err) : err_(err) {}

  /// Writes a text, which may have several lines, without control characters.
  void tell(std::string_view text);

  /// Writes a message box of the program by its title and text.
  void tell(std::string_view title, std::string_view text) {
    tell(std::string(title) + ": " + std::string(text));
  }

  [[nodiscard]] std::ostream& stream() { return err_; }

 private:
  std::ostream& err_;
};

}  // namespace verdalis
