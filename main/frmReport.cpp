#include "main/frmReport.h"

#include <algorithm>
#include <utility>

#include "controls/ask.h"
#include "handout/layOutPages.h"
#include "text/RunTimeError.h"

namespace verdalis {

std::string reportFileName(const std::string& farm) {
  constexpr std::size_t longest = 60;
  std::string name;
  for (const char letter : farm.substr(0, longest)) {
    const bool odd = static_cast<unsigned char>(letter) < ' ' ||
                     std::string_view("/\\:*?\"<>|").find(letter) != std::string_view::npos;
    name += odd ? ' ' : letter;
  }
  // A long name may end within a letter.
  while (!name.empty() && farm.size() > longest && (static_cast<unsigned char>(name.back()) & 0x80U) != 0)
    name.pop_back();
  while (name.ends_with(' ') || name.ends_with('.'))
    name.pop_back();
  while (name.starts_with(' ') || name.starts_with('.'))
    name.erase(0, 1);
  return (name.empty() ? "Irrigation plan" : name + " irrigation plan") + ".pdf";
}

frmReport::frmReport(Desk& desk, Services& services) : Window(desk, "frmReport"), services_(services) {
  setCaption("Report");
  for (std::size_t i = 0; i < mostParts; ++i) {
    chkPart.push_back(std::make_unique<CheckBox>(*this, "chkPart(" + std::to_string(i) + ")", ""));
    chkPart.back()->onClick.connect([this] { layOut(); });
  }
  (usualPaper() == PaperSize::a4 ? optA4 : optLetter).setChecked(true);
  for (OptionButton* sheet : {&optA4, &optLetter})
    sheet->onClick.connect([this] { layOut(); });
  cmdPrevious.onClick.connect([this] { showPage(pages.page() - 1); });
  cmdNext.onClick.connect([this] { showPage(pages.page() + 1); });
  cmdSavePdf.onClick.connect([this] { save(); });
  cmdPrint.onClick.connect([this] { print(); });
  cmdClose.onClick.connect([this] { close(); });
  showButtons();
}

void frmReport::show(Handout head, std::vector<ReportPart> parts) {
  head_ = std::move(head);
  parts_.clear();
  filling_ = true;
  for (std::size_t i = 0; i < chkPart.size(); ++i) {
    CheckBox& box = *chkPart[i];
    box.setVisible(i < parts.size());
    if (i >= parts.size()) continue;
    box.setCaption(parts[i].name);
    box.setChecked(parts[i].chosen);
    parts_.push_back({std::move(parts[i]), {}});
  }
  filling_ = false;
  lblSaved.setCaption("");
  pages.setPages(nullptr);
  layOut();
  open();
}

void frmReport::layOut() {
  if (filling_) return;
  Handout handout = head_;
  for (std::size_t i = 0; i < parts_.size(); ++i) {
    Part& part = parts_[i];
    if (!chkPart[i]->checked()) continue;
    if (!part.made) part.made = part.offered.section();
    handout.sections.push_back(*part.made);
  }
  const PaperSize sheet = optA4.checked() ? PaperSize::a4 : PaperSize::letter;
  pages.setPages(std::make_shared<const std::vector<Drawing>>(
      layOutPages(handout, sheet, services_.printer.pageMeasure())));
  showButtons();
}

void frmReport::showPage(std::size_t page) {
  pages.setPage(page);
  showButtons();
}

void frmReport::showButtons() {
  const std::size_t count = pages.count();
  lblPage.setCaption(
      count == 0 ? "" : "Page " + std::to_string(pages.page() + 1) + " of " + std::to_string(count));
  cmdPrevious.setEnabled(pages.page() > 0);
  cmdNext.setEnabled(pages.page() + 1 < count);
}

PlacedPages frmReport::placed() const {
  return {pages.pages(), head_.title, head_.letterhead};
}

void frmReport::save() {
  const auto path =
      askToSave(desk(), services_.fileChooser,
                {"Save Report", {}, "PDF document (*.pdf)|*.pdf", "pdf", reportFileName(head_.farm)});
  if (!path) return;
  try {
    writeFile(*path, services_.printer.pdfOf(placed()));
  } catch (const RunTimeError& error) {
    return tell(error.what());
  }
  lblSaved.setCaption("Saved " + path->string());
  onSaved(*path);
}

void frmReport::print() {
  const auto copies = [this] {
    const Desk::Modal modal(desk());
    return services_.printer.askCopies();
  }();
  if (!copies) return;
  try {
    for (int copy = 0; copy < *copies; ++copy)
      services_.printer.printPages(placed());
  } catch (const RunTimeError& error) {
    return tell(error.what());
  }
  lblSaved.setCaption("Printed");
}

void frmReport::tell(const std::string& reason) {
  lblSaved.setCaption("");
  ask(desk(), services_.messageBox,
      {"Report", reason, MessageKind::failure, MessageIcon::exclamation, MessageButtons::ok});
}

}  // namespace verdalis
