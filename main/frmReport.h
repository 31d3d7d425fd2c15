#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/PageBox.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "handout/Handout.h"
#include "handout/PaperSize.h"

namespace verdalis {

/// A part that a report may have.
struct ReportPart {
  std::string name;
  bool chosen = false;
  std::function<HandoutSection()> section;  ///< Makes it; called once, when it is chosen
};

/// The window for a report to hand out: which parts it has, its paper, and its pages as they will be.
class frmReport : public Window {
 public:
  frmReport(Desk& desk, Services& services);

  /// Check boxes for the parts; those that the report does not offer are invisible.
  static constexpr std::size_t mostParts = 14;
  std::vector<std::unique_ptr<CheckBox>> chkPart;

  OptionGroup paper;
  OptionButton optLetter{*this, "optLetter", paper, "Letter"};
  OptionButton optA4{*this, "optA4", paper, "A4"};
  PageBox pages{*this, "pages"};
  Label lblPage{*this, "lblPage"};  ///< Such as "Page 1 of 3"
  Button cmdPrevious{*this, "cmdPrevious", "Previous page"};
  Button cmdNext{*this, "cmdNext", "Next page"};
  Label lblSaved{*this, "lblSaved"};  ///< What was done last, such as "Saved /home/ann/plan.pdf"
  Button cmdSavePdf{*this, "cmdSavePdf", "Save as PDF..."};
  Button cmdPrint{*this, "cmdPrint", "Print..."};
  Button cmdClose{*this, "cmdClose", "Close"};

  /// Opens the window. `head` is the report without its sections.
  void show(Handout head, std::vector<ReportPart> parts);

  /// Replaces a file by these bytes.
  /// \throws RunTimeError
  std::function<void(const std::filesystem::path&, std::string_view)> writeFile;

  Event<const std::filesystem::path&> onSaved;

 private:
  struct Part {
    ReportPart offered;
    std::optional<HandoutSection> made;
  };

  void layOut();
  void showPage(std::size_t page);
  void showButtons();
  void save();
  void print();
  void tell(const std::string& reason);
  [[nodiscard]] PlacedPages placed() const;

  Services& services_;
  Handout head_;
  std::vector<Part> parts_;
  bool filling_ = false;  ///< The program sets the controls
};

/// A name for the file of a report, by the name of the farm.
[[nodiscard]] std::string reportFileName(const std::string& farm);

}  // namespace verdalis
