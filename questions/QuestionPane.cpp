#include "questions/QuestionPane.h"

#include <algorithm>
#include <new>
#include <stdexcept>
#include <utility>

#include "explore/bestPlan.h"
#include "questions/QuestionJob.h"
#include "questions/noPlanText.h"
#include "text/RunTimeError.h"

namespace verdalis {
namespace {

constexpr const char* outdatedText = "The farm has changed since. This is the answer for the farm before.";
constexpr const char* cancelledText = "Cancelled. Update asks again.";

/// Why work has failed, in words.
std::string faultOf(const std::exception_ptr& failure) {
  try {
    std::rethrow_exception(failure);
  } catch (const NoPlan& noPlan) {
    return noPlanText(noPlan);
  } catch (const std::bad_alloc&) {
    return "There is not enough memory for this question. Ask for fewer values.";
  } catch (const std::exception& error) {
    return error.what();
  }
}

}  // namespace

std::string tabSeparated(const std::vector<std::vector<std::string>>& rows) {
  std::string text;
  for (const auto& row : rows) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      if (column > 0) text += '\t';
      for (const char character : row[column]) {
        const bool separates = character == '\t' || character == '\r' || character == '\n';
        text += separates ? ' ' : character;
      }
    }
    text += '\n';
  }
  return text;
}

QuestionPane::QuestionPane(Frame& window, const std::string& name, const std::string& caption,
                           const std::string& about, Services& services, FarmToExplore farm)
    : Frame(window, name, Scope::named), services_(services), farm_(std::move(farm)) {
  setCaption(caption);
  lblAbout.setCaption(about);
  for (std::size_t i = 0; i < mostFigures; ++i)
    figures.push_back(std::make_unique<Figure>(*this, i));
  clearAnswer();
  lblOutdated.setCaption(outdatedText);
  setOutdated(false);
  prgQuestion.setVisible(false);
  cmdCancel.setVisible(false);
  cmdUpdate.onClick.connect([this] { ask(); });
  cmdCancel.onClick.connect([this] {
    if (!isRunning()) return;
    cancel();
    tell(cancelledText);
    cmdUpdate.setVisible(true);
  });
  cmdCopy.onClick.connect([this] { services_.clipboard.setText(copyText()); });
  cmdExport.onClick.connect([this] { onExport(); });
  cmdPrint.onClick.connect([this] { onPrint(); });
  cmdBack.onClick.connect([this] {
    cancel();
    onBack();
  });
  chart.onPick.connect([this](std::size_t record) {
    if (record < table.records()) table.setCurrent(record);
  });
}

QuestionPane::~QuestionPane() {
  if (job_) job_->cancel();
}

void QuestionPane::open() {
  onShowPane();
  ask();
}

void QuestionPane::ask() {
  cancel();
  setOutdated(false);
  lblFault.setCaption("");
  onAsked();
  Work work;
  try {
    const Farm farm = farm_();
    fill([&] { prepare(farm); });
    work = question(farm);
  } catch (const RunTimeError& error) {
    return tell(error.what());
  } catch (const std::invalid_argument& error) {
    return tell(error.what());
  }
  start(std::move(work));
}

void QuestionPane::start(Work work) {
  const auto job = std::make_shared<QuestionJob>(std::move(work));
  job_ = job;
  onRunningChange();
  services_.background.run([job] { job->run(); },
                           [this, job] {
                             // After a cancel this page may be gone.
                             if (!job->isCancelled()) finish(*job);
                           });
}

void QuestionPane::finish(QuestionJob& job) {
  end();
  if (job.failure()) return tell(faultOf(job.failure()));
  if (!job.show()) return tell(cancelledText);
  try {
    job.show()();
    cmdCopy.setEnabled(true);
    cmdExport.setEnabled(true);
    cmdPrint.setEnabled(true);
  } catch (const RunTimeError& error) {  // a number that no text can show
    tell(error.what());
  }
}

void QuestionPane::cancel() {
  if (!job_) return;
  job_->cancel();
  end();
}

void QuestionPane::end() {
  job_ = nullptr;
  prgQuestion.setVisible(false);
  cmdCancel.setVisible(false);
  onRunningChange();
}

void QuestionPane::tick() {
  if (!job_) return;
  const QuestionJob::Stand stand = job_->stand();
  prgQuestion.setMaximum(stand.steps);
  prgQuestion.setValue(std::min(stand.done, stand.steps));
  prgQuestion.setVisible(true);
  cmdCancel.setVisible(true);
}

