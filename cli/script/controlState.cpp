#include "cli/script/controlState.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>

#include "controls/ChartBox.h"
#include "controls/Grid.h"
#include "controls/PageBox.h"
#include "controls/Table.h"
#include "controls/displays.h"
#include "controls/inputs.h"

namespace verdalis {
namespace {

using Json = nlohmann::ordered_json;

/// Whole numbers are written without a decimal point.
Json numberJson(double value) {
  constexpr double exactWhole = 9007199254740992;  // above this, some whole numbers have no exact float
  if (std::trunc(value) == value && std::abs(value) < exactWhole) return static_cast<long long>(value);
  return value;
}

Json gridJson(const Grid& grid) {
  Json cells = Json::array();
  Json colors = Json::array();
  for (int row = 0; row < grid.rows(); ++row) {
    Json cellRow = Json::array();
    Json colorRow = Json::array();
    for (int column = 0; column < grid.columns(); ++column) {
      cellRow.push_back(grid.cell(row, column));
      Json color;
      if (const auto rgb = grid.color(row, column)) {
        char text[8];
        std::snprintf(text, sizeof text, "#%06X", static_cast<unsigned>(*rgb & 0xFFFFFFU));
        color = text;
      }
      colorRow.push_back(std::move(color));
    }
    cells.push_back(std::move(cellRow));
    colors.push_back(std::move(colorRow));
  }
  return {{"rows", grid.rows()},         {"columns", grid.columns()}, {"cells", std::move(cells)},
          {"colors", std::move(colors)}, {"row", grid.row()},         {"column", grid.column()}};
}

/// The lines on show; of a long table only the first.
Json tableJson(const Table& table) {
  constexpr std::size_t most = 200;
  Json columns = Json::array();
  for (const Table::Column& column : table.columns())
    columns.push_back(column.heading);
  Json rows = Json::array();
  Json marked = Json::array();
  for (std::size_t place = 0; place < std::min(table.places(), most); ++place) {
    const std::size_t record = table.record(place);
    Json cells = Json::array();
    for (std::size_t column = 0; column < table.columns().size(); ++column)
      cells.push_back(table.cell(record, column).text);
    rows.push_back(std::move(cells));
    if (table.isMarked(record)) marked.push_back(place);
  }
  Json current;
  if (table.current()) {
    if (const auto place = table.placeOf(*table.current())) current = *place;
  }
  Json sort;
  if (table.sortColumn()) sort = {{"column", *table.sortColumn()}, {"down", table.sortsDown()}};
  return {{"columns", std::move(columns)}, {"records", table.records()},  {"places", table.places()},
          {"rows", std::move(rows)},       {"marked", std::move(marked)}, {"current", std::move(current)},
          {"sort", std::move(sort)}};
}

Json chartJson(const ChartBox& box) {
  const std::optional<Chart>& chart = box.chart();
  if (!chart) return {{"title", nullptr}, {"summary", nullptr}, {"table", Json::array()}};
  return {{"title", chart->title}, {"summary", chart->summary}, {"table", chart->table}};
}

/// The page on show, from 1, and its texts in the order in which they are drawn.
Json pagesJson(const PageBox& box) {
  Json texts = Json::array();
  if (box.page() < box.count()) {
    for (const DrawnPart& part : (*box.pages())[box.page()].parts) {
      if (const auto* text = std::get_if<DrawnText>(&part)) texts.push_back(text->text);
    }
  }
  return {
      {"pages", box.count()}, {"page", box.count() == 0 ? 0 : box.page() + 1}, {"texts", std::move(texts)}};
}

/// The properties of a control apart from name, kind and visibility.
Json particulars(Control& control) {
  if (const auto* box = dynamic_cast<TextBox*>(&control)) return {{"text", box->text()}};
  if (const auto* combo = dynamic_cast<ComboBox*>(&control)) {
    return {{"text", combo->text()}, {"items", combo->items()}, {"index", combo->index()}};
  }
  if (const auto* box = dynamic_cast<CheckBox*>(&control)) {
    return {{"caption", shownCaption(box->caption())}, {"checked", box->checked()}};
  }
  if (const auto* button = dynamic_cast<OptionButton*>(&control)) {
    return {{"caption", shownCaption(button->caption())}, {"checked", button->checked()}};
  }
  if (const auto* entry = dynamic_cast<MenuEntry*>(&control)) {
    return {{"caption", shownCaption(entry->caption())}, {"checked", entry->checked()}};
  }
  if (const auto* captioned = dynamic_cast<Captioned*>(&control)) {
    return {{"caption", shownCaption(captioned->caption())}};
  }
  if (const auto* frame = dynamic_cast<Frame*>(&control)) {
    return frame->caption().empty() ? Json::object() : Json{{"caption", shownCaption(frame->caption())}};
  }
  if (const auto* grid = dynamic_cast<Grid*>(&control)) return gridJson(*grid);
  if (const auto* table = dynamic_cast<Table*>(&control)) return tableJson(*table);
  if (const auto* box = dynamic_cast<ChartBox*>(&control)) return chartJson(*box);
  if (const auto* box = dynamic_cast<PageBox*>(&control)) return pagesJson(*box);
  if (const auto* bar = dynamic_cast<ProgressBar*>(&control)) {
    return {{"value", numberJson(bar->value())}, {"maximum", numberJson(bar->maximum())}};
  }
  if (const auto* bar = dynamic_cast<ScrollBar*>(&control)) {
    return {{"value", bar->value()}, {"maximum", bar->maximum()}};
  }
  return Json::object();
}

void listBelow(const Frame& frame, Json& list) {
  for (const Control* control : frame.controls()) {
    list.push_back({{"name", control->path()}, {"kind", kindName(control->kind())}});
    if (const auto* inner = dynamic_cast<const Frame*>(control)) listBelow(*inner, list);
  }
}

}  // namespace

Json controlState(Control& control, const std::string& name) {
  Json state{{"control", name},
             {"kind", kindName(control.kind())},
             {"visible", control.visible()},
             {"enabled", control.enabled()}};
  state.update(particulars(control));
  return state;
}

Json listControls(const Desk& desk) {
  Json list = Json::array();
  for (const Window* window : desk.windows()) {
    list.push_back({{"name", window->name()}, {"kind", kindName(window->kind())}});
    listBelow(*window, list);
  }
  return list;
}

}  // namespace verdalis
