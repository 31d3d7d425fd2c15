#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/Crop.h"

namespace verdalis {

/// Splits the saved inputs into values. A value ends at a comma or a line end; blanks before it are dropped.
class SavedValueReader {
 public:
  explicit SavedValueReader(std::string_view text) : rest_(text) {}

  [[nodiscard]] bool atEnd() const { return rest_.empty(); }

  /// \throws RunTimeError (invalidCall) at the end of the text
  std::string_view next();

 private:
  std::string_view rest_;
};

/// Reads the values of a crop that follow its name.
/// \throws RunTimeError (invalidCall) if there are too few; (overflow) if a number is too large. The values
/// before are read.
void readSavedCrop(SavedValueReader& values, Crop& crop);

/// What the saved inputs hold of one crop.
struct SavedCropBlock {
  std::string name;
  std::string values;  ///< The lines after the name, each ended by CR LF

  /// The lines of the block in the file.
  [[nodiscard]] std::string text() const { return name + "\r\n" + values; }

  friend bool operator==(const SavedCropBlock&, const SavedCropBlock&) = default;
};

/// The crop blocks in the text of saved inputs, in order, whether or not there are such crops. A block is
/// recognized by the kinds of its values, so damage elsewhere in the text hides no block.
[[nodiscard]] std::vector<SavedCropBlock> savedCropBlocks(std::string_view inputs);

/// The blocks of `former` that `next` has no block of the same name for. Of several blocks of a name, those
/// beyond the number in `next` are missing, the last ones.
[[nodiscard]] std::vector<SavedCropBlock> missingBlocks(const std::vector<SavedCropBlock>& former,
                                                        const std::vector<SavedCropBlock>& next);

}  // namespace verdalis
