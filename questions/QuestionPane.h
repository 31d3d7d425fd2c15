#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "controls/ChartBox.h"
#include "controls/Control.h"
#include "controls/Event.h"
#include "controls/Table.h"
#include "controls/displays.h"
#include "controls/inputs.h"
#include "controls/services.h"
#include "engine/Farm.h"
#include "engine/ProgramState.h"
#include "engine/RunHooks.h"
#include "handout/Handout.h"
#include "questions/Answer.h"

namespace verdalis {

class QuestionJob;

/// The farm that the questions are about, with its own crops.
/// \throws RunTimeError, std::invalid_argument if it is not complete
using FarmToExplore = std::function<Farm()>;

/// A page that answers a question about the farm. The work is done in the background; a new question cancels
/// the one before, whose answer is dropped.
class QuestionPane : public Frame {
 public:
  ~QuestionPane() override;

  Label lblAbout{*this, "lblAbout"};        ///< What the page tells
  Label lblFault{*this, "lblFault"};        ///< Why there is no answer; empty if there is one
  Label lblOutdated{*this, "lblOutdated"};  ///< Visible if the farm has changed since the question
  Button cmdUpdate{*this, "cmdUpdate", "Update"};
  ChartBox chart{*this, "chart"};
  Label lblFigures{*this, "lblFigures"};  ///< The heading of the figures

  /// The figures in words: what it is, and how much. Lines without a figure are empty.
  struct Figure {
    Figure(Frame& pane, std::size_t index)
        : what(pane, "lblWhat(" + std::to_string(index) + ")"),
          amount(pane, "lblAmount(" + std::to_string(index) + ")") {}
    Label what;
    Label amount;
  };
  static constexpr std::size_t mostFigures = 4;
  std::vector<std::unique_ptr<Figure>> figures;

  Label lblNote{*this, "lblNote"};  ///< A sentence below the figures
  Table table{*this, "table"};
  ProgressBar prgQuestion{*this, "prgQuestion"};  ///< Visible while a question takes longer; see tick()
  Button cmdCancel{*this, "cmdCancel", "Cancel"};
  Button cmdCopy{*this, "cmdCopy", "Copy table"};
  Button cmdExport{*this, "cmdExport", "Export..."};  ///< A workbook
  Button cmdPrint{*this, "cmdPrint", "Print..."};     ///< Opens a report with this page
  Button cmdBack{*this, "cmdBack", "Back"};

  /// Shows the page, fills the fields that the user has not changed, and asks.
  void open();

  /// Asks again with the present farm.
  void ask();

  /// Whether there is an answer.
  [[nodiscard]] bool hasAnswer() const { return section_ != nullptr; }

  /// The answer for a report or a workbook; empty if there is none.
  /// \param rows the most rows of a table; nothing for all
  /// \throws RunTimeError (overflow) for a number that cannot be shown
  [[nodiscard]] HandoutSection section(std::optional<std::size_t> rows = std::nullopt) const;

  /// The farm has changed, or is again as it was when the question was asked.
  void setOutdated(bool outdated);

  /// Whether an answer is being worked out.
  [[nodiscard]] bool isRunning() const { return job_ != nullptr; }

  /// Shows how far the work is. Call it every tenth of a second while it is running: what is answered before
  /// the first call shows no progress.
  void tick();

  /// Cancels the work, if there is any; its answer is dropped.
  void cancel();

  Event<> onShowPane;       ///< The page must be shown
  Event<> onBack;           ///< cmdBack
  Event<> onExport;         ///< cmdExport
  Event<> onPrint;          ///< cmdPrint
  Event<> onAsked;          ///< A question has been put, with the present farm
  Event<> onRunningChange;  ///< isRunning() has changed

 protected:
  QuestionPane(Frame& window, const std::string& name, const std::string& caption, const std::string& about,
               Services& services, FarmToExplore farm);

  /// Shows an answer. It runs where the controls are.
  using Show = std::function<void()>;

  /// Works out an answer, beside the controls, which it must not touch.
  /// \returns nothing after a cancel
  /// \throws NoPlan, RunTimeError
  using Work = std::function<Show(ProgramState& state, RunHooks& hooks)>;

  /// Fills lists and the fields that the user has not changed.
  virtual void prepare(const Farm& farm) = 0;

  /// Reads the fields.
  /// \throws std::invalid_argument, RunTimeError for what is refused
  [[nodiscard]] virtual Work question(const Farm& farm) = 0;

  /// Asks again when the user changes a field.
  void watch(TextBox& box);
  void watch(ComboBox& box);

  /// Asks again, unless the program is filling fields or the page is not on show.
  void changed();

  /// Sets fields without asking.
  void fill(const std::function<void()>& setting);

  /// Sets the text of a field that still has the text that was set here before.
  void offer(TextBox& box, const std::string& text);

  /// The same, whatever the field has.
  void put(TextBox& box, const std::string& text);

  /// Whether a field still has the text that offer() or put() set.
  [[nodiscard]] bool hasOffered(const TextBox& box) const;

  /// Reads a field. What is wrong is told with the name of the field.
  template <class Read>
  static auto readField(const std::string& name, Read read) {
    try {
      return read();
    } catch (const std::invalid_argument& error) {
      refuse(name, error.what());
    }
  }

  /// A row of texts. Columns of numbers sort by `numbers`, if there are any.
  struct Row {
    std::vector<std::string> cells;
    std::vector<double> numbers;  ///< By column; may be shorter than `cells`
    bool strong = false;
  };

  /// Makes the section of an answer; see section().
  using MakeSection = std::function<HandoutSection(std::optional<std::size_t> rows)>;

  /// Shows an answer together with the rows that its chart is drawn from.
  void showAnswer(Answer answer, const std::vector<Table::Column>& columns, std::vector<Row> rows,
                  MakeSection section);

  /// The text that cmdCopy copies.
  [[nodiscard]] virtual std::string copyText() const { return table.tabSeparated(); }

 private:
  void showFigures(const std::string& heading, const std::vector<AnswerFigure>& texts,
                   const std::string& note = {});
  void showRows(std::vector<Table::Column> columns, std::vector<Row> rows);
  [[noreturn]] static void refuse(const std::string& name, const std::string& what);
  void clearAnswer();
  void start(Work work);
  void finish(QuestionJob& job);
  void end();
  void tell(const std::string& fault);

  struct Offered {
    const TextBox* box;
    std::string text;
  };

  Services& services_;
  FarmToExplore farm_;
  std::shared_ptr<QuestionJob> job_;
  std::vector<Offered> offered_;
  bool filling_ = false;
  MakeSection section_;  ///< Of the answer on show; none without one
};

/// Rows of texts for a spreadsheet: tabs between columns, a line for each row.
[[nodiscard]] std::string tabSeparated(const std::vector<std::vector<std::string>>& rows);

}  // namespace verdalis
