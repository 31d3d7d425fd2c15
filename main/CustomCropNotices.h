#pragma once

#include "main/NoticeBar.h"
#include "main/SavedInputsKeeper.h"
#include "screens/CustomCropPane.h"

namespace verdalis {

/// Tells what the boxes of the custom crop editor do not: a crop that was not saved or not deleted, one that
/// was replaced or deleted and can come back, and a name that the saved inputs take for something else.
class CustomCropNotices {
 public:
  CustomCropNotices(CustomCropPane& editor, NoticeBar& notices, SavedInputsKeeper& keeper);

 private:
  void checkName();
  void tellReplaced(const FormerCustomCrop& former, const FormerCustomCrop& now);
  void tellDeleted(const FormerCustomCrop& former);

  CustomCropPane& editor_;
  NoticeBar& notices_;
  SavedInputsKeeper& keeper_;
};

}  // namespace verdalis
