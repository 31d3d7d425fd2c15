#pragma once

#include <QHBoxLayout>
#include <QKeySequence>
#include <QWidget>

#include "desktop/Page.h"
#include "results/Details.h"
#include "results/Results.h"
#include "results/SummaryPane.h"

namespace verdalis::desktop {

/// The options of a run, one at a time: a pager, a row for each field under column heads, the net return.
[[nodiscard]] QWidget* resultsView(Results& results, Binder& binder, const QString& heading);

/// The details of a field: the totals first, then the blocks of costs side by side.
[[nodiscard]] QWidget* detailsView(Details& details, Binder& binder);

/// The table of saved options.
[[nodiscard]] QWidget* summaryView(SummaryPane& pane, Binder& binder);

/// A label in the size of a page's heading.
[[nodiscard]] QLabel* bigLabel(QLabel* label);

/// The bar of buttons below a page, which stays in sight.
[[nodiscard]] QHBoxLayout* footerOf(QVBoxLayout* layout);

/// A key that presses a button while its page is on show. The button is bound before.
void addShortcut(Binder& binder, QWidget* view, const QKeySequence& keys, Button& button);

}  // namespace verdalis::desktop
