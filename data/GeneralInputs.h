#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verdalis {

/// Whatever stands for the input controls while saved inputs are put back: the window's controls, or plain
/// texts. Setting a text has the consequences that typing it would have.
class InputControls {
 public:
  InputControls() = default;
  InputControls(const InputControls&) = delete;
  InputControls& operator=(const InputControls&) = delete;
  virtual ~InputControls() = default;

  /// Puts a text into the control of that name, such as "txtArea".
  virtual void setText(std::string_view control, const std::string& text) = 0;

  /// Turns on the land split button at an index from 0 to 5; without an index turns all of them off.
  virtual void chooseLandSplit(std::optional<int> index) = 0;
};

/// The first block of the saved inputs: five general inputs, kept as the texts of their controls.
struct GeneralInputs {
  std::string splitIndex;       ///< Index of the land split that is on; empty for none
  std::string totalAcres;       ///< txtArea
  std::string waterAllocation;  ///< txtMax, gross inches
  std::string irrigEff;         ///< txtEff, percent
  std::string annualRain;       ///< txtAnnRain, inches

  /// The five lines of the saved inputs file, CR LF between them.
  [[nodiscard]] std::string writeData() const;

  /// Puts the values into their controls.
  /// \throws RunTimeError when splitIndex is neither empty nor the index of a land split; the rainfall and
  /// the efficiency have been put in by then.
  void setData(InputControls& controls) const;
};

}  // namespace verdalis
