#pragma once

#include <QString>

class QCheckBox;
class QLabel;

namespace verdalis::desktop {

// Texts that are cut where they have no room, with the whole of them in a tool tip and for screen readers.

/// Shows as much of the accessible name of a check box as it has room for.
void elideName(QCheckBox* box);

/// Shows as much of a text as has room in a width.
void elideTo(int width, QLabel* label, const QString& whole);

}  // namespace verdalis::desktop
