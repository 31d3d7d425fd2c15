#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace verdalis {

/// Receives saved inputs as they are loaded: the controls of the window, or plain texts. Setting a text has
/// the same effects as typing it.
class InputControls {
 public:
  InputControls() = default;
  InputControls(const InputControls&) = delete;
  InputControls& operator=(const InputControls&) = delete;
  virtual ~InputControls() = default;

  /// Sets the text of a control, such as "txtArea".
  virtual void setText(std::string_view control, const std::string& text) = 0;

  /// Selects the land split button at an index from 0 to 5; without an index deselects all of them.
  virtual void chooseLandSplit(std::optional<int> index) = 0;
};

/// The first block of the saved inputs: five general inputs, stored as the texts of their controls.
struct GeneralInputs {
  std::string splitIndex;       ///< Index of the selected land split; empty for none
  std::string totalAcres;       ///< txtArea
  std::string waterAllocation;  ///< txtMax, gross inches
  std::string irrigEff;         ///< txtEff, percent
  std::string annualRain;       ///< txtAnnRain, inches

  /// The five lines of the saved inputs file, separated by CR LF.
  [[nodiscard]] std::string writeData() const;

  /// Sets the controls to these values.
  /// \throws RunTimeError if splitIndex is neither empty nor the index of a land split. Rainfall and
  /// efficiency are set by then.
  void setData(InputControls& controls) const;
};

}  // namespace verdalis
