#pragma once

namespace verdalis::desktop {

/// Names the organisation to which the settings of the program belong, and takes over what an earlier version
/// has kept without such a name, unless there are settings already. The application must have its name.
void claimSettings();

}  // namespace verdalis::desktop