void QuestionPane::setOutdated(bool outdated) {
  lblOutdated.setVisible(outdated);
  cmdUpdate.setVisible(outdated);
}

void QuestionPane::tell(const std::string& fault) {
  clearAnswer();
  lblFault.setCaption(fault);
}

void QuestionPane::clearAnswer() {
  chart.setChart({});
  table.setContents({}, {});
  showFigures({}, {});
  section_ = nullptr;
  cmdCopy.setEnabled(false);
  cmdExport.setEnabled(false);
  cmdPrint.setEnabled(false);
}

void QuestionPane::changed() {
  if (filling_ || !visible()) return;
  ask();
}

void QuestionPane::fill(const std::function<void()>& setting) {
  const struct Filling {
    explicit Filling(bool& now) : flag(now), before(std::exchange(now, true)) {}
    Filling(const Filling&) = delete;
    Filling& operator=(const Filling&) = delete;
    ~Filling() { flag = before; }
    bool& flag;
    bool before;
  } filling(filling_);
  setting();
}

void QuestionPane::watch(TextBox& box) {
  box.onChange.connect([this] { changed(); });
}

void QuestionPane::watch(ComboBox& box) {
  box.onClick.connect([this] { changed(); });
}

void QuestionPane::offer(TextBox& box, const std::string& text) {
  const auto known = std::find_if(offered_.begin(), offered_.end(),
                                  [&](const Offered& offered) { return offered.box == &box; });
  if (known == offered_.end()) {
    if (box.text().empty()) box.setText(text);
    offered_.push_back({&box, text});
    return;
  }
  if (box.text() == known->text) box.setText(text);
  known->text = text;
}

void QuestionPane::put(TextBox& box, const std::string& text) {
  offer(box, text);
  box.setText(text);
}

bool QuestionPane::hasOffered(const TextBox& box) const {
  return std::any_of(offered_.begin(), offered_.end(), [&](const Offered& offered) {
    return offered.box == &box && offered.text == box.text();
  });
}

void QuestionPane::refuse(const std::string& name, const std::string& what) {
  const bool ends = what.ends_with('.');
  throw std::invalid_argument(name + ": " + what + (ends ? "" : "."));
}

void QuestionPane::showFigures(const std::string& heading, const std::vector<AnswerFigure>& texts,
                               const std::string& note) {
  lblFigures.setCaption(heading);
  for (std::size_t i = 0; i < figures.size(); ++i) {
    figures[i]->what.setCaption(i < texts.size() ? texts[i].what : "");
    figures[i]->amount.setCaption(i < texts.size() ? texts[i].amount : "");
  }
  lblNote.setCaption(note);
}

void QuestionPane::showRows(std::vector<Table::Column> columns, std::vector<Row> rows) {
  const auto shared = std::make_shared<const std::vector<Row>>(std::move(rows));
  Table::Contents contents;
  contents.records = shared->size();
  contents.cell = [shared](std::size_t record, std::size_t column) {
    const Row& row = (*shared)[record];
    return Table::Cell{column < row.cells.size() ? row.cells[column] : "", {}, row.strong};
  };
  contents.before = [shared](std::size_t a, std::size_t b, std::size_t column) {
    const Row& first = (*shared)[a];
    const Row& second = (*shared)[b];
    if (column < first.numbers.size() && column < second.numbers.size())
      return first.numbers[column] < second.numbers[column];
    return first.cells[column] < second.cells[column];
  };
  table.setContents(std::move(columns), std::move(contents));
}

void QuestionPane::showAnswer(Answer answer, const std::vector<Table::Column>& columns, std::vector<Row> rows,
                              MakeSection section) {
  std::vector<std::string> headings;
  for (const Table::Column& column : columns)
    headings.push_back(column.heading);
  Chart& drawn = answer.chart;
  drawn.table.push_back(std::move(headings));
  for (const Row& row : rows)
    drawn.table.push_back(row.cells);
  // An axis need not repeat what the title says.
  if (auto* lines = std::get_if<LineChart>(&drawn.data); lines != nullptr && lines->y.title == drawn.title)
    lines->y.title.clear();
  if (auto* bars = std::get_if<BarChart>(&drawn.data); bars != nullptr && bars->x.title == drawn.title)
    bars->x.title.clear();
  chart.setChart(std::move(drawn));
  showRows(columns, std::move(rows));
  showFigures(answer.heading, answer.figures, answer.note);
  section_ = std::move(section);
}

HandoutSection QuestionPane::section(std::optional<std::size_t> rows) const {
  return section_ ? section_(rows) : HandoutSection();
}

}  // namespace verdalis
