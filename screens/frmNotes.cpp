#include "screens/frmNotes.h"

namespace verdalis {

frmNotes::frmNotes(Desk& desk) : Window(desk, "frmNotes") {
  setCaption("Farm Name and Notes");
  cmdApply.onClick.connect([this] {
    onApplied({txtFarmName.text(), txtNotes.text(), txtLetterhead.text()});
    close();
  });
  cmdCancel.onClick.connect([this] { close(); });
}

void frmNotes::show(const Texts& texts) {
  txtFarmName.setText(texts.name);
  txtNotes.setText(texts.notes);
  txtLetterhead.setText(texts.letterhead);
  open();
}

}  // namespace verdalis
